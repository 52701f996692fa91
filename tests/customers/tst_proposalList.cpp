// What is read of the proposals' files, and what a file must hold.

#include "customers/ProposalFiles.h"
#include "customers/ProposalList.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class Proposals : public QObject {
  Q_OBJECT

  std::optional<DataFolder> m_folder;
  std::optional<ProposalList> m_list;

  void Put(const QString& file, const QByteArray& content) const {
    m_folder->Put(u"/KarvexProposals/"_s + file, content);
  }
  bool Load() { return LoadProposals(*m_list, m_folder->Disk); }
  RuntimeError ErrorOfLoad() {
    return CaughtFrom([this] { Load(); });
  }
  QStringList Row(int row) const {
    QStringList cells;
    for (int column = 0; column < m_list->fgProposals.Cols(); ++column) cells << m_list->fgProposals.Text(row, column);
    return cells;
  }
  QStringList Numbers() const {
    QStringList numbers;
    for (const Proposal& proposal : m_list->Proposals) numbers << proposal.ProposalNo;
    return numbers;
  }
  /// A proposal of that number and amount with eleven fields, on one line.
  static QByteArray Eleven(const QByteArray& number, const QByteArray& amount = "5") {
    return number + "," + amount + ",3/2/2026,7,Smith,a,b,c,d,e,f";
  }

 private Q_SLOTS:
  void init() {
    m_folder.emplace();
    m_list.emplace();
    QVERIFY(QDir(m_folder->Path({})).mkpath(u"KarvexProposals/ProposalBody"_s));
  }

  void theGridHasItsHeadings() {
    QCOMPARE(Row(0), QStringList({u"Proposal No"_s, u"Created on"_s, u"Customer Information"_s, u"Amount"_s}));
  }

  void aMarkedNumberHasElevenFields() {
    Put(u"a.txt"_s, MarkedProposal());
    QVERIFY(Load());
    QCOMPARE(m_list->Count(), 1);
    QCOMPARE(m_list->fgProposals.Rows(), 2);
    QCOMPARE(m_list->fgProposals.Row(), 1);
    QCOMPARE(Row(1), QStringList({u"FP-1001"_s, u"3/2/2026"_s, u"Bay Farm, Inc."_s, u"$1,234.50"_s}));
    const Proposal& proposal = *m_list->Current();
    QCOMPARE(proposal.ProposalNo, u"FP-1001"_s);
    QCOMPARE(proposal.ProposalAmount, u"1234.5"_s);
    QCOMPARE(proposal.ProposalDate, u"3/2/2026"_s);
    QCOMPARE(proposal.ProposalAcct, u"2001"_s);
    QCOMPARE(proposal.ProposalName, u"Bay Farm, Inc."_s);
    QCOMPARE(proposal.ProposalAddr1, u"1 Dock Rd"_s);
    QCOMPARE(proposal.ProposalAddr2, u"Suite 4, rear"_s);
    QCOMPARE(proposal.ProposalCity, u"Salem"_s);
    QCOMPARE(proposal.ProposalState, u"MA"_s);
    QCOMPARE(proposal.ProposalPostal, u"01970"_s);
    QCOMPARE(proposal.ProposalPhone, u"978-555-0100"_s);
  }

  void anUnmarkedNumberHasEighteenFieldsOfWhichSevenAreDropped() {
    Put(u"a.txt"_s, PlainProposal());
    QVERIFY(Load());
    QCOMPARE(Row(1), QStringList({u"1002"_s, u"3/5/2026"_s, u"Hill, Top & Sons"_s, u"$80.00"_s}));
    const Proposal& proposal = *m_list->Current();
    QCOMPARE(proposal.ProposalAcct, u"2002"_s);
    QCOMPARE(proposal.ProposalAddr1, u"12 Ridge Road"_s);
    QCOMPARE(proposal.ProposalAddr2, QString());
    QCOMPARE(proposal.ProposalPhone, u"781-555-0111"_s);
  }

  void howManyFieldsMustBeThere_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("error");
    QTest::newRow("marked, eleven") << Eleven("FP1") << 0;
    QTest::newRow("the mark anywhere") << Eleven("07-FP") << 0;
    QTest::newRow("marked, ten") << QByteArray("FP1,5,3/2/2026,7,Smith,a,b,c,d,e") << 62;
    QTest::newRow("unmarked, eleven") << Eleven("1001") << 62;
    QTest::newRow("the mark in small letters is none") << Eleven("fp1") << 62;
    QTest::newRow("the mark in another field is none") << QByteArray("1,5,FP,7,FP,a,b,c,d,e,f") << 62;
    QTest::newRow("unmarked, seventeen") << Eleven("1001") + ",1,2,3,4,5,6" << 62;
    QTest::newRow("unmarked, eighteen") << Eleven("1001") + ",1,2,3,4,5,6,7" << 0;
    QTest::newRow("nothing") << QByteArray() << 62;
    QTest::newRow("a quote that never ends") << QByteArray("\"FP1,5,3/2/2026,7,Smith,a,b,c,d,e,f\r\n\r\n") << 62;
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << 62;
  }
  void howManyFieldsMustBeThere() {
    QFETCH(const QByteArray, content);
    QFETCH(const int, error);
    Put(u"a.txt"_s, content);
    const RuntimeError thrown = ErrorOfLoad();
    QCOMPARE(thrown.Number(), error);
    if (error == 0) return;
    QCOMPARE(thrown.Subject(), u"/KarvexProposals/a.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
  }

  void linesMeanNothing_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("one line, CR LF") << QByteArray("FP1,5,3/2/2026,7,\"A, B\",c,d,e,f,g,h\r\n");
    QTest::newRow("one line, LF") << QByteArray("FP1,5,3/2/2026,7,\"A, B\",c,d,e,f,g,h\n");
    QTest::newRow("one line without an end") << QByteArray("FP1,5,3/2/2026,7,\"A, B\",c,d,e,f,g,h");
    QTest::newRow("a line each, CR LF") << QByteArray(
        "FP1\r\n5\r\n3/2/2026\r\n7\r\n\"A, B\"\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\n");
    QTest::newRow("a line each, LF") << QByteArray("\"FP1\"\n5\n\"3/2/2026\"\n7\n\"A, B\"\nc\nd\ne\nf\ng\nh\n");
    QTest::newRow("mixed, blanks before the fields")
        << QByteArray("  \"FP1\",  5\r\n 3/2/2026, 7\n  \"A, B\", c\r\nd,e\r\nf,g,h\r\nthe rest");
  }
  void linesMeanNothing() {
    QFETCH(const QByteArray, content);
    Put(u"a.txt"_s, content);
    QVERIFY(Load());
    QCOMPARE(Row(1), QStringList({u"FP1"_s, u"3/2/2026"_s, u"A, B"_s, u"$5.00"_s}));
    QCOMPARE(m_list->Current()->ProposalAcct, u"7"_s);
    QCOMPARE(m_list->Current()->ProposalAddr1, u"c"_s);
    QCOMPARE(m_list->Current()->ProposalPhone, u"h"_s);
  }

  void lettersBeyondTheEnglishOnesAreRead() {
    Put(u"a.txt"_s, "FP1,5,3/2/2026,7,Caf\xE9 M\xFCller,a,b,c,d,e,f");
    QVERIFY(Load());
    QCOMPARE(m_list->Current()->ProposalName, u"Café Müller"_s);
  }

  void theAmountIsShownAsCurrency_data() {
    QTest::addColumn<QByteArray>("amount");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a whole number") << QByteArray("80") << u"$80.00"_s;
    QTest::newRow("cents are rounded") << QByteArray("80.005") << u"$80.01"_s;
    QTest::newRow("currency text") << QByteArray("\"$1,234.50\"") << u"$1,234.50"_s;
    QTest::newRow("negative") << QByteArray("-3") << u"($3.00)"_s;
    QTest::newRow("zero") << QByteArray("0") << u"$0.00"_s;
    QTest::newRow("blanks around") << QByteArray("\" 7 \"") << u"$7.00"_s;
  }
  void theAmountIsShownAsCurrency() {
    QFETCH(const QByteArray, amount);
    QFETCH(const QString, shown);
    Put(u"a.txt"_s, Eleven("FP1", amount));
    QVERIFY(Load());
    QCOMPARE(Row(1).at(3), shown);
  }

  void anAmountThatIsNoneIsAnErrorThatNamesTheFile_data() {
    QTest::addColumn<QByteArray>("amount");
    QTest::addColumn<int>("error");
    QTest::newRow("a word") << QByteArray("tbd") << 13;
    QTest::newRow("a number and a word") << QByteArray("80 or so") << 13;
    QTest::newRow("empty") << QByteArray() << 13;
    QTest::newRow("too large") << QByteArray("1E999") << 6;
  }
  void anAmountThatIsNoneIsAnErrorThatNamesTheFile() {
    QFETCH(const QByteArray, amount);
    QFETCH(const int, error);
    Put(u"a.txt"_s, Eleven("FP1"));
    Put(u"b.txt"_s, Eleven("FP2", amount));
    const RuntimeError thrown = ErrorOfLoad();
    QCOMPARE(thrown.Number(), error);
    QCOMPARE(thrown.Subject(), u"/KarvexProposals/b.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
  }

  void theFieldsAreReadBeforeTheAmountIs() {
    Put(u"a.txt"_s, Eleven("1001", "tbd"));
    QCOMPARE(ErrorOfLoad().Number(), 62);
  }

  void aFileThatCannotBeOpenedIsNamed() {
    Put(u"a.txt"_s, Eleven("FP1"));
    m_folder->Device.FailAt(FailingDevice::Call::Open, 1, EACCES);
    const RuntimeError thrown = ErrorOfLoad();
    QCOMPARE(thrown.Number(), 70);
    QVERIFY2(thrown.Subject().endsWith(u"/KarvexProposals/a.txt"), qPrintable(thrown.Subject()));
  }

  void theFilesComeInTheOrderOfTheirNamesWhateverTheyHold() {
    Put(u"b.txt"_s, Eleven("FP1"));
    Put(u"C.TXT"_s, Eleven("FP0"));
    Put(u"a10.txt"_s, Eleven("FP9"));
    Put(u"a2.txt"_s, Eleven("FP3"));
    QVERIFY(Load());
    QCOMPARE(Numbers(), QStringList({u"FP9"_s, u"FP3"_s, u"FP1"_s, u"FP0"_s}));
    for (int row = 1; row <= 4; ++row) QCOMPARE(Row(row).at(0), Numbers().at(row - 1));
  }

  void onlyTextFilesOfTheFolderItselfAreProposals() {
    Put(u"a.doc"_s, Eleven("FP1"));
    Put(u"ProposalBody/a.txt"_s, Eleven("FP2"));
    QVERIFY(!Load());
    Put(u"b.txt"_s, Eleven("FP3"));
    QVERIFY(Load());
    QCOMPARE(Numbers(), QStringList{u"FP3"_s});
  }

  void withoutAFileTheListIsEmptyAgain() {
    QVERIFY(!Load());
    QVERIFY(m_list->Current() == nullptr);
    Put(u"a.txt"_s, Eleven("FP1"));
    Put(u"b.txt"_s, Eleven("FP2"));
    QVERIFY(Load());
    QVERIFY(QFile::remove(m_folder->Path(u"/KarvexProposals/a.txt"_s)));
    QVERIFY(QFile::remove(m_folder->Path(u"/KarvexProposals/b.txt"_s)));
    QVERIFY(!Load());
    QCOMPARE(m_list->Count(), 0);
    QCOMPARE(m_list->fgProposals.Rows(), 1);
    QVERIFY(m_list->Current() == nullptr);
  }

  void aShorterListDropsTheRowsBefore() {
    Put(u"a.txt"_s, Eleven("FP1"));
    Put(u"b.txt"_s, Eleven("FP2"));
    QVERIFY(Load());
    m_list->fgProposals.SetRow(2);
    QVERIFY(QFile::remove(m_folder->Path(u"/KarvexProposals/a.txt"_s)));
    QVERIFY(Load());
    QCOMPARE(m_list->fgProposals.Rows(), 2);
    QCOMPARE(m_list->Current()->ProposalNo, u"FP2"_s);
  }
};

QTEST_GUILESS_MAIN(Proposals)
#include "tst_proposalList.moc"
