// The customer file: its bytes, scans, lists and the delete's rewrite.
#include <QtTest>

#include "customers/CustomerFile.h"
#include "customers/CustomerFixture.h"
#include "customers/CustomerRecords.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class CustomerFileTest : public QObject {
  Q_OBJECT

  std::unique_ptr<CustomerTree> m_tree;
  std::unique_ptr<CustomerFile> m_file;

  void PutCustomers(const QByteArray& content) { m_tree->Put(u"/CustomerData.txt"_s, content); }
  QByteArray Customers() { return m_tree->Bytes(u"/CustomerData.txt"_s); }

 private Q_SLOTS:
  void init() {
    m_file.reset();
    m_tree = std::make_unique<CustomerTree>();
    m_file = std::make_unique<CustomerFile>(m_tree->Disk);
  }

  void everyFieldStandsAtItsOffset() {
    CustomerRecord& record = m_file->Buffer;
    record.Blank();
    record.SetText(CustomerField::AcctNo, u"1001");
    record.SetText(CustomerField::AcctName, u"Caf\u00e9 \u20ac");
    record.SetText(CustomerField::Address1, u"1 Main St");
    record.SetText(CustomerField::Address2, u"Suite 2");
    record.SetText(CustomerField::CityLine, u"Reno");
    record.SetText(CustomerField::CityShort, u"RenoShort");
    record.SetText(CustomerField::State, u"NV");
    record.SetText(CustomerField::PostalShort, u"89501");
    record.SetText(CustomerField::PostalLine, u"89501-1234");
    record.SetText(CustomerField::Phone, u"775-555-0100");
    record.SetText(CustomerField::CellPhone, u"775-555-0101");
    record.SetText(CustomerField::Email, u"a@b.example");
    record.SetText(CustomerField::Title, u"Ms");
    record.SetText(CustomerField::FirstName, u"Ann");
    record.SetText(CustomerField::MiddleInitial, u"Q");
    record.SetText(CustomerField::LastName, u"Bell");
    record.SetAcctFlag(-2);
    m_file->Write(1);
    const QByteArray bytes = Customers();
    QCOMPARE(bytes.size(), 328);
    QCOMPARE(bytes.mid(0, 20), "1001                ");
    QCOMPARE(bytes.mid(20, 8), "Caf\xe9 \x80  ");
    QCOMPARE(bytes.mid(65, 10), "1 Main St ");
    QCOMPARE(bytes.mid(100, 8), "Suite 2 ");
    QCOMPARE(bytes.mid(125, 5), "Reno ");
    QCOMPARE(bytes.mid(150, 10), "RenoShort ");
    QCOMPARE(bytes.mid(170, 2), "NV");
    QCOMPARE(bytes.mid(172, 10), "89501     ");
    QCOMPARE(bytes.mid(182, 11), "89501-1234 ");
    QCOMPARE(bytes.mid(207, 13), "775-555-0100 ");
    QCOMPARE(bytes.mid(220, 13), "775-555-0101 ");
    QCOMPARE(bytes.mid(233, 12), "a@b.example ");
    QCOMPARE(bytes.mid(263, 10), "Ms        ");
    QCOMPARE(bytes.mid(273, 15), "Ann            ");
    QCOMPARE(bytes.mid(288, 1), "Q");
    QCOMPARE(bytes.mid(289, 25), "Bell                     ");
    QCOMPARE(bytes.mid(314, 10), "Business  ");
    QCOMPARE(bytes.mid(324, 4), QByteArray("\xfe\xff\0\0", 4));
  }

  void aTextIsCutAtItsWidth() {
    m_file->Buffer.SetText(CustomerField::State, u"Nevada");
    QCOMPARE(m_file->Buffer.Text(CustomerField::State), u"Ne"_s);
    QCOMPARE(m_file->Buffer.Bytes().size(), 328);
  }

  void theReservedBytesStayWhatTheBufferHeld() {
    RecordText record;
    record.AcctNo = "1";
    record.Flag = "\x05\x01";
    record.Reserved = "xy";
    PutCustomers(record.Bytes());
    m_file->Read(1);
    QCOMPARE(m_file->Buffer.AcctFlag(), qint16(0x0105));
    m_file->Buffer.Blank();
    m_file->Write(2);
    QCOMPARE(Customers().mid(328 + 314), QByteArray("Business  \0\0xy", 14));
  }

  void aShortLastRecordReadsAsWhatIsThere() {
    PutCustomers(BusinessRecord("1", "One") + BusinessRecord("2", "Two").first(23));
    m_file->Read(2);
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctNo), u"2"_s);
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctName), u"Two"_s);
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctType), QString());
    QCOMPARE(m_file->Buffer.AcctFlag(), qint16(0));
  }

  void aRecordPastTheEndIsBlank() {
    PutCustomers(BusinessRecord("1", "One"));
    m_file->Read(9);
    QCOMPARE(m_file->Buffer.Bytes(), QByteArray(324, ' ') + QByteArray(4, '\0'));
  }

  void theCountIsTheLengthOver328TiesToEven_data() {
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("two") << 656 << 2;
    QTest::newRow("one and a half") << 492 << 2;
    QTest::newRow("two and a half") << 820 << 2;
    QTest::newRow("less than half missing") << 328 + 165 << 2;
    QTest::newRow("more than half missing") << 328 + 163 << 1;
  }
  void theCountIsTheLengthOver328TiesToEven() {
    QFETCH(int, bytes);
    PutCustomers(QByteArray(bytes, ' '));
    QTEST(m_file->Count(), "count");
  }

  void moreThan32767RecordsAreDamageOfTheFile() {
    PutCustomers(QByteArray(328 * 32768, ' '));
    const RuntimeError error = CaughtFrom([&] { m_file->Count(); });
    QCOMPARE(error.Number(), 6);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
  }

  void aDuplicateIsExactAndCaseSensitive_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("skip");
    QTest::addColumn<bool>("found");
    QTest::newRow("same") << u"AB1"_s << 3 << true;
    QTest::newRow("other case") << u"ab1"_s << 3 << false;
    QTest::newRow("the record on the screen") << u"AB1"_s << 1 << false;
    QTest::newRow("a beginning") << u"AB"_s << 3 << false;
    QTest::newRow("blanks around aren't trimmed") << u"AB1 "_s << 3 << false;
    QTest::newRow("beyond the code page") << u"\u0416"_s << 3 << false;
  }
  void aDuplicateIsExactAndCaseSensitive() {
    QFETCH(QString, number);
    QFETCH(int, skip);
    PutCustomers(BusinessRecord("AB1", "One") + BusinessRecord("?", "Two") + BusinessRecord("3", "Three"));
    QTEST(m_file->HasAccount(number, 3, skip), "found");
  }

  void aScanLeavesItsLastRecordInTheBuffer() {
    PutCustomers(BusinessRecord("1", "One") + BusinessRecord("2", "Two") + BusinessRecord("3", "Three"));
    QVERIFY(m_file->HasAccount(u"2"_s, 3, 1));
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctName), u"Two"_s);
    m_file->Read(1);
    QVERIFY(!m_file->HasAccount(u"3"_s, 3, 3));
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctName), u"Two"_s);
    m_file->ReadLists(3);
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctName), u"Three"_s);
  }

  void accountsAreListedAlphabeticallyWithTheirRecords() {
    PutCustomers(BusinessRecord("1", "zeta") + BusinessRecord("2", "Alpha") + PersonRecord("3", "Ann", "Q", "Moss") +
                 BusinessRecord("4", "alpha") + PersonRecord("5", "Bo", "", "Moss"));
    const CustomerLists lists = m_file->ReadLists(5);
    QCOMPARE(lists.Accounts, (QStringList{u"Alpha"_s, u"alpha"_s, u"Moss, Ann Q"_s, u"Moss, Bo  "_s, u"zeta"_s}));
    QCOMPARE(lists.Records, (QList<int>{2, 4, 3, 5, 1}));
  }

  void accentedNamesIgnoreTheirCaseToo() {
    PutCustomers(BusinessRecord("1",
                                "\xC9"
                                "clair B") +
                 BusinessRecord("2",
                                "\xE9"
                                "clair A") +
                 BusinessRecord("3", "\x8Aport") + BusinessRecord("4", "Zoo"));
    const CustomerLists lists = m_file->ReadLists(4);
    QCOMPARE(lists.Accounts, (QStringList{u"Zoo"_s, u"\u0160port"_s, u"\u00e9clair A"_s, u"\u00c9clair B"_s}));
  }

  void citiesStandOnceInFileOrderTheEmptyOneIncluded() {
    PutCustomers(BusinessRecord("1", "a", "Reno") + BusinessRecord("2", "b", "") + BusinessRecord("3", "c", "Elko") +
                 BusinessRecord("4", "d", " Reno") + BusinessRecord("5", "e", "reno"));
    QCOMPARE(m_file->ReadLists(5).Cities, (QStringList{u"Reno"_s, QString(), u"Elko"_s, u"reno"_s}));
  }

  /// Made anew it would be blank records, and the exit backup would copy it over the good copy.
  void aFileThatWentMissingComesBackFromItsCopyBeforeItIsReadOrWritten() {
    const QByteArray copy = Many(3);
    const std::initializer_list<std::function<void()>> uses{[&] { m_file->Read(2); }, [&] { m_file->ReadLists(3); },
                                                            [&] {
                                                              m_file->Find({EveryCustomer, {}}, 3);
                                                            }};
    for (const auto& use : uses) {
      QFile::remove(m_tree->Path(u"/CustomerData.txt"_s));
      m_tree->Put(u"/Backup/CustomerData.txt"_s, copy);
      use();
      QCOMPARE(Customers(), copy);
    }
    m_file->Read(3);
    QVERIFY(QFile::remove(m_tree->Path(u"/CustomerData.txt"_s)));
    m_file->Write(2);
    QCOMPARE(Customers(), copy.first(328) + copy.last(328) + copy.last(328));
  }

  void aDeleteTakesOneRecordItsLedgerAndTheBackupCopies() {
    const QByteArray one = BusinessRecord("1", "One"), two = BusinessRecord("2", "Two"),
                     three = BusinessRecord("3", "Three");
    PutCustomers(one + two + three);
    m_tree->Put(u"/Backup/CustomerData.txt"_s, "older");
    m_tree->Put(u"/CUSTOMER.TMP"_s, "left behind");
    m_tree->Put(u"/KVActiveAccounts/2.txt"_s, "ledger");
    m_tree->Put(u"/Backup/KVActiveAccounts/2.txt"_s, "ledger");
    m_tree->Put(u"/KVActiveAccounts/1.txt"_s, "other");
    m_file->Remove(2, 3, u" 2 "_s);
    QCOMPARE(Customers(), one + three);
    QVERIFY(!m_tree->Has(u"/CUSTOMER.TMP"_s));
    QVERIFY(!m_tree->Has(u"/Backup/CustomerData.txt"_s));
    QVERIFY(!m_tree->Has(u"/KVActiveAccounts/2.txt"_s));
    QVERIFY(!m_tree->Has(u"/Backup/KVActiveAccounts/2.txt"_s));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/1.txt"_s), "other");
  }

  void aDeleteNeverReachesOutsideTheLedgers() {
    PutCustomers(BusinessRecord("../Services", "One"));
    m_tree->Put(u"/Services.txt"_s, "services");
    m_file->Remove(1, 1, u"../Services"_s);
    QCOMPARE(m_tree->Bytes(u"/Services.txt"_s), "services");
    QCOMPARE(Customers(), QByteArray());
  }

  void aFullDiskDuringADeleteLosesNothing() {
    const QByteArray before = BusinessRecord("1", "One") + BusinessRecord("2", "Two");
    PutCustomers(before);
    m_tree->Put(u"/Backup/CustomerData.txt"_s, "older");
    m_tree->Put(u"/KVActiveAccounts/2.txt"_s, "ledger");
    for (const auto call : {FailingDevice::Call::Write, FailingDevice::Call::Flush}) {
      m_tree->Device.Reset();
      m_tree->Device.FailAt(call, 1, ENOSPC);
      QCOMPARE(ErrorOf([&] { m_file->Remove(2, 2, u"2"_s); }), 61);
      QCOMPARE(Customers(), before);
      QCOMPARE(m_tree->Bytes(u"/Backup/CustomerData.txt"_s), "older");
      QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/2.txt"_s), "ledger");
    }
  }

  /// The first rename puts the shorter file beside the old one, the second in its place.
  void aRenameThatFailsLeavesFileAndLedger() {
    const QByteArray before = BusinessRecord("1", "One") + BusinessRecord("2", "Two");
    for (const int nth : {1, 2}) {
      init();
      PutCustomers(before);
      m_tree->Put(u"/Backup/CustomerData.txt"_s, "older");
      m_tree->Put(u"/KVActiveAccounts/2.txt"_s, "ledger");
      m_tree->Put(u"/Backup/KVActiveAccounts/2.txt"_s, "ledger copy");
      m_tree->Device.FailAt(FailingDevice::Call::Rename, nth, EACCES);
      QCOMPARE(ErrorOf([&] { m_file->Remove(2, 2, u"2"_s); }), 70);
      QCOMPARE(Customers(), before);
      QVERIFY(!m_tree->Has(u"/CUSTOMER.TMP"_s));
      QCOMPARE(m_tree->Bytes(u"/Backup/CustomerData.txt"_s), "older");
      QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/2.txt"_s), "ledger");
      QCOMPARE(m_tree->Bytes(u"/Backup/KVActiveAccounts/2.txt"_s), "ledger copy");
    }
  }

  void aFolderThatIsNotFlushedBeforeTheRenameLeavesNoSecondFile() {
    const QByteArray before = BusinessRecord("1", "One") + BusinessRecord("2", "Two");
    PutCustomers(before);
    m_tree->Device.FailAt(FailingDevice::Call::FlushFolder, 1, EIO);
    QCOMPARE(ErrorOf([&] { m_file->Remove(2, 2, u"2"_s); }), 75);
    QCOMPARE(Customers(), before);
    QVERIFY(!m_tree->Has(u"/CUSTOMER.TMP"_s));
  }

  void aFolderThatIsNotFlushedAfterTheRenameIsAnsweredAndTheLedgerStays() {
    PutCustomers(BusinessRecord("1", "One") + BusinessRecord("2", "Two"));
    m_tree->Put(u"/Backup/CustomerData.txt"_s, "older");
    m_tree->Put(u"/KVActiveAccounts/2.txt"_s, "ledger");
    // The first one is that of the shorter file beside the old one.
    m_tree->Device.FailAt(FailingDevice::Call::FlushFolder, 2, EIO);
    const std::optional<RuntimeError> failed = m_file->Remove(2, 2, u"2"_s);
    QVERIFY(failed.has_value());
    QCOMPARE(failed->Number(), 75);
    QCOMPARE(Customers(), BusinessRecord("1", "One"));
    QCOMPARE(m_tree->Bytes(u"/KVActiveAccounts/2.txt"_s), "ledger");
    QCOMPARE(m_tree->Bytes(u"/Backup/CustomerData.txt"_s), "older");
  }

  void whatCannotBeRemovedAfterTheRenameIsAnsweredAndTheRestGoes() {
    const QStringList gone{u"/Backup/KVActiveAccounts/2.txt"_s, u"/KVActiveAccounts/2.txt"_s,
                           u"/Backup/CustomerData.txt"_s};
    for (int kept = 0; kept < gone.size(); ++kept) {
      init();
      PutCustomers(BusinessRecord("1", "One") + BusinessRecord("2", "Two"));
      for (const QString& name : gone) m_tree->Put(name, "old");
      // Before these: what earlier deletes may have left, and a save of theirs.
      constexpr int before = 2;
      m_tree->Device.FailAt(FailingDevice::Call::Remove, before + kept + 1, EACCES);
      const std::optional<RuntimeError> failed = m_file->Remove(2, 2, u"2"_s);
      QVERIFY(failed.has_value());
      QCOMPARE(failed->Number(), 70);
      QCOMPARE(Customers(), BusinessRecord("1", "One"));
      for (int i = 0; i < gone.size(); ++i) QCOMPARE(m_tree->Has(gone.at(i)), i == kept);
    }
  }

  void aDuplicateSearchWithoutAFileFindsNoneAndMakesNone() {
    QVERIFY(!m_file->HasAccount(u"1"_s, 2, 1));
    QVERIFY(!m_tree->Has(u"/CustomerData.txt"_s));
  }

  void aKillAtAnyStepOfADeleteLeavesTheOldFileOrTheNewOne() {
    const QByteArray kept = BusinessRecord("1", "One");
    const QByteArray before = kept + BusinessRecord("2", "Two");
    int steps = 0;
    for (bool finished = false; !finished;) {
      init();
      PutCustomers(before);
      m_tree->Put(u"/Backup/CustomerData.txt"_s, "older");
      m_tree->Put(u"/KVActiveAccounts/2.txt"_s, "ledger");
      m_tree->Put(u"/Backup/KVActiveAccounts/2.txt"_s, "ledger copy");
      m_tree->Device.KillAt(++steps);
      try {
        m_file->Remove(2, 2, u"2"_s);
        finished = true;
      } catch (const FailingDevice::Killed&) {
        const QByteArray now = Customers();
        QVERIFY2(now == before || now == kept, qPrintable(u"step %1"_s.arg(steps)));
        QVERIFY2(now == kept || m_tree->Has(u"/Backup/CustomerData.txt"_s), qPrintable(u"step %1"_s.arg(steps)));
        QVERIFY2(now == kept || m_tree->Bytes(u"/KVActiveAccounts/2.txt"_s) == "ledger",
                 qPrintable(u"step %1"_s.arg(steps)));
        QVERIFY2(now == kept || m_tree->Bytes(u"/Backup/KVActiveAccounts/2.txt"_s) == "ledger copy",
                 qPrintable(u"step %1"_s.arg(steps)));
      }
    }
    QCOMPARE(Customers(), kept);
    QVERIFY2(steps > 5, "the delete was killed at several steps");
  }

  void aSearchLeavesTheLastRecordCountedInTheBuffer() {
    PutCustomers(BusinessRecord("1", "One") + BusinessRecord("2", "Two") + BusinessRecord("3", "Three"));
    const std::vector<FoundCustomer> found = m_file->Find({0, "ONE"}, 2);
    QCOMPARE(found.size(), 1U);
    QCOMPARE(found[0].Record, 1);
    QCOMPARE(m_file->Buffer.Text(CustomerField::AcctNo), u"2"_s);
  }

  void aSearchMakesTheFileThatIsMissing() {
    QCOMPARE(m_file->Find({EveryCustomer, "All"}, 1).size(), 1U);
    QCOMPARE(Customers(), QByteArray());
    QVERIFY(m_tree->Has(u"/CustomerData.txt"_s));
  }
};

QTEST_GUILESS_MAIN(CustomerFileTest)
#include "tst_customerFile.moc"
