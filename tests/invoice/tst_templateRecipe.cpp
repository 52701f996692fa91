// A template from its save to its load in the real program, with the copies that the user makes by hand as the manual
// tells; and the boxes of a load that can't be done, which tell truly what is to be done and what is gone.

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

namespace {

const QString Saved = u"/KarvexInvoicer/Templates/InvoicesMonthly.txt"_s;
const QString Listed = u"/KarvexInvoicer/Templates/Invoices/Monthly.txt"_s;
const QString Opened = u"/Templates/Invoices/Monthly.txt"_s;
const QByteArray Hammers = "3         Hammer                                       12.00     True ";
const QString Cleared = u" The invoice was cleared for the load: enter again what it held."_s;

void PostCrate() {
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Trigger(u"mnuManual"_s);
  invoice.Fill(u"txtManual_0"_s, u"Crate"_s);
  invoice.Fill(u"txtManual_2"_s, u"1"_s);
  invoice.Fill(u"txtManual_1"_s, u"10"_s);
  invoice.Click(u"cmdPost_2"_s);
}

void SaveTemplate(InvoicingDesk& desk, const QString& name) {
  InvoicingDesk::Invoice().Trigger(u"mnuCreate"_s);
  desk.Program.Answers.Dialog([name](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue(name);
    dialog.accept();
  });
  InvoicingDesk::Invoice().Click(u"cmdTemplate_2"_s);
}

void LoadTemplate() {
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  auto* list = invoice.Control<QListWidget>(u"flstInvoiceTemplates"_s);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  ScreenDriver::ProcessEvents();
  invoice.Click(u"cmdTemplate_0"_s);
}

/// An invoice with one line, back at its setup view, where the template is listed.
void OpenWithALine(InvoicingDesk& desk) {
  desk.OpenInvoice();
  InvoicingDesk::Invoice().Click(u"cmdInvoice_0"_s);
  PostCrate();
  InvoicingDesk::Invoice().Trigger(u"mnuSetup"_s);
}

/// The box of a load that fails, and that the line is gone while the program goes on.
QString BoxOfTheLoad(InvoicingDesk& desk) {
  OpenWithALine(desk);
  desk.Program.Answers.Ok();
  LoadTemplate();
  if (InvoicingDesk::Line(1) != QStringList(6, QString()) || desk.Program.Running().HasEnded()) return {};
  return desk.Program.Answers.Last().Text;
}

}  // namespace

class TemplateRecipe : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void savedCopiedByHandAndLoaded();
  void withoutTheSavedFileTheCopiesLoadNothing();
  void theHelpPromisesNothingThatCannotBe();
  void withoutTheFolderTheBoxNamesItAndWhatToPutThere();
  void withoutTheCopyToReadTheBoxNamesBothFiles();
  void aTemplateThatIsDamagedNamesBothFiles();
  void anExtensionTooLargeNamesBothFiles();
  void aDiskThatFailsIsToldAsOneAndThatTheInvoiceIsCleared_data();
  void aDiskThatFailsIsToldAsOneAndThatTheInvoiceIsCleared();
  void aTemplateOfTooManyLinesNamesTheFileThatCountsThem();
  void aNameWithASeparatorIsToldAsOne();
};

void TemplateRecipe::savedCopiedByHandAndLoaded() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdInvoice_0"_s);
  desk.PostHammers(u"3"_s);
  SaveTemplate(desk, u"Monthly"_s);
  QCOMPARE(tree.Bytes(Saved), Hammers);
  // The save alone offers nothing at the next invoice.
  invoice.Click(u"cmdInvoice_1"_s);
  desk.OpenInvoice();
  QVERIFY(!invoice.IsVisible(u"fraTemplates"_s));
  invoice.Click(u"cmdInvoice_1"_s);

  tree.Write(Listed, tree.Bytes(Saved));
  tree.Write(Opened, tree.Bytes(Saved));
  desk.OpenInvoice();
  QVERIFY(invoice.IsVisible(u"fraTemplates"_s));
  LoadTemplate();
  QCOMPARE(InvoicingDesk::Line(1), (QStringList{u"3"_s, u"Hammer"_s, u""_s, u"12.00"_s, u"$36.00"_s, u"True"_s}));
  QCOMPARE(InvoicingDesk::Line(2), QStringList(6, QString()));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
  // Saved again, the price has lost its first digit.
  SaveTemplate(desk, u"Again"_s);
  QByteArray cut = Hammers;
  cut.replace("12.00 ", "2.00  ");
  QCOMPARE(tree.Bytes(u"/KarvexInvoicer/Templates/InvoicesAgain.txt"_s), cut);
}

void TemplateRecipe::withoutTheSavedFileTheCopiesLoadNothing() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(Listed, Hammers);
  desk.Program.Tree.Write(Opened, Hammers);
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  LoadTemplate();
  QCOMPARE(InvoicingDesk::Line(1), QStringList(6, QString()));
  QCOMPARE(desk.Program.Answers.Boxes().size(), 0);
}

void TemplateRecipe::theHelpPromisesNothingThatCannotBe() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdInvoice_0"_s);
  invoice.Click(u"cmdTemplate_3"_s);
  QVERIFY(invoice.IsVisible(u"fraInstructions_3"_s));
  const QString help = invoice.Text(u"lblInstructions_3"_s);
  QVERIFY2(!help.contains(u"offers"_s) && help.contains(u"by hand"_s) && help.contains(u"manual"_s), qPrintable(help));
}

