// The list of saved partial invoices.
#include <QtTest>

#include "records/PartialList.h"
#include "records/PartialPurge.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

class PartialListTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;
  std::optional<PartialList> m_list;

  void Save(const QString& file, const QByteArray& content) {
    m_desk->Write(u"/KarvexInvoicer/IncompleteInvoices/"_s + file, content);
  }
  QStringList Row(int row) const {
    QStringList cells;
    for (int column = 0; column < m_list->fgIncomplete.Cols(); ++column) {
      cells << m_list->fgIncomplete.Text(row, column);
    }
    return cells;
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    m_list.emplace();
  }

  void theGridHasItsHeadings() {
    QCOMPARE(Row(0), QStringList({u"Invoice No"_s, u"Account Number"_s, u"Account Name"_s, u"Last Modified Date"_s}));
  }

  void eachFileIsARowOfItsFirstFourLines() {
    Save(u"20260002.txt"_s, "20260002\r\n1002\r\nHill, Farm\r\n3/6/2026\r\n\"x\"\r\n");
    Save(u"20260001.txt"_s, "20260001\r\n1001\r\n\"Bay\" Farm\r\n3/5/2026\r\n");
    Save(u"notes.doc"_s, "no invoice");
    QVERIFY(LoadPartialList(*m_list, m_desk->Disk));
    QCOMPARE(m_list->Count(), 2);
    QCOMPARE(m_list->FileNames, QStringList({u"20260001.txt"_s, u"20260002.txt"_s}));
    QCOMPARE(m_list->fgIncomplete.Rows(), 3);
    QCOMPARE(m_list->fgIncomplete.Row(), 1);
    QCOMPARE(Row(1), QStringList({u"20260001"_s, u"1001"_s, u"\"Bay\" Farm"_s, u"3/5/2026"_s}));
    QCOMPARE(Row(2), QStringList({u"20260002"_s, u"1002"_s, u"Hill, Farm"_s, u"3/6/2026"_s}));
  }

  void onlyTheFirstFourLinesAreRead() {
    Save(u"20260001.txt"_s, "20260001\r\n1001\r\nBay\r\n3/5/2026\r\n" + QByteArray(50000, 'x'));
    m_desk->Device.Reset();
    QVERIFY(LoadPartialList(*m_list, m_desk->Disk));
    QCOMPARE(Row(1), QStringList({u"20260001"_s, u"1001"_s, u"Bay"_s, u"3/5/2026"_s}));
    QVERIFY(m_desk->Device.BytesRead() < 1000);
  }

  void theSelectedRowNamesTheInvoiceTrimmed() {
    QVERIFY(m_list->SelectedInvoiceNo().isEmpty());
    Save(u"a.txt"_s, " 7 \r\n\r\n\r\n\r\n");
    LoadPartialList(*m_list, m_desk->Disk);
    QCOMPARE(m_list->SelectedInvoiceNo(), u"7"_s);
  }

  void withoutASelectedRowNothingIsPurged() {
    // The heading of the first column could name a file as well.
    Save(u"Invoice No.txt"_s, "1\r\n1001\r\nBay\r\n3/5/2026\r\n");
    LoadPartialList(*m_list, m_desk->Disk);
    m_list->fgIncomplete.SetRow(0);
    PurgeSelectedPartial(*m_list, m_desk->Disk);
    QVERIFY(LoadPartialList(*m_list, m_desk->Disk));
    QCOMPARE(m_list->FileNames, QStringList{u"Invoice No.txt"_s});
  }

  void withoutFilesTheListIsEmptyAgain() {
    Save(u"20260001.txt"_s, "20260001\r\n1001\r\nBay\r\n3/5/2026\r\n");
    Save(u"20260002.txt"_s, "20260002\r\n1001\r\nBay\r\n3/5/2026\r\n");
    LoadPartialList(*m_list, m_desk->Disk);
    QVERIFY(QFile::remove(m_desk->Root.path() + u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s));
    QVERIFY(QFile::remove(m_desk->Root.path() + u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s));
    QVERIFY(!LoadPartialList(*m_list, m_desk->Disk));
    QCOMPARE(m_list->Count(), 0);
    QCOMPARE(m_list->fgIncomplete.Rows(), 2);
    QCOMPARE(m_list->fgIncomplete.Row(), 0);
    QCOMPARE(Row(1), QStringList({u""_s, u""_s, u""_s, u""_s}));
    QVERIFY(m_list->SelectedInvoiceNo().isEmpty());
  }

  void aFileCutShortIsAReadErrorThatNamesIt_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("three lines") << QByteArray("20260001\r\n1001\r\nBay\r\n");
  }
  void aFileCutShortIsAReadErrorThatNamesIt() {
    QFETCH(const QByteArray, content);
    Save(u"20260001.txt"_s, content);
    const RuntimeError thrown = CaughtFrom([&] { LoadPartialList(*m_list, m_desk->Disk); });
    QCOMPARE(thrown.Number(), 62);
    QCOMPARE(thrown.Subject(), u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::FileContent);
  }
};

QTEST_GUILESS_MAIN(PartialListTest)
#include "tst_partialList.moc"
