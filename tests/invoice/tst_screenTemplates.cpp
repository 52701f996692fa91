// Invoice templates on the screen: each record's bytes, and the names under which a template is saved, listed, counted,
// opened and deleted, which differ.
#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QString Saved = u"/KarvexInvoicer/Templates/InvoicesMonthly.txt"_s;
const QString Listed = u"/KarvexInvoicer/Templates/Invoices/Monthly.txt"_s;
const QString Counted = u"/KarvexInvoicer/Templates/InvoicesMonthly.txt"_s;
const QString Opened = u"/Templates/Invoices/Monthly.txt"_s;
const QString List = u"flstInvoiceTemplates"_s;
const QString Load = u"cmdTemplate_0"_s;
const QString Delete = u"cmdTemplate_1"_s;
const QString Save = u"cmdTemplate_2"_s;
const QString ExistsTitle = u"Template Exists"_s;
const QString ExistsText = u"A Template Named Monthlyalready Exists.\nPress Yes to Replace the Existing Template"_s;
const QString NotSelectedText = u"Select a Template in the list first"_s;
const QString NotSelectedTitle = u"No Template selected"_s;
const QStringList Blank{QString(), QString(), QString(), QString(), QString(), QString()};

QByteArray Line(const QByteArray& quantity, const QByteArray& description, const QByteArray& price,
                const QByteArray& tax) {
  return Field(quantity, 10) + Field(description, 45) + Field(price, 10) + Field(tax, 5);
}

/// Types into the input box and ends it by OK.
void Name(InvoiceBench& bench, const QString& name) {
  bench.Answers.Dialog([name](QDialog& dialog) {
    auto* box = qobject_cast<QInputDialog*>(&dialog);
    QVERIFY(box != nullptr);
    box->setTextValue(name);
    box->accept();
  });
}

/// A line by hand, and back to the lines, whose help has the button that saves a template.
void Post(InvoiceBench& bench, const QString& description, const QString& quantity, const QString& price) {
  bench.PostManual(description, quantity, price);
  bench.On().Trigger(u"mnuCreate"_s);
}

void SaveAs(InvoiceBench& bench, const QString& name) {
  Name(bench, name);
  bench.On().Click(Save);
}

void ClickTemplate(const InvoiceBench& bench, int row) {
  auto* list = bench.On().Control<QListWidget>(List);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
  ScreenDriver::ProcessEvents();
}

/// A listed template with the two files that loading it takes.
void WriteTemplate(InvoiceBench& bench, const QByteArray& records) {
  bench.Tree.Write(Listed, "listed");
  bench.Tree.Write(Counted, records);
  bench.Tree.Write(Opened, records);
}

}  // namespace

class ScreenTemplates : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLinesWithAQuantityAreSaved();
  void linesOfNoPositiveQuantityStayOut();
  void theInputBoxAsksInTheseWords();
  void anEmptyNameSavesNothing();
  void cancelSavesNothing();
  void aLongDescriptionIsCut();
  void aLongPriceIsCut();
  void anExistingTemplateIsReplacedOnYesAlone();
  void aShorterListKeepsTheOldTail();
  void afterTheSaveTheListIsReadAgainAndSaveIsDisabled();
  void noLinesMakeAnEmptyTemplate();
  void theCharactersThatThePromptForbidsAreTaken();
  void aNameThatLeavesTheFolderIsRefused_data();
  void aNameThatLeavesTheFolderIsRefused();
  void aNameWithASeparatorNeedsItsFolder();
  void aClickInTheListEnablesLoadAndDelete();
  void loadingWithoutTheFolderIsError76AndTheProgramGoesOn();
  void loadingShowsTheLinesAndContinues();
  void loadingReplacesTheLines();
  void loadingTakesChargesTotalsNarrativeAndReferenceAway();
  void afterADeleteNothingIsSelectedAndLoadAndDeleteSaySo();
  void theRowThatTheTabKeyComesToIsNotSelected();
  void savingALoadedTemplateCutsThePricesFirstDigit();
  void aTemplateOfNoRecordsLoadsAnEmptyInvoice();
  void aTemplateThatCannotBeLoadedLeavesNoLines_data();
  void aTemplateThatCannotBeLoadedLeavesNoLines();
  void deleteAsksAndDeletesTheListedFile();
  void deletingOneOfTwoKeepsTheButtonsEnabled();
  void cancelKeepsTheTemplate();
  void deletingAFileThatIsGoneIsError53();
  void aFailingDiskKeepsTheOldTemplate();
};

