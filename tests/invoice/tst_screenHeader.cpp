// The head of an invoice through its screen: number, dates, reference, terms, carrier, memo, ship-to.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Counter = u"/KVInvoiceNo.txt"_s;

QDateEdit* Date(const InvoiceBench& bench, const QString& name = u"DTPicker1"_s) {
  return bench.On().Control<QDateEdit>(name);
}

/// Types a date over the one that stands in the box.
void PickDate(const InvoiceBench& bench, const QString& text) {
  bench.On().Click(u"txtInvoiceNo"_s);
  Date(bench)->setFocus(Qt::TabFocusReason);
  bench.On().Type(text);
  bench.On().PressKey(Qt::Key_Return);
}

}  // namespace

class ScreenHeader : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theCounterIsOfferedAndWrittenBack_data();
  void theCounterIsOfferedAndWrittenBack();
  void aCounterThatIsNoNumberIsTheFilesError();
  void aNumberBeyond32BitsIsRefusedAtContinueAndNothingIsWritten();
  void reloadPutsTheNextNumberBack();
  void continueTakesTheTypedNumberOver();
  void theNumberTakesDigitsAndOnePointOnly();
  void aPasteIntoTheNumberIsFilteredWithoutAMessage();
  void aPastedNumberKeepsItsPointAsATypedOneDoes();
  void leavingAnEmptyNumberSaysSoAndComesBack();
  void backspaceIsSwallowedInTheNumber();
  void aLaterDateBeepsAndIsForTheNextServiceOnly();
  void aPickedDateGoesToTheSelectedLineWithAQuantity();
  void aServiceLineKeepsItsDate();
  void aShipDateIsHeldAsItIsPickedOrTyped();
  void clearLineDateBlanksTheDateOfTheCurrentLine();
  void leavingAnEmptyReferenceFillsIt();
  void theShipToAddressIsCopiedAndCleared();
  void theShipToBoxesRefuseADoubleQuote();
  void withoutDefaultTermsTheFirstStand();
  void theDefaultTermsSelectTheirEntry();
  void defaultTermsThatTheListLacksAreShown();
  void pickedTermsSetTheDiscount_data();
  void pickedTermsSetTheDiscount();
  void theTermsAreSavedAsOnePlainLine();
  void typedTermsAreSavedAsTheyWereTyped();
  void theCarrierComesFromItsFileAndIsSaved();
  void aTypedCarrierIsKept();
  void withoutAMemoFileTheMemoIsEmptyAndItsTickHidden();
  void aMemoFileIsShownLineByLineAndTicked();
  void openingTheMemoWithoutATickDisablesReloadAndSave();
  void aKeyInTheMemoEnablesSave();
  void newMemoEmptiesItAndGoesToIt();
  void saveMemoWritesTheFileAndTicks();
  void reloadMemoReadsTheFileAgain();
  void closeMemoHidesTheFrame();
  void defaultsThatOnlyTheBackupHoldsComeBack();
};

void ScreenHeader::theCounterIsOfferedAndWrittenBack_data() {
  QTest::addColumn<QByteArray>("file");
  QTest::addColumn<QString>("offered");
  QTest::addColumn<QByteArray>("written");
  QTest::newRow("no file") << QByteArray() << u"20260001"_s << QByteArray("20260001\r\n");
  QTest::newRow("zero") << QByteArray("0\r\n") << u"20260000"_s << QByteArray("20260000\r\n");
  QTest::newRow("last year") << QByteArray("20250017\r\n") << u"20260001"_s << QByteArray("20260001\r\n");
  QTest::newRow("this year") << QByteArray("20260017\r\n") << u"20260017"_s << QByteArray("20260017\r\n");
  QTest::newRow("a later year") << QByteArray("20270003\r\n") << u"20270003"_s << QByteArray("20270003\r\n");
  QTest::newRow("a short number, by its leading digits") << QByteArray("500\r\n") << u"500"_s << QByteArray("500\r\n");
}

void ScreenHeader::theCounterIsOfferedAndWrittenBack() {
  QFETCH(QByteArray, file);
  QFETCH(QString, offered);
  QFETCH(QByteArray, written);
  InvoiceBench bench;
  if (!file.isNull()) bench.Tree.Write(Counter, file);
  bench.Tree.Write(u"/Backup/unrelated.txt"_s, "x");
  bench.Open();
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), offered);
  QCOMPARE(bench.Tree.Bytes(Counter), written);
}

