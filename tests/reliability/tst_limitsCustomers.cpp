// The customer file at and around its limit: 0, 1, 32,765, 32,766, 32,767 and 32,768 customers.

#include "customers/CustomerRecords.h"
#include "reliability/MemoryDisk.h"
#include "support/CatalogueScreen.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

const QString File = u"/CustomerData.txt"_s;
constexpr int Length = 328;

/// Two customers, and blank records behind them.
QByteArray Customers(int count) {
  if (count == 0) return {};
  const QByteArray first = BusinessRecord("1", "The First");
  if (count == 1) return first;
  return first + BusinessRecord("2", "The Second") + QByteArray(Length * (count - 2), ' ');
}

ScreenDriver Open(ProgramFixture& program, int count) {
  program.Tree.Write(File, Customers(count));
  program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("Repair"));
  if (!program.StartAtMenu()) QTest::qFail("the menu doesn't stand", __FILE__, __LINE__);
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  return ScreenDriver(u"frmNewCustomer"_s);
}

void Add(const ScreenDriver& screen) {
  screen.Trigger(u"mnuAdd"_s);
  // Where there is none yet, the first one begins as a person.
  if (!screen.IsVisible(u"txtCustomer_1"_s)) screen.Click(u"cmdAcctType"_s);
  screen.Fill(u"txtCustomer_0"_s, u"99999"_s);
  screen.Fill(u"txtCustomer_1"_s, u"The New"_s);
  screen.Click(u"cmdNav_0"_s);
}

}  // namespace

class LimitsCustomers : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aCustomerIsAddedUpToTheLimit_data();
  void aCustomerIsAddedUpToTheLimit();
  void aFullFileRefusesTheNextOne();
  void aFullFileSavesAndDeletes();
  void theOnlyCustomerIsDeleted();
  void aFileBeyondTheLimitEndsTheStartAndStays();
};

void LimitsCustomers::aCustomerIsAddedUpToTheLimit_data() {
  QTest::addColumn<int>("count");
  for (const int count : {0, 1, 32765, 32766}) QTest::addRow("%d", count) << count;
}

void LimitsCustomers::aCustomerIsAddedUpToTheLimit() {
  QFETCH(const int, count);
  ProgramFixture program;
  const ScreenDriver screen = Open(program, count);
  Add(screen);
  QByteArray after = program.Tree.Bytes(File);
  QCOMPARE(after.size(), Length * (count + 1));
  QVERIFY(after.last(Length).startsWith("99999               The New "));
  QVERIFY(after.chopped(Length) == Customers(count));
  // All of them are there at the next start.
  QVERIFY(program.StartAtMenu());
  ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
  ScreenDriver(u"frmNewCustomer"_s).Click(u"cmdNav_3"_s);
  QCOMPARE(ScreenDriver(u"frmNewCustomer"_s).Text(u"txtCustomer_1"_s), u"The New"_s);
}

void LimitsCustomers::aFullFileRefusesTheNextOne() {
  ProgramFixture program;
  const ScreenDriver screen = Open(program, 32767);
  program.Answers.Ok(program.Tree.Path(File) +
                     u": The customer file is full: it holds 32,767 customers. (error 6)\n\n"
                     "Delete one first. Nothing was lost."_s);
  screen.Trigger(u"mnuAdd"_s);
  QVERIFY(program.Tree.Bytes(File) == Customers(32767));
  QVERIFY(!program.Running().HasEnded());
}

void LimitsCustomers::aFullFileSavesAndDeletes() {
  ProgramFixture program;
  const ScreenDriver screen = Open(program, 32767);
  screen.Fill(u"txtCustomer_1"_s, u"Changed  "_s);
  screen.Click(u"cmdNav_0"_s);
  QByteArray expected = Customers(32767);
  expected.replace(20, 9, "Changed  ");
  QVERIFY(program.Tree.Bytes(File) == expected);
  program.Answers.Yes();
  screen.Trigger(u"mnuDelete"_s);
  QVERIFY(program.Tree.Bytes(File) == expected.mid(Length));
  // There is room for one again.
  Add(screen);
  QCOMPARE(program.Tree.Size(File), Length * 32767);
}

void LimitsCustomers::theOnlyCustomerIsDeleted() {
  ProgramFixture program;
  const ScreenDriver screen = Open(program, 1);
  program.Answers.Yes();
  screen.Trigger(u"mnuDelete"_s);
  QCOMPARE(program.Tree.Bytes(File), "");
  Add(screen);
  QCOMPARE(program.Tree.Size(File), Length);
}

void LimitsCustomers::aFileBeyondTheLimitEndsTheStartAndStays() {
  ProgramFixture program;
  program.Tree.Write(File, Customers(32768));
  program.Tree.Write(u"/Backup"_s + File, Customers(32767));
  const auto before = program.Tree.Everything();
  program.Answers.Ok();
  QVERIFY(!program.Start());
  const QString text = program.Answers.Last().Text;
  QVERIFY2(text.startsWith(program.Tree.Path(File) + u": "_s) && text.contains(u"(error 6)"_s), qPrintable(text));
  auto after = program.Tree.Everything();
  QVERIFY(after == before);
  // The copy put in its place, as the box advises, the program starts.
  program.Tree.Remove(File);
  QVERIFY(program.StartAtMenu());
  QVERIFY(program.Tree.Bytes(File) == Customers(32767));
}

QTEST_MAIN(LimitsCustomers)
#include "tst_limitsCustomers.moc"