void ScreenTemplates::theLinesWithAQuantityAreSaved() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  bench.On().Click(u"cmdPost_0"_s);
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"3"_s);
  bench.On().Click(u"cmdPost_1"_s);
  bench.On().Trigger(u"mnuLabor"_s);
  bench.On().Fill(u"txtHours_0"_s, u"2"_s);
  bench.On().Click(u"cmdLabor_0"_s);
  bench.On().Click(u"cmdLabor_1"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  QCOMPARE(bench.Row(3).at(0), u"2 Hrs"_s);
  SaveAs(bench, u"Monthly"_s);
  QCOMPARE(bench.Tree.Bytes(Saved),
           Line("3", "Hammer", "12.00", "True") + Line("2 Hrs", "General Labor", "45.00", "False"));
  // Beside the folder, not in it.
  QCOMPARE(bench.Tree.List(u"/KarvexInvoicer/Templates"_s), QStringList({u"Invoices/"_s, u"InvoicesMonthly.txt"_s}));
  QCOMPARE(bench.Tree.List(u"/KarvexInvoicer/Templates/Invoices"_s), QStringList{});
}

void ScreenTemplates::linesOfNoPositiveQuantityStayOut() {
  InvoiceBench bench;
  bench.OpenAtLines();
  for (const QString& name : {u"None"_s, u"Crate"_s, u"Back"_s, u"Word"_s}) Post(bench, name, u"1"_s, u"10"_s);
  // As a partial invoice may bring them.
  bench.Invoice.fgInvoice.SetText(1, 0, u"0"_s);
  bench.Invoice.fgInvoice.SetText(3, 0, u"-2"_s);
  bench.Invoice.fgInvoice.SetText(4, 0, u"two"_s);
  SaveAs(bench, u"Monthly"_s);
  QCOMPARE(bench.Tree.Bytes(Saved), Line("1", "Crate", "10.00", "False"));
}

void ScreenTemplates::theInputBoxAsksInTheseWords() {
  InvoiceBench bench;
  bench.OpenAtLines();
  QString title;
  QString prompt;
  bench.Answers.Dialog([&](QDialog& dialog) {
    title = dialog.windowTitle();
    prompt = static_cast<QInputDialog&>(dialog).labelText();
    dialog.reject();
  });
  bench.On().Click(Save);
  QCOMPARE(title, u"Save Invoice Template"_s);
  QCOMPARE(prompt,
           u"Enter a Name for this Template\r\nDo not enter /\\,.-:; Characters\r\n"
           "Do not enter .txt (this is done automatically"_s);
}

void ScreenTemplates::anEmptyNameSavesNothing() {
  InvoiceBench bench;
  bench.OpenAtLines();
  const auto before = bench.Tree.Everything();
  SaveAs(bench, QString());
  QCOMPARE(bench.Tree.Everything(), before);
  QVERIFY(bench.On().IsEnabled(Save));
}

void ScreenTemplates::cancelSavesNothing() {
  InvoiceBench bench;
  bench.OpenAtLines();
  const auto before = bench.Tree.Everything();
  bench.Answers.Dialog([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue(u"Monthly"_s);
    dialog.reject();
  });
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Everything(), before);
  QVERIFY(bench.On().IsEnabled(Save));
}

void ScreenTemplates::aLongDescriptionIsCut() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"A crate of forty-five characters, and a good deal more"_s, u"1"_s, u"10"_s);
  SaveAs(bench, u"Monthly"_s);
  QCOMPARE(bench.Tree.Bytes(Saved),
           "1         "
           "A crate of forty-five characters, and a good "
           "10.00     "
           "False");
}