void ScreenHeader::aCounterThatIsNoNumberIsTheFilesError() {
  InvoiceBench bench;
  bench.Tree.Write(Counter, "twelve\r\n");
  bool thrown = false;
  try {
    bench.Open();
  } catch (const RuntimeError& error) {
    thrown = true;
    QCOMPARE(error.Number(), 13);
    QCOMPARE(error.Subject(), Counter);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
  }
  QVERIFY(thrown);
  QCOMPARE(bench.Tree.Bytes(Counter), "twelve\r\n");
}

void ScreenHeader::aNumberBeyond32BitsIsRefusedAtContinueAndNothingIsWritten() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"2147483648"_s);
  const auto before = bench.Tree.Everything();
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{6});
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
  QCOMPARE(bench.Tree.Everything(), before);
  bench.On().Fill(u"txtInvoiceNo"_s, u"2147483647"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
}

void ScreenHeader::reloadPutsTheNextNumberBack() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"77"_s);
  bench.On().Click(u"cmdInvoice_2"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"20260001"_s);
}

void ScreenHeader::continueTakesTheTypedNumberOver() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"500"_s);
  bench.On().Click(u"cmdInvoice_0"_s);
  QCOMPARE(bench.Invoice.InvoiceNo, 500);
  bench.On().Click(u"cmdInvoice_2"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"500"_s);
}

void ScreenHeader::theNumberTakesDigitsAndOnePointOnly() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  bench.On().Type(u"0x1-2"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"12"_s);
  // A box that holds a number lets the characters of file names pass to the second filter, which takes one point.
  bench.On().Type(u"./.3"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"12.3"_s);
  // An empty box isn't a number: the message names the character.
  bench.On().PressKey(Qt::Key_A, Qt::ControlModifier);
  bench.On().PressKey(Qt::Key_Delete);
  bench.Answers.Ok(u"This character, (/) is invalid for this field"_s, u"Invalid Key entry"_s);
  bench.On().Type(u"/"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
}

void ScreenHeader::aPasteIntoTheNumberIsFilteredWithoutAMessage() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  bench.On().Paste(u"../12-3"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"123"_s);
}

void ScreenHeader::aPastedNumberKeepsItsPointAsATypedOneDoes() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  bench.On().Paste(u"12.5.6"_s);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"12.56"_s);
}

void ScreenHeader::leavingAnEmptyNumberSaysSoAndComesBack() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, QString());
  bench.Answers.Ok(u"Enter an Invoice Number"_s, u"Karvex Invoicer"_s);
  bench.On().Click(u"txtReference"_s);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  QCOMPARE(bench.On().FocusName(), u"txtInvoiceNo"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), QString());
}

void ScreenHeader::backspaceIsSwallowedInTheNumber() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtInvoiceNo"_s, u"123"_s);
  bench.On().PressKey(Qt::Key_Backspace);
  QCOMPARE(bench.Text(u"txtInvoiceNo"_s), u"123"_s);
}

void ScreenHeader::aLaterDateBeepsAndIsForTheNextServiceOnly() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  PickDate(bench, u"3/8/2026"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
  QCOMPARE(bench.Row(1)[2], QString());
  QCOMPARE(Date(bench)->date(), QDate(2026, 3, 8));
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(2)[2], u"3/8/2026"_s);
  QCOMPARE(bench.Row(1)[2], QString());
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  PickDate(bench, u"3/6/2026"_s);
  QCOMPARE(bench.Row(1)[2], u"3/6/2026"_s);
  QCOMPARE(bench.Dialogs.Beeps, 1);
}

void ScreenHeader::aPickedDateGoesToTheSelectedLineWithAQuantity() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.PostManual(u"Box"_s, u"1"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 2);
  PickDate(bench, u"2/9/2026"_s);
  QCOMPARE(bench.Row(1)[2], QString());
  QCOMPARE(bench.Row(2)[2], u"2/9/2026"_s);
}

