// The rules of the completed invoices: the sort key, the list and what it reads, the purge, and the stop of both.
#include <QtTest>

#include "records/CompletedInvoice.h"
#include "records/CompletedInvoices.h"
#include "support/CompletedImages.h"
#include "support/ErrorOf.h"
#include "support/InvoiceFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// A user who stops the work at a step, and what he was told until then.
struct Stopping {
  int StopAt = 0;
  QStringList Steps;

  Progress Teller() {
    return [this](qint64 done, qint64 total) {
      Steps.append(u"%1 of %2"_s.arg(done).arg(total));
      return done != StopAt;
    };
  }
};

}  // namespace

class CompletedInvoicesTest : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;
  std::optional<CompletedInvoices> m_list;
  Stopping m_user;

  void Save(const QString& file, const QByteArray& content) { m_desk->Write(u"/CompletedInvoices/"_s + file, content); }
  CompletedLoad Load() { return LoadCompletedInvoices(*m_list, m_desk->Disk, m_user.Teller()); }
  QStringList Column(int col) const {
    QStringList cells;
    for (int row = 1; row < m_list->fgReceivables.Rows(); ++row) cells << m_list->fgReceivables.Text(row, col);
    return cells;
  }

 private Q_SLOTS:
  void init() {
    m_desk.emplace();
    m_list.emplace();
    m_user = {};
  }

  void theSortKeyIsTheYearAndTheDayOfTheYearPlusAHundred_data() {
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("key");
    QTest::newRow("5 January 2001") << QDate(2001, 1, 5) << u"2001105"_s;
    QTest::newRow("31 December 2001") << QDate(2001, 12, 31) << u"2001465"_s;
    QTest::newRow("1 January") << QDate(2026, 1, 1) << u"2026101"_s;
    QTest::newRow("29 February") << QDate(2024, 2, 29) << u"2024160"_s;
    QTest::newRow("31 December of a leap year") << QDate(2024, 12, 31) << u"2024466"_s;
    QTest::newRow("an early year") << QDate(987, 1, 1) << u"0987101"_s;
  }
  void theSortKeyIsTheYearAndTheDayOfTheYearPlusAHundred() {
    QFETCH(const QDate, date);
    QTEST(SortKeyOf(date), "key");
  }

  void onlyTheFirstFiveLinesAreRead() {
    Save(u"1.txt"_s, "1\r\n1001\r\nBay\r\n3/7/2026\r\n$1.00\r\n" + QByteArray(50000, 'x'));
    Save(u"2.txt"_s, Image("2", "Acme", "3/6/2026", "$2.00"));
    Save(u"notes.doc"_s, "no invoice");
    m_desk->Device.Reset();
    QCOMPARE(Load(), CompletedLoad::Loaded);
    QCOMPARE(Column(0), (QStringList{u"1"_s, u"2"_s}));
    QVERIFY(m_desk->Device.BytesRead() < 3000);
    QCOMPARE(m_list->fgReceivables.Row(), 1);
    QCOMPARE(m_list->fgReceivables.Col(), 0);
  }

  void equalNumbersStayInTheOrderOfTheFiles() {
    Save(u"c.txt"_s, "7\r\n\r\nthird\r\n3/7/2026\r\n\r\n");
    Save(u"a.txt"_s, " 7 \r\n\r\nfirst\r\n3/7/2026\r\n\r\n");
    Save(u"b.txt"_s, "7.0\r\n\r\nsecond\r\n3/7/2026\r\n\r\n");
    Save(u"d.txt"_s, "6\r\n\r\nleast\r\n3/7/2026\r\n\r\n");
    Load();
    QCOMPARE(Column(2), (QStringList{u"least"_s, u"first"_s, u"second"_s, u"third"_s}));
    // The cells are as the files have them; what names the image is trimmed.
    QCOMPARE(m_list->fgReceivables.Text(2, 0), u" 7 "_s);
    QCOMPARE(m_list->InvoiceNoOf(2), u"7"_s);
  }

  void withoutAnImageTheListStays() {
    Save(u"1.txt"_s, Image("1", "Bay", "3/7/2026", "$1.00"));
    Load();
    QVERIFY(QFile::remove(m_desk->Root.path() + u"/CompletedInvoices/1.txt"_s));
    QCOMPARE(Load(), CompletedLoad::NoInvoices);
    QCOMPARE(Column(0), QStringList{u"1"_s});
  }

  void theProgressCountsTheImages() {
    for (int i = 1; i <= 3; ++i) Save(u"%1.txt"_s.arg(i), Image(QByteArray::number(i), "Bay", "3/7/2026", "$1.00"));
    Load();
    QCOMPARE(m_user.Steps, (QStringList{u"1 of 3"_s, u"2 of 3"_s, u"3 of 3"_s}));
  }

  void stoppedTheListIsAsBefore() {
    Save(u"1.txt"_s, Image("1", "Bay", "3/7/2026", "$1.00"));
    Load();
    Save(u"2.txt"_s, Image("2", "Hill", "3/7/2026", "$1.00"));
    m_user.StopAt = 1;
    QCOMPARE(Load(), CompletedLoad::Stopped);
    QCOMPARE(Column(0), QStringList{u"1"_s});
    m_user.StopAt = 0;
    Save(u"3.txt"_s, "3\r\n");
    const RuntimeError thrown = CaughtFrom([&] { Load(); });
    QCOMPARE(thrown.Number(), 62);
    QCOMPARE(thrown.Subject(), u"/CompletedInvoices/3.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
    QCOMPARE(Column(0), QStringList{u"1"_s});
  }

  void aPurgeThatIsStoppedKeepsTheRest() {
    for (int i = 1; i <= 3; ++i) Save(u"%1.txt"_s.arg(i), Image(QByteArray::number(i), "Bay", "3/6/2026", "$1.00"));
    Load();
    m_user = {};
    m_user.StopAt = 2;
    PurgeCompletedInvoices(*m_list, m_desk->Disk, QDate(2026, 3, 7), m_user.Teller());
    QCOMPARE(m_user.Steps, (QStringList{u"1 of 3"_s, u"2 of 3"_s}));
    QVERIFY(!m_desk->Exists(u"/CompletedInvoices/2.txt"_s));
    QVERIFY(m_desk->Exists(u"/CompletedInvoices/3.txt"_s));
    m_user.StopAt = 0;
    PurgeCompletedInvoices(*m_list, m_desk->Disk, QDate(2026, 3, 7), m_user.Teller());
    QVERIFY(!m_desk->Exists(u"/CompletedInvoices/3.txt"_s));
  }

  void anImageThatCannotBeReadLeavesWhatWasShown() {
    Save(u"1.txt"_s, Image("1", "Bay", "3/7/2026", "$1.00"));
    CompletedInvoice shown;
    QVERIFY(OpenCompletedInvoice(shown, m_desk->Disk, u"1"_s, u"3/7/2026"_s));
    QCOMPARE(shown.fgItems.Rows(), 3);
    Save(u"2.txt"_s, Image("2", "Hill", "3/7/2026", "$1.00").chopped(60));
    const RuntimeError thrown = CaughtFrom([&] { OpenCompletedInvoice(shown, m_desk->Disk, u"2"_s, u"3/7/2026"_s); });
    QVERIFY(thrown.Number() != 0);
    QCOMPARE(thrown.Subject(), u"/CompletedInvoices/2.txt"_s);
    QCOMPARE(thrown.From(), RuntimeError::Origin::Event);
    QCOMPARE(shown.InvoiceNo, u"1"_s);
    QVERIFY(!OpenCompletedInvoice(shown, m_desk->Disk, u"4"_s, u"3/7/2026"_s));
    QVERIFY(!OpenCompletedInvoice(shown, m_desk->Disk, QString(), u"3/7/2026"_s));
    QCOMPARE(shown.InvoiceNo, u"1"_s);
  }

  void anImageOfMoreLinesThanTheInvoiceScreenHoldsIsShown() {
    const QByteArray head = Image("1", "Bay", "3/7/2026", "$1.00");
    const qsizetype control = head.indexOf("Ann\r\n") + 5;
    QByteArray many = head.first(control) + "120\r\n";
    for (int line = 1; line <= 120; ++line)
      many += QByteArray::number(line) + "\r\nBolt\r\n\r\n$1.00\r\n$1.00\r\nTrue\r\n";
    Save(u"1.txt"_s, many + head.sliced(head.lastIndexOf("\"$1,024.00\"")));
    CompletedInvoice shown;
    QVERIFY(OpenCompletedInvoice(shown, m_desk->Disk, u"1"_s, u"3/7/2026"_s));
    QCOMPARE(shown.fgItems.Rows(), 121);
    QCOMPARE(shown.fgItems.Text(120, 0), u"120"_s);
    QCOMPARE(PageOf(shown, true).LineCount, 120);
    QCOMPARE(shown.Amounts.front(), u"$1,024.00"_s);
  }
};

QTEST_GUILESS_MAIN(CompletedInvoicesTest)
#include "tst_completedInvoices.moc"