void ScreenTemplates::aLongPriceIsCut() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"Ten"_s, u"1"_s, u"123456.78"_s);
  Post(bench, u"Twelve"_s, u"1"_s, u"1234567.89"_s);
  SaveAs(bench, u"Monthly"_s);
  QCOMPARE(bench.Tree.Bytes(Saved),
           Line("1", "Ten", "123,456.78", "False") + Line("1", "Twelve", "1,234,567.", "False"));
}

void ScreenTemplates::anExistingTemplateIsReplacedOnYesAlone() {
  InvoiceBench bench;
  bench.Tree.Write(Saved, Line("9", "Old", "1.00", "True"));
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  const auto before = bench.Tree.Everything();
  Name(bench, u"Monthly"_s);
  bench.Answers.No(ExistsText, ExistsTitle);
  bench.On().Click(Save);
  Name(bench, u"Monthly"_s);
  bench.Answers.Escape(ExistsText, ExistsTitle);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Everything(), before);
  QVERIFY(bench.On().IsEnabled(Save));
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
  Name(bench, u"Monthly"_s);
  bench.Answers.Yes(ExistsText, ExistsTitle);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(Saved), Line("1", "Crate", "10.00", "False"));
}

void ScreenTemplates::aShorterListKeepsTheOldTail() {
  InvoiceBench bench;
  bench.Tree.Write(Saved, Line("1", "One", "1.00", "True") + Line("2", "Two", "2.00", "True"));
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"5"_s, u"10"_s);
  Name(bench, u"Monthly"_s);
  bench.Answers.Yes(ExistsText, ExistsTitle);
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Bytes(Saved), Line("5", "Crate", "10.00", "False") + Line("2", "Two", "2.00", "True"));
}

void ScreenTemplates::afterTheSaveTheListIsReadAgainAndSaveIsDisabled() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/New.txt"_s, "");
  SaveAs(bench, u"Monthly"_s);
  QVERIFY(!bench.On().IsEnabled(Save));
  bench.On().Trigger(u"mnuSetup"_s);
  QVERIFY(bench.On().IsVisible(u"fraTemplates"_s));
  // The list shows the folder, where the saved template isn't.
  const auto* list = bench.On().Control<QListWidget>(List);
  QCOMPARE(list->count(), 1);
  QCOMPARE(list->item(0)->text(), u"New.txt"_s);
  QVERIFY(!bench.On().IsEnabled(Load));
  // Continue enables it again.
  bench.On().Click(u"cmdInvoice_0"_s);
  QVERIFY(bench.On().IsEnabled(Save));
}

void ScreenTemplates::noLinesMakeAnEmptyTemplate() {
  InvoiceBench bench;
  bench.OpenAtLines();
  SaveAs(bench, u"Monthly"_s);
  QCOMPARE(bench.Tree.Bytes(Saved), "");
}

void ScreenTemplates::theCharactersThatThePromptForbidsAreTaken() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  SaveAs(bench, u"a,b.-:;.txt"_s);
  QCOMPARE(bench.Tree.Bytes(u"/KarvexInvoicer/Templates/Invoicesa,b.-:;.txt.txt"_s),
           Line("1", "Crate", "10.00", "False"));
}

void ScreenTemplates::aNameThatLeavesTheFolderIsRefused_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("up") << u"/../../../x"_s;
  QTest::newRow("up, the other way") << u"\\..\\..\\x"_s;
  QTest::newRow("up from the folder") << u"/../x"_s;
}

void ScreenTemplates::aNameThatLeavesTheFolderIsRefused() {
  QFETCH(QString, name);
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  const auto before = bench.Tree.Everything();
  Name(bench, name);
  bench.Answers.Ok(
      u"The name of the Template names its file, and \"%1\" can't name a file of the template folder."_s.arg(name));
  bench.On().Click(Save);
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QVERIFY(bench.On().IsEnabled(Save));
  QCOMPARE(bench.Row(1).at(1), u"Crate"_s);
}

void ScreenTemplates::aNameWithASeparatorNeedsItsFolder() {
  InvoiceBench bench;
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  const auto before = bench.Tree.Everything();
  SaveAs(bench, u"a/b"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{76});
  QCOMPARE(bench.Tree.Everything(), before);
}