void ScreenHeader::aServiceLineKeepsItsDate() {
  InvoiceBench bench;
  bench.OpenAtLines();
  PickDate(bench, u"3/1/2026"_s);
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  QCOMPARE(bench.Row(1)[2], u"3/1/2026"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  PickDate(bench, u"3/2/2026"_s);
  QCOMPARE(bench.Row(1)[2], u"3/1/2026"_s);
  QCOMPARE(bench.Dialogs.Beeps, 0);
}

void ScreenHeader::aShipDateIsHeldAsItIsPickedOrTyped() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_6"_s);
  QDateEdit* box = Date(bench, u"DTShip"_s);
  box->setFocus(Qt::TabFocusReason);
  bench.On().PressKey(Qt::Key_Up);  // A month later, counted at once.
  QCOMPARE(bench.Invoice.DTShip, QDate(2026, 4, 7));
  bench.On().Type(u"3/19/2026"_s);
  bench.On().PressKey(Qt::Key_Return);
  QCOMPARE(bench.Invoice.DTShip, QDate(2026, 3, 19));
  QCOMPARE(box->date(), QDate(2026, 3, 19));
  // The service date is another: no later date is complained of, and no line gets one.
  QCOMPARE(bench.Invoice.DTPicker1, QDate(2026, 3, 7));
  QCOMPARE(bench.Row(1)[2], QString());
  QCOMPARE(bench.Dialogs.Beeps, 0);
}

void ScreenHeader::clearLineDateBlanksTheDateOfTheCurrentLine() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().SelectRow(u"fgInvoice"_s, 1);
  PickDate(bench, u"2/9/2026"_s);
  QCOMPARE(bench.Row(1)[2], u"2/9/2026"_s);
  bench.On().Click(u"cmdResetDate"_s);
  QCOMPARE(bench.Row(1)[2], QString());
}

void ScreenHeader::leavingAnEmptyReferenceFillsIt() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Click(u"txtReference"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), QString());
  bench.On().Click(u"txtShipto_0"_s);
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
}

void ScreenHeader::theShipToAddressIsCopiedAndCleared() {
  InvoiceBench bench;
  bench.Open();
  bench.On().Fill(u"txtShipto_6"_s, u"Ms Jones"_s);
  bench.On().Click(u"cmdShipToAddress_0"_s);
  const QStringList block{u"Acme Tools"_s, u"1 Main Street"_s, QString(), u"Springfield"_s, u"IL"_s, u"62701"_s};
  for (int i = 0; i < 6; ++i) QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(i)), block[i]);
  QCOMPARE(bench.On().FocusName(), u"txtShipto_0"_s);
  bench.On().Click(u"cmdShipToAddress_1"_s);
  for (int i = 0; i < 6; ++i) QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(i)), QString());
  QCOMPARE(bench.Text(u"txtShipto_6"_s), u"Ms Jones"_s);
}

void ScreenHeader::theShipToBoxesRefuseADoubleQuote() {
  InvoiceBench bench;
  bench.Open();
  for (const int box : {0, 6}) {
    bench.On().Fill(u"txtShipto_%1"_s.arg(box), u"Pier 9"_s);
    bench.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
    bench.On().Type(u"\""_s);
    QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(box)), u"Pier 9"_s);
    bench.On().PressKey(Qt::Key_Backspace);
    QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(box)), u"Pier "_s);
    bench.On().Paste(u"a\"b"_s);
    QCOMPARE(bench.Text(u"txtShipto_%1"_s.arg(box)), u"Pier ab"_s);
  }
  QCOMPARE(bench.Dialogs.Beeps, 2);
}

void ScreenHeader::withoutDefaultTermsTheFirstStand() {
  InvoiceBench bench;
  bench.Open();
  const auto* terms = bench.On().Control<QComboBox>(u"cboTerms"_s);
  QCOMPARE(terms->currentText(), u"Payment due in Full upon Receipt"_s);
  QCOMPARE(terms->currentIndex(), 0);
  QCOMPARE(terms->count(), 11);
  QCOMPARE(terms->itemText(9), u"Discount 2% in 10 days, Net 30 days"_s);
  QCOMPARE(terms->itemText(10), u" A Discount has been Applied"_s);
  QVERIFY(bench.Ticked(u"optDiscount_0"_s));
}

void ScreenHeader::theDefaultTermsSelectTheirEntry() {
  InvoiceBench bench;
  bench.Tree.Write(u"/StatementTerms.txt"_s, "Discount 2% in 10 days, Net 15 days\r\nsecond line\r\n");
  bench.Open();
  QCOMPARE(bench.On().Control<QComboBox>(u"cboTerms"_s)->currentIndex(), 5);
  QVERIFY(bench.Ticked(u"optDiscount_2"_s));
  QVERIFY(bench.Ticked(u"ckDiscount"_s));
  QCOMPARE(bench.Text(u"cboDiscount"_s), u"2.0"_s);
  QCOMPARE(bench.Text(u"cboDays"_s), u"10"_s);
}

