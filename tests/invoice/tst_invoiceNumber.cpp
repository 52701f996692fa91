// The invoice number: the counter file, the new year, the box.
#include <QtTest>

#include "invoice/InvoiceNumber.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class InvoiceNumberTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;

  void Load() { LoadInvoiceNo(m_desk->Invoice, m_desk->Disk, m_desk->Now); }

 private Q_SLOTS:
  void init() { m_desk.emplace(); }
  void cleanup() { QVERIFY(m_desk->Boxes.Answers.isEmpty()); }

  void theFirstInvoiceOfAllIsNumberOneOfTheYear() {
    m_desk->Invoice.Controls.txtInvoiceNoLocked = true;
    Load();
    QCOMPARE(m_desk->Invoice.InvoiceNo, 20260001);
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, u"20260001"_s);
    QCOMPARE(m_desk->Read(u"/KVInvoiceNo.txt"_s), "20260001\r\n");
    QVERIFY(!m_desk->Invoice.Controls.txtInvoiceNoLocked);
  }

  void theCounterIsOfferedAndWrittenBack_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<qint32>("offered");
    QTest::newRow("of this year") << QByteArray("20260017\r\n") << 20260017;
    QTest::newRow("without a line end") << QByteArray("20260017") << 20260017;
    QTest::newRow("of last year") << QByteArray("20250017\r\n") << 20260001;
    QTest::newRow("of a later year") << QByteArray("20270003\r\n") << 20270003;
    QTest::newRow("zero is repaired") << QByteArray("0\r\n") << 20260000;
    QTest::newRow("a short number that reads above the year") << QByteArray("501\r\n") << 501;
    QTest::newRow("a short number that reads below the year") << QByteArray("100\r\n") << 20260001;
    QTest::newRow("only the year") << QByteArray("2026\r\n") << 2026;
    QTest::newRow("long, by its first four digits") << QByteArray("1999999999\r\n") << 20260001;
    QTest::newRow("the largest") << QByteArray("2147483647\r\n") << 2147483647;
    QTest::newRow("negative reads below the year") << QByteArray("-5\r\n") << 20260001;
  }
  void theCounterIsOfferedAndWrittenBack() {
    QFETCH(const QByteArray, file);
    QFETCH(const qint32, offered);
    m_desk->Write(u"/KVInvoiceNo.txt"_s, file);
    Load();
    QCOMPARE(m_desk->Invoice.InvoiceNo, offered);
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, QString::number(offered));
    QCOMPARE(m_desk->Read(u"/KVInvoiceNo.txt"_s), QByteArray::number(offered) + "\r\n");
  }

  void aDamagedCounterIsAnErrorThatNamesTheFileAndChangesNothing_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("error");
    QTest::newRow("letters") << QByteArray("abc\r\n") << 13;
    QTest::newRow("an empty line") << QByteArray("\r\n") << 13;
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("beyond 32 bits") << QByteArray("99999999999\r\n") << 6;
  }
  void aDamagedCounterIsAnErrorThatNamesTheFileAndChangesNothing() {
    QFETCH(const QByteArray, file);
    QFETCH(const int, error);
    m_desk->Write(u"/KVInvoiceNo.txt"_s, file);
    const auto before = m_desk->Tree();
    const RuntimeError thrown = CaughtFrom([&] { Load(); });
    QCOMPARE(thrown.Number(), error);
    QCOMPARE(thrown.Subject(), u"/KVInvoiceNo.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(m_desk->Tree(), before);
  }

  void aLostCounterComesBackFromItsBackupWhichTheWriteThenDrops() {
    m_desk->Write(u"/Backup/KVInvoiceNo.txt"_s, "20260042\r\n");
    Load();
    QCOMPARE(m_desk->Invoice.InvoiceNo, 20260042);
    QCOMPARE(m_desk->Read(u"/KVInvoiceNo.txt"_s), "20260042\r\n");
    QVERIFY(!m_desk->Exists(u"/Backup/KVInvoiceNo.txt"_s));
  }

  void aFailedWriteOfTheCounterLeavesTheOldOne() {
    m_desk->Write(u"/KVInvoiceNo.txt"_s, "20250017\r\n");
    const auto before = m_desk->Tree();
    m_desk->Device.Reset();
    m_desk->Device.FailAt(FailingDevice::Call::Write, 1, 28);
    QCOMPARE(ErrorOf([&] { Load(); }), 61);
    QCOMPARE(m_desk->Tree(), before);
  }

  void theCounterFollowsWhateverWasTyped() {
    m_desk->Invoice.txtInvoiceNo = u"500"_s;
    BumpInvoiceNo(m_desk->Invoice, m_desk->Disk);
    QCOMPARE(m_desk->Invoice.InvoiceNo, 501);
    QCOMPARE(m_desk->Read(u"/KVInvoiceNo.txt"_s), "501\r\n");
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, u"500"_s);
  }

  void aNumberBeyond32BitsOverflowsAtTheBump_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("error");
    QTest::newRow("the last that fits") << u"2147483646"_s << 0;
    QTest::newRow("one more") << u"2147483647"_s << 6;
    QTest::newRow("more than ten digits") << u"12345678901"_s << 6;
    QTest::newRow("no number") << u"A12"_s << 13;
    QTest::newRow("empty") << QString() << 13;
  }
  void aNumberBeyond32BitsOverflowsAtTheBump() {
    QFETCH(const QString, typed);
    QFETCH(const int, error);
    m_desk->Invoice.txtInvoiceNo = typed;
    QCOMPARE(ErrorOf([&] { BumpInvoiceNo(m_desk->Invoice, m_desk->Disk); }), error);
    QCOMPARE(m_desk->Exists(u"/KVInvoiceNo.txt"_s), error == 0);
  }

  void reloadPutsTheHeldNumberBackIntoTheBox() {
    m_desk->Invoice.InvoiceNo = 20260009;
    m_desk->Invoice.txtInvoiceNo = u"77"_s;
    ReloadInvoiceNo(m_desk->Invoice);
    QCOMPARE(m_desk->Invoice.txtInvoiceNo, u"20260009"_s);
  }

  void continueTakesANumericBoxOver() {
    m_desk->Invoice.InvoiceNo = 20260009;
    m_desk->Invoice.txtInvoiceNo = u"500"_s;
    TakeOverInvoiceNo(m_desk->Invoice);
    QCOMPARE(m_desk->Invoice.InvoiceNo, 500);
    m_desk->Invoice.txtInvoiceNo = u"A7"_s;
    TakeOverInvoiceNo(m_desk->Invoice);
    QCOMPARE(m_desk->Invoice.InvoiceNo, 500);
  }

  void continueRefusesANumberBeyond32BitsAndWritesNothing() {
    m_desk->Invoice.InvoiceNo = 20260009;
    m_desk->Invoice.txtInvoiceNo = u"2147483648"_s;
    const RuntimeError thrown = CaughtFrom([&] { TakeOverInvoiceNo(m_desk->Invoice); });
    QCOMPARE(thrown.Number(), 6);
    QCOMPARE(thrown.Subject(), u"txtInvoiceNo"_s);
    QCOMPARE(m_desk->Invoice.InvoiceNo, 20260009);
    QVERIFY(m_desk->Tree().isEmpty());
  }

  void anEmptyNumberIsRefusedThenTheCreationViewThenTheFocus() {
    QStringList order;
    m_desk->Boxes.OnBox = [&] { order << u"box"_s; };
    const bool ok = CheckInvoiceNo(m_desk->Invoice, m_desk->Boxes, [&] {
      order << u"view"_s;
      QVERIFY(m_desk->Invoice.Controls.Focus.isEmpty());
    });
    QVERIFY(!ok);
    QCOMPARE(order, QStringList({u"box"_s, u"view"_s}));
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u": You have not entered an Invoice Number"_s));
    QCOMPARE(m_desk->Focus(), u"txtInvoiceNo"_s);
  }

  void aNumberThatWouldLeaveItsFolderIsRefusedWithAMessage() {
    m_desk->Invoice.txtInvoiceNo = u"../7"_s;
    QVERIFY(!CheckInvoiceNo(m_desk->Invoice, m_desk->Boxes));
    QCOMPARE(m_desk->Boxes.Take().size(), 1);
    QCOMPARE(m_desk->Focus(), u"txtInvoiceNo"_s);
  }

  void aNumberThatIsThereIsAcceptedSilently() {
    m_desk->Invoice.txtInvoiceNo = u"20260001"_s;
    QVERIFY(CheckInvoiceNo(m_desk->Invoice, m_desk->Boxes, [] { QFAIL("no view is changed"); }));
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QVERIFY(m_desk->Focus().isEmpty());
  }

  void leavingTheBoxEmptyBringsTheFocusBackWithAMessage() {
    LeaveInvoiceNo(m_desk->Invoice, m_desk->Boxes);
    QCOMPARE(m_desk->Boxes.Take(), QStringList(u": Enter an Invoice Number"_s));
    QCOMPARE(m_desk->Focus(), u"txtInvoiceNo"_s);
    m_desk->Invoice.txtInvoiceNo = u"1"_s;
    LeaveInvoiceNo(m_desk->Invoice, m_desk->Boxes);
    QVERIFY(m_desk->Boxes.Said.isEmpty());
    QVERIFY(m_desk->Focus().isEmpty());
  }
};

QTEST_GUILESS_MAIN(InvoiceNumberTest)
#include "tst_invoiceNumber.moc"