void ScreenTemplates::aClickInTheListEnablesLoadAndDelete() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "");
  bench.Open();
  QVERIFY(!bench.On().IsEnabled(Load));
  QVERIFY(!bench.On().IsEnabled(Delete));
  ClickTemplate(bench, 0);
  QVERIFY(bench.On().IsEnabled(Load));
  QVERIFY(bench.On().IsEnabled(Delete));
}

void ScreenTemplates::loadingWithoutTheFolderIsError76AndTheProgramGoesOn() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, Line("1", "Crate", "10.00", "False"));
  bench.Tree.Write(Counted, Line("1", "Crate", "10.00", "False"));
  bench.Open();
  const auto before = bench.Tree.Everything();
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  QCOMPARE(bench.Around.Errors, QList<int>{76});
  QCOMPARE(bench.Tree.Everything(), before);
  // The setup view stays, and the next line is the first.
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
  bench.On().Click(u"cmdInvoice_0"_s);
  Post(bench, u"Box"_s, u"1"_s, u"10"_s);
  QCOMPARE(bench.Row(1).at(1), u"Box"_s);
  QCOMPARE(bench.Invoice.LineCount, 1);
}

void ScreenTemplates::loadingShowsTheLinesAndContinues() {
  InvoiceBench bench;
  WriteTemplate(bench, Line("3", "Hammer", "12.00", "True") + Line("2 Hrs", "General Labor", "1,045.50", "False"));
  bench.Open();
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Row(1), QStringList({u"3"_s, u"Hammer"_s, u""_s, u"12.00"_s, u"$36.00"_s, u"True"_s}));
  QCOMPARE(bench.Row(2),
           QStringList({u"2 Hrs"_s, u"General Labor"_s, u""_s, u"1,045.50"_s, u"$2,091.00"_s, u"False"_s}));
  QCOMPARE(bench.Row(3), Blank);
  QCOMPARE(bench.Invoice.LineCount, 2);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QVERIFY(!bench.On().IsVisible(u"fraSetup"_s));
  QVERIFY(bench.On().IsEnabled(u"cmdPrint"_s));
  QVERIFY(bench.On().IsEnabled(Save));
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
}

void ScreenTemplates::loadingReplacesTheLines() {
  InvoiceBench bench;
  WriteTemplate(bench, Line("3", "Hammer", "12.00", "True"));
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  Post(bench, u"Box"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuSetup"_s);
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  QCOMPARE(bench.Row(1).at(1), u"Hammer"_s);
  QCOMPARE(bench.Row(2), Blank);
}

void ScreenTemplates::loadingTakesChargesTotalsNarrativeAndReferenceAway() {
  InvoiceBench bench;
  WriteTemplate(bench, Line("3", "Hammer", "12.00", "True"));
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuNarrative"_s);
  bench.On().Fill(u"txtNarrative"_s, u"Replaced the pump"_s);
  bench.On().Click(u"cmdPrint"_s);
  bench.On().Fill(u"txtShip"_s, u"5"_s);
  bench.On().Fill(u"txtMisc"_s, u"3"_s);
  bench.On().Click(u"cmdInvoice_9"_s);
  QCOMPARE(bench.Text(u"txtGrandTotal"_s), u"$18.00"_s);
  QCOMPARE(bench.Invoice.txtNarrative, u"Replaced the pump"_s);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  for (const auto& box : {u"txtShip"_s, u"txtMisc"_s, u"txtTotal"_s, u"txtGrandTotal"_s}) {
    QCOMPARE(bench.Text(box), u"$0.00"_s);
  }
  for (const Currency held :
       {bench.Invoice.ShipCharge, bench.Invoice.MiscCharge, bench.Invoice.SubTotal, bench.Invoice.GrandTotal}) {
    QCOMPARE(held, Currency());
  }
  QCOMPARE(bench.Text(u"txtNarrative"_s), QString());
  // Continue gives the blank reference its default.
  QCOMPARE(bench.Text(u"txtReference"_s), u"Prepared 3/7/2026"_s);
}

void ScreenTemplates::afterADeleteNothingIsSelectedAndLoadAndDeleteSaySo() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "");
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s, "");
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuSetup"_s);
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  ClickTemplate(bench, 0);
  bench.Answers.Ok();
  bench.On().Click(Delete);
  const auto before = bench.Tree.Everything();
  bench.Answers.Ok(NotSelectedText, NotSelectedTitle);
  bench.On().Click(Load);
  bench.Answers.Ok(NotSelectedText, NotSelectedTitle);
  bench.On().Click(Delete);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Tree.Everything(), before);
  QCOMPARE(bench.Row(1).at(1), u"Crate"_s);
  QCOMPARE(bench.Invoice.LineCount, 1);
  QCOMPARE(bench.Text(u"txtReference"_s), u"PO 5"_s);
  QVERIFY(bench.On().IsVisible(u"fraSetup"_s));
  // A click helps, as the box says.
  ClickTemplate(bench, 0);
  bench.Answers.Ok(u"This will Delete Template\nYearly.txt"_s, u"Template Deletion"_s);
  bench.On().Click(Delete);
  QVERIFY(!bench.Tree.Exists(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s));
}