void ScreenHeader::defaultTermsThatTheListLacksAreShown() {
  InvoiceBench bench;
  bench.Tree.Write(u"/StatementTerms.txt"_s, "Cash, please\r\n");
  bench.Open();
  const auto* terms = bench.On().Control<QComboBox>(u"cboTerms"_s);
  QCOMPARE(terms->currentText(), u"Cash, please"_s);
  QCOMPARE(terms->currentIndex(), -1);
  QVERIFY(bench.Ticked(u"optDiscount_0"_s));
}

void ScreenHeader::pickedTermsSetTheDiscount_data() {
  QTest::addColumn<int>("entry");
  QTest::addColumn<int>("option");
  QTest::addColumn<bool>("ticked");
  QTest::addColumn<QString>("rate");
  for (int entry = 1; entry <= 3; ++entry) {
    QTest::addRow("entry %d", entry) << entry << 0 << false << u"2.0"_s;
  }
  for (int entry = 4; entry <= 9; ++entry) {
    QTest::addRow("entry %d", entry) << entry << 2 << true << (entry % 2 == 0 ? u"1.0"_s : u"2.0"_s);
  }
}

void ScreenHeader::pickedTermsSetTheDiscount() {
  QFETCH(int, entry);
  QFETCH(int, option);
  QFETCH(bool, ticked);
  QFETCH(QString, rate);
  InvoiceBench bench;
  bench.Tree.Write(u"/KarvexInvoicerSettings.txt"_s, "1,0,0,0,0,\"2.0\",\"30\",#TRUE#,#FALSE#,\"$0.00\",\"$0.00\"\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().PickEntry(u"cboTerms"_s, entry);
  QVERIFY(bench.Ticked(u"optDiscount_%1"_s.arg(option)));
  QCOMPARE(bench.Ticked(u"ckDiscount"_s), ticked);
  QCOMPARE(bench.Text(u"cboDiscount"_s), rate);
  QCOMPARE(bench.Text(u"cboDays"_s), ticked ? u"10"_s : u"30"_s);
  QCOMPARE(bench.On().IsVisible(u"fraDiscount"_s), ticked);
}

void ScreenHeader::theTermsAreSavedAsOnePlainLine() {
  InvoiceBench bench;
  bench.Tree.Write(u"/Backup/StatementTerms.txt"_s, "old\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().PickEntry(u"cboTerms"_s, 6);
  QCOMPARE(bench.Text(u"cmdReadyPrint_0"_s), u"Save as Invoice Default Terms"_s);
  bench.On().Click(u"cmdReadyPrint_0"_s);
  QCOMPARE(bench.Tree.Bytes(u"/StatementTerms.txt"_s), "Discount 1% in 10 days, Net 20 days\r\n");
  QVERIFY(!bench.Tree.Exists(u"/Backup/StatementTerms.txt"_s));
}

void ScreenHeader::typedTermsAreSavedAsTheyWereTyped() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Fill(u"cboTerms"_s, u"Net 7, cash"_s);
  bench.On().Click(u"cmdReadyPrint_0"_s);
  QCOMPARE(bench.Tree.Bytes(u"/StatementTerms.txt"_s), "Net 7, cash\r\n");
  QCOMPARE(bench.Text(u"cboTerms"_s), u"Net 7, cash"_s);
}

void ScreenHeader::theCarrierComesFromItsFileAndIsSaved() {
  InvoiceBench bench;
  bench.Open();
  const auto* carriers = bench.On().Control<QComboBox>(u"cboShipping"_s);
  QCOMPARE(carriers->currentText(), u"None"_s);
  QCOMPARE(carriers->count(), 10);
  QCOMPARE(carriers->itemText(0), u"UPS - Next Day Air"_s);
  QCOMPARE(carriers->itemText(8), u"FEDEX - Ground"_s);
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.On().PickEntry(u"cboShipping"_s, u"UPS - Ground"_s);
  QCOMPARE(bench.Text(u"cmdReadyPrint_1"_s), u"Save as Shipping Default Carrier"_s);
  bench.On().Click(u"cmdReadyPrint_1"_s);
  QCOMPARE(bench.Tree.Bytes(u"/ShipVia.txt"_s), "UPS - Ground\r\n");
  bench.Tree.Write(u"/ShipVia.txt"_s, "Own van, blue\r\n");
  bench.Reopen();
  QCOMPARE(carriers->currentText(), u"Own van, blue"_s);
}

void ScreenHeader::aTypedCarrierIsKept() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.On().Fill(u"cboShipping"_s, u"Bicycle"_s);
  QCOMPARE(bench.Invoice.cboShipping, u"Bicycle"_s);
}