void TemplateRecipe::withoutTheFolderTheBoxNamesItAndWhatToPutThere() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(Listed, Hammers);
  tree.Write(Saved, Hammers);
  QVERIFY(desk.Program.StartAtMenu());
  QCOMPARE(
      BoxOfTheLoad(desk),
      tree.Path(Opened) +
          u": The folder isn't there. (error 76)\n\nThe program doesn't make that folder. Make it, put a copy of "_s +
          tree.Path(Saved) + u" there as Monthly.txt, then load the template again."_s + Cleared);
  // A start doesn't make it.
  desk.Program.End();
  QVERIFY(desk.Program.StartAtMenu());
  QVERIFY(!tree.Exists(u"/Templates/Invoices"_s));
  // What the box says helps.
  tree.Write(Opened, Hammers);
  desk.OpenInvoice();
  LoadTemplate();
  QCOMPARE(InvoicingDesk::Line(1).at(1), u"Hammer"_s);
}

void TemplateRecipe::withoutTheCopyToReadTheBoxNamesBothFiles() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(Listed, Hammers);
  tree.Write(Saved, Hammers);
  tree.MakeFolder(u"/Templates/Invoices"_s);
  QVERIFY(desk.Program.StartAtMenu());
  // The opening makes an empty file, whose record has no price.
  const QString box = BoxOfTheLoad(desk);
  QVERIFY2(box.startsWith(tree.Path(Opened) + u": "_s) && box.contains(u"(error 13)"_s) && box.endsWith(Cleared),
           qPrintable(box));
  QVERIFY(box.contains(u"its lines are counted in "_s + tree.Path(Saved) + u": put the same good file in both"_s));
}

void TemplateRecipe::aTemplateThatIsDamagedNamesBothFiles() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  QByteArray damaged = Hammers;
  damaged.replace("12.00", "cheap");
  for (const QString& name : {Listed, Saved, Opened}) tree.Write(name, damaged);
  QVERIFY(desk.Program.StartAtMenu());
  QCOMPARE(
      BoxOfTheLoad(desk),
      tree.Path(Opened) +
          u": What stands there isn't the number, amount or date that it must be. (error 13)\n\nA template is read "_s
          u"from "_s +
          tree.Path(Opened) + u", and its lines are counted in "_s + tree.Path(Saved) +
          u": put the same good file in both places, then load it again."_s + Cleared);
}

void TemplateRecipe::anExtensionTooLargeNamesBothFiles() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  QByteArray large = Hammers;
  large.replace("3    ", "1E300");
  large.replace("12.00", "1E300");
  for (const QString& name : {Listed, Saved, Opened}) tree.Write(name, large);
  QVERIFY(desk.Program.StartAtMenu());
  const QString box = BoxOfTheLoad(desk);
  QVERIFY2(box.startsWith(tree.Path(Opened) + u": "_s) && box.contains(u"(error 6)"_s) && box.endsWith(Cleared),
           qPrintable(box));
  QVERIFY(box.contains(u"its lines are counted in "_s + tree.Path(Saved) + u": put the same good file in both"_s));
}

void TemplateRecipe::aDiskThatFailsIsToldAsOneAndThatTheInvoiceIsCleared_data() {
  QTest::addColumn<int>("error");
  QTest::addColumn<QString>("told");
  QTest::newRow("unreadable") << EACCES
                              << u"The file or its folder is write-protected or may not be used. (error 70)"_s;
  QTest::newRow("broken") << EIO << u"The file or folder can't be used. (error 75)"_s;
}

void TemplateRecipe::aDiskThatFailsIsToldAsOneAndThatTheInvoiceIsCleared() {
  QFETCH(int, error);
  QFETCH(QString, told);
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  for (const QString& name : {Listed, Saved, Opened}) tree.Write(name, Hammers);
  QVERIFY(desk.Program.StartAtMenu());
  OpenWithALine(desk);
  desk.Program.Files.FailAlways(FailingDevice::Call::Read, error);
  desk.Program.Answers.Ok();
  LoadTemplate();
  desk.Program.Files.Reset();
  QCOMPARE(desk.Program.Answers.Last().Text,
           tree.Path(Opened) + u": "_s + told +
               u"\n\nCheck that you may read and write the file and its folder, then try again."_s + Cleared);
  QCOMPARE(InvoicingDesk::Line(1), QStringList(6, QString()));
  LoadTemplate();
  QCOMPARE(InvoicingDesk::Line(1).at(1), u"Hammer"_s);
}

void TemplateRecipe::aTemplateOfTooManyLinesNamesTheFileThatCountsThem() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  for (const QString& name : {Listed, Saved, Opened}) tree.Write(name, Hammers.repeated(101));
  QVERIFY(desk.Program.StartAtMenu());
  QCOMPARE(
      BoxOfTheLoad(desk),
      tree.Path(Saved) +
          u": It counts more lines than the 100 of an invoice. (error 9)\n\nRemove the file and save the template "_s
          u"anew, then copy it and load it again."_s +
          Cleared);
}

void TemplateRecipe::aNameWithASeparatorIsToldAsOne() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  InvoicingDesk::Invoice().Click(u"cmdInvoice_0"_s);
  PostCrate();
  InvoicingDesk::Invoice().Trigger(u"mnuCreate"_s);
  desk.Program.Answers.Dialog([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setTextValue(u"a/b"_s);
    dialog.accept();
  });
  desk.Program.Answers.Ok();
  InvoicingDesk::Invoice().Click(u"cmdTemplate_2"_s);
  const QString box = desk.Program.Answers.Last().Text;
  QVERIFY2(box.endsWith(u"(error 76)\n\nSave the template under a name without / and \\. Nothing was lost."_s),
           qPrintable(box));
  QCOMPARE(InvoicingDesk::Line(1).at(1), u"Crate"_s);
}

QTEST_MAIN(TemplateRecipe)
#include "tst_templateRecipe.moc"