void ScreenTemplates::theRowThatTheTabKeyComesToIsNotSelected() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "");
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s, "");
  bench.OpenAtLines();
  Post(bench, u"Crate"_s, u"1"_s, u"10"_s);
  bench.On().Trigger(u"mnuSetup"_s);
  ClickTemplate(bench, 0);
  bench.Answers.Ok();
  bench.On().Click(Delete);
  bench.On().Fill(u"txtReference"_s, u"PO 5"_s);
  bench.On().PressKey(Qt::Key_Tab);
  QCOMPARE(bench.On().FocusName(), List);
  const auto* list = bench.On().Control<QListWidget>(List);
  QVERIFY(list->currentItem() != nullptr);
  QVERIFY(list->selectedItems().isEmpty());
  for (const QString& button : {Load, Delete}) {
    bench.Answers.Ok(NotSelectedText, NotSelectedTitle);
    bench.On().Click(button);
  }
  QCOMPARE(bench.Row(1).at(1), u"Crate"_s);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QVERIFY(bench.Tree.Exists(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s));
}

void ScreenTemplates::savingALoadedTemplateCutsThePricesFirstDigit() {
  InvoiceBench bench;
  WriteTemplate(bench, Line("3", "Hammer", "12.00", "True"));
  bench.Open();
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  SaveAs(bench, u"Again"_s);
  QCOMPARE(bench.Tree.Bytes(u"/KarvexInvoicer/Templates/InvoicesAgain.txt"_s), Line("3", "Hammer", "2.00", "True"));
}

void ScreenTemplates::aTemplateOfNoRecordsLoadsAnEmptyInvoice() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, Line("3", "Hammer", "12.00", "True"));
  bench.Tree.Write(Opened, Line("3", "Hammer", "12.00", "True"));
  bench.Open();
  ClickTemplate(bench, 0);
  // The records are counted beside the folder, where no file is.
  bench.On().Click(Load);
  QCOMPARE(bench.Around.Errors, QList<int>{});
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Row(1), Blank);
  QVERIFY(bench.On().IsVisible(u"fraInstructions_1"_s));
  QVERIFY(!bench.On().IsEnabled(u"cmdPrint"_s));
}

void ScreenTemplates::aTemplateThatCannotBeLoadedLeavesNoLines_data() {
  QTest::addColumn<QByteArray>("records");
  QTest::addColumn<int>("error");
  const QByteArray hammer = Line("3", "Hammer", "12.00", "True");
  QTest::newRow("a price that is no number") << hammer + Line("1", "Crate", "cheap", "True") << 13;
  QTest::newRow("a product that is too large") << hammer + Line("1E9", "Crate", "1E300", "True") << 6;
  QTest::newRow("more lines than the grid holds") << hammer.repeated(101) << 9;
}