void ScreenHeader::withoutAMemoFileTheMemoIsEmptyAndItsTickHidden() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  QCOMPARE(bench.Text(u"txtMemo"_s), QString());
  QVERIFY(!bench.On().IsVisible(u"lblMemo"_s));
  QVERIFY(!bench.On().IsVisible(u"ckAddMemo"_s));
  QVERIFY(!bench.Ticked(u"ckAddMemo"_s));
}

void ScreenHeader::aMemoFileIsShownLineByLineAndTicked() {
  InvoiceBench bench;
  bench.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you, come again\r\nClosed on Sunday\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  QCOMPARE(bench.Text(u"txtMemo"_s), u"Thank you\ncome again\nClosed on Sunday\n"_s);
  QVERIFY(bench.On().IsVisible(u"lblMemo"_s));
  QVERIFY(bench.On().IsVisible(u"ckAddMemo"_s));
  QVERIFY(bench.Ticked(u"ckAddMemo"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceMemo_1"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceMemo_2"_s));
}

void ScreenHeader::openingTheMemoWithoutATickDisablesReloadAndSave() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceMemo_1"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceMemo_2"_s));
}

void ScreenHeader::aKeyInTheMemoEnablesSave() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  QCOMPARE(bench.On().FocusName(), u"txtMemo"_s);
  bench.On().Type(u"x"_s);
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceMemo_2"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdInvoiceMemo_1"_s));
}

void ScreenHeader::newMemoEmptiesItAndGoesToIt() {
  InvoiceBench bench;
  bench.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Click(u"cmdInvoiceMemo_0"_s);
  QCOMPARE(bench.Text(u"txtMemo"_s), QString());
  QVERIFY(!bench.On().IsVisible(u"lblMemo"_s));
  QVERIFY(bench.On().IsVisible(u"ckAddMemo"_s));
  QCOMPARE(bench.On().FocusName(), u"txtMemo"_s);
}

void ScreenHeader::saveMemoWritesTheFileAndTicks() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Type(u"Thank you"_s);
  bench.On().PressKey(Qt::Key_Return);
  bench.On().Type(u"Bye"_s);
  bench.On().Click(u"cmdInvoiceMemo_2"_s);
  QCOMPARE(bench.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Thank you\r\nBye\r\n");
  QVERIFY(bench.On().IsVisible(u"lblMemo"_s));
  QVERIFY(bench.On().IsVisible(u"ckAddMemo"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdInvoiceMemo_1"_s));
}

void ScreenHeader::reloadMemoReadsTheFileAgain() {
  InvoiceBench bench;
  bench.Tree.Write(u"/InvoiceMemo.txt"_s, "Thank you\r\n");
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Type(u"No "_s);
  bench.On().Click(u"cmdInvoiceMemo_1"_s);
  QCOMPARE(bench.Text(u"txtMemo"_s), u"Thank you\n"_s);
}

void ScreenHeader::closeMemoHidesTheFrame() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuMemo"_s);
  bench.On().Click(u"cmdInvoiceMemo_4"_s);
  QVERIFY(!bench.On().IsVisible(u"fraMemo"_s));
}

void ScreenHeader::defaultsThatOnlyTheBackupHoldsComeBack() {
  InvoiceBench bench;
  bench.Tree.Write(u"/Backup/StatementTerms.txt"_s, "Payment due in Full within 15 Days\r\n");
  bench.Tree.Write(u"/Backup/ShipVia.txt"_s, "FEDEX - Ground\r\n");
  bench.Tree.Write(u"/Backup/InvoiceMemo.txt"_s, "Thank you\r\n");
  bench.OpenAtLines();
  QCOMPARE(bench.On().Control<QComboBox>(u"cboTerms"_s)->currentIndex(), 2);
  QCOMPARE(bench.Text(u"cboShipping"_s), u"FEDEX - Ground"_s);
  bench.On().Trigger(u"mnuMemo"_s);
  QCOMPARE(bench.Text(u"txtMemo"_s), u"Thank you\n"_s);
  QVERIFY(bench.Ticked(u"ckAddMemo"_s));
  QCOMPARE(bench.Tree.Bytes(u"/StatementTerms.txt"_s), "Payment due in Full within 15 Days\r\n");
  QCOMPARE(bench.Tree.Bytes(u"/ShipVia.txt"_s), "FEDEX - Ground\r\n");
  QCOMPARE(bench.Tree.Bytes(u"/InvoiceMemo.txt"_s), "Thank you\r\n");
}

QTEST_MAIN(ScreenHeader)
#include "tst_screenHeader.moc"