void ScreenTemplates::aTemplateThatCannotBeLoadedLeavesNoLines() {
  QFETCH(const QByteArray, records);
  QFETCH(const int, error);
  InvoiceBench bench;
  WriteTemplate(bench, records);
  bench.Open();
  ClickTemplate(bench, 0);
  bench.On().Click(Load);
  QCOMPARE(bench.Around.Errors, QList<int>{error});
  QCOMPARE(bench.Invoice.LineCount, 0);
  QCOMPARE(bench.Row(1), Blank);
  QCOMPARE(bench.Row(100), Blank);
}

void ScreenTemplates::deleteAsksAndDeletesTheListedFile() {
  InvoiceBench bench;
  WriteTemplate(bench, "");
  bench.Open();
  ClickTemplate(bench, 0);
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  bench.Answers.With(QMessageBox::Ok,
                     [&icon] { icon = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->icon(); });
  bench.On().Click(Delete);
  QCOMPARE(bench.Answers.Last().Text, u"This will Delete Template\r\nMonthly.txt"_s);
  QCOMPARE(bench.Answers.Last().Title, u"Template Deletion"_s);
  QCOMPARE(bench.Answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok | QMessageBox::Cancel));
  QCOMPARE(icon, QMessageBox::Warning);
  QVERIFY(!bench.Tree.Exists(Listed));
  QVERIFY(bench.Tree.Exists(Counted));
  QVERIFY(bench.Tree.Exists(Opened));
  QCOMPARE(bench.On().Control<QListWidget>(List)->count(), 0);
  QVERIFY(!bench.On().IsEnabled(Load));
  QVERIFY(!bench.On().IsEnabled(Delete));
}

void ScreenTemplates::deletingOneOfTwoKeepsTheButtonsEnabled() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "");
  bench.Tree.Write(u"/KarvexInvoicer/Templates/Invoices/Yearly.txt"_s, "");
  bench.Open();
  ClickTemplate(bench, 0);
  bench.Answers.Ok();
  bench.On().Click(Delete);
  const auto* list = bench.On().Control<QListWidget>(List);
  QCOMPARE(list->count(), 1);
  QCOMPARE(list->item(0)->text(), u"Yearly.txt"_s);
  QVERIFY(bench.On().IsEnabled(Load));
  QVERIFY(bench.On().IsEnabled(Delete));
}

void ScreenTemplates::cancelKeepsTheTemplate() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "kept");
  bench.Open();
  ClickTemplate(bench, 0);
  bench.Answers.With(QMessageBox::Cancel, [] {});
  bench.On().Click(Delete);
  bench.Answers.Escape();
  bench.On().Click(Delete);
  QCOMPARE(bench.Tree.Bytes(Listed), "kept");
  QCOMPARE(bench.On().Control<QListWidget>(List)->count(), 1);
}

void ScreenTemplates::deletingAFileThatIsGoneIsError53() {
  InvoiceBench bench;
  bench.Tree.Write(Listed, "");
  bench.Open();
  ClickTemplate(bench, 0);
  bench.Tree.Remove(Listed);
  bench.Answers.Ok();
  bench.On().Click(Delete);
  QCOMPARE(bench.Around.Errors, QList<int>{53});
}

void ScreenTemplates::aFailingDiskKeepsTheOldTemplate() {
  for (const auto call : {FailingDevice::Call::Write, FailingDevice::Call::Flush, FailingDevice::Call::Rename}) {
    InvoiceBench bench;
    bench.Tree.Write(Saved, Line("1", "One", "1.00", "True") + Line("2", "Two", "2.00", "True"));
    bench.OpenAtLines();
    Post(bench, u"Crate"_s, u"5"_s, u"10"_s);
    Post(bench, u"Box"_s, u"6"_s, u"10"_s);
    const auto before = bench.Tree.Everything();
    bench.Device.FailAlways(call, ENOSPC);
    Name(bench, u"Monthly"_s);
    bench.Answers.Yes();
    bench.On().Click(Save);
    bench.Device.Reset();
    QCOMPARE(bench.Around.Errors, QList<int>{61});
    QCOMPARE(bench.Tree.Everything(), before);
    QVERIFY(bench.On().IsEnabled(Save));
    QCOMPARE(bench.Row(2).at(1), u"Box"_s);
  }
}

QTEST_MAIN(ScreenTemplates)
#include "tst_screenTemplates.moc"
