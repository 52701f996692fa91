// The views of the invoice screen: which frame and which help each menu entry shows, what opening a view resets, and
// the buttons that go with it.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList Frames{u"fraSetup"_s, u"fraServices"_s, u"fraItems"_s,     u"fraCItems"_s,    u"fraManual"_s,
                         u"fraLabor"_s, u"fraMemo"_s,     u"fraNarrative"_s, u"fraPrintReady"_s};

QStringList Shown(const ScreenDriver& screen) {
  QStringList shown;
  for (const QString& frame : Frames) {
    if (screen.IsVisible(frame)) shown += frame;
  }
  return shown;
}

QList<int> Help(const ScreenDriver& screen) {
  QList<int> shown;
  for (int i = 0; i < 12; ++i) {
    if (screen.IsVisible(u"fraInstructions_%1"_s.arg(i))) shown += i;
  }
  return shown;
}

QStringList Entries(const InvoiceBench& bench, const QString& combo) {
  const auto* list = bench.On().Control<QComboBox>(combo);
  QStringList entries;
  for (int i = 0; i < list->count(); ++i) entries += list->itemText(i);
  return entries;
}

}  // namespace

class ScreenViews : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eachMenuEntryShowsItsFrameAndItsHelp_data();
  void eachMenuEntryShowsItsFrameAndItsHelp();
  void theItemsEntryClosesAnOpenCustomFrameFirst();
  void openingServicesSelectsNothingAndGoesToTheDescription();
  void openingItemsSelectsNoCategoryAndEmptiesTheUnits();
  void openingCustomItemsEmptiesTheirUnits();
  void openingManualSetsThePriceToZeroAndKeepsTheDescription();
  void openingLaborClearsItAndGoesToTheLastHours();
  void laborThatWasRenamedShowsAtTheNextOpening();
  void openingTheNarrativeGoesToItsText();
  void escapeInAnEntryFrameClosesIt();
  void escapeLeavesAFrameOpenWhereSomethingWasTyped_data();
  void escapeLeavesAFrameOpenWhereSomethingWasTyped();
  void escapeClosesAFrameAgainOnceTheLineIsPosted();
  void escapeClosesTheMemoAgainOnceItIsSaved();
  void itemsCompleteHidesTheItemsAlone();
  void theHelpButtonsPutOnePanelInPlaceOfAnother();
  void theDiscountHelpCoversTheFirstHelpUntilItIsSentBack();
  void theShippingWindowIsHiddenUntilToggled();
  void wayForwardButtonsFollowTheView();
  void entriesWithoutTheirFileAreDisabled();
  void laborWithoutARateIsDisabledAndWithOneEnabledAgain();
  void everyViewFitsTheSmallestScreen();
  void everyBoxHasAnAccessibleName();
  void accessKeysOfAViewDifferFromEachOther();
  void theSetupViewSaysWhereCommasDoHarm();
  void theNextInvoiceLeavesThePrintReadyViewForSetup();
  void theCaptionsStandAsTheUserKnowsThem();
  void theListsHoldTheirEntriesInOrder();
};

void ScreenViews::eachMenuEntryShowsItsFrameAndItsHelp_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QStringList>("frames");
  QTest::addColumn<int>("help");
  QTest::newRow("setup") << u"mnuSetup"_s << QStringList{u"fraSetup"_s} << 0;
  QTest::newRow("creation") << u"mnuCreate"_s << QStringList{} << 1;
  QTest::newRow("print ready") << u"mnuPrint"_s << QStringList{u"fraPrintReady"_s} << 2;
  QTest::newRow("items") << u"mnuItems"_s << QStringList{u"fraItems"_s} << 6;
  QTest::newRow("manual") << u"mnuManual"_s << QStringList{u"fraManual"_s} << 7;
  QTest::newRow("labor") << u"mnuLabor"_s << QStringList{u"fraLabor"_s} << 8;
  QTest::newRow("services") << u"mnuServices"_s << QStringList{u"fraServices"_s} << 9;
  QTest::newRow("narrative") << u"mnuNarrative"_s << QStringList{u"fraNarrative"_s} << 10;
  QTest::newRow("custom items") << u"mnuCItems"_s << QStringList{u"fraCItems"_s} << 11;
  QTest::newRow("memo") << u"mnuMemo"_s << QStringList{u"fraMemo"_s} << 0;
}

void ScreenViews::eachMenuEntryShowsItsFrameAndItsHelp() {
  QFETCH(QString, entry);
  QFETCH(QStringList, frames);
  QFETCH(int, help);
  InvoiceBench bench;
  bench.Open();
  QCOMPARE(Shown(bench.On()), QStringList{u"fraSetup"_s});
  QCOMPARE(Help(bench.On()), QList<int>{0});
  bench.On().Trigger(entry);
  QCOMPARE(Shown(bench.On()), frames);
  QCOMPARE(Help(bench.On()), QList<int>{help});
  QVERIFY(bench.On().IsVisible(u"fgInvoice"_s));
  bench.On().Trigger(u"mnuClose"_s);
  QCOMPARE(Shown(bench.On()), QStringList{});
  QCOMPARE(Help(bench.On()), QList<int>{help});
}

void ScreenViews::theItemsEntryClosesAnOpenCustomFrameFirst() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuCItems"_s);
  bench.On().Trigger(u"mnuItems"_s);
  QCOMPARE(Shown(bench.On()), QStringList{u"fraItems"_s});
}

void ScreenViews::openingServicesSelectsNothingAndGoesToTheDescription() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PickEntry(u"cboDescription_0"_s, u"Repair"_s);
  QCOMPARE(bench.Text(u"cboPrice_0"_s), u"$80.00"_s);
  bench.On().Trigger(u"mnuCreate"_s);
  bench.On().Trigger(u"mnuServices"_s);
  QCOMPARE(bench.Text(u"cboDescription_0"_s), QString());
  QCOMPARE(bench.Text(u"cboPrice_0"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"cboDescription_0"_s);
}

void ScreenViews::openingItemsSelectsNoCategoryAndEmptiesTheUnits() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuItems"_s);
  auto* categories = bench.On().Control<QListWidget>(u"lstCategories"_s);
  categories->setCurrentRow(1);
  bench.On().PickEntry(u"cboDescription_1"_s, u"Hammer"_s);
  bench.On().Type(u"4"_s);
  QCOMPARE(bench.Text(u"txtUnits"_s), u"4"_s);
  bench.On().Trigger(u"mnuItems"_s);
  QCOMPARE(categories->currentRow(), -1);
  QCOMPARE(bench.Text(u"cboDescription_1"_s), QString());
  QCOMPARE(bench.Text(u"cboPrice_1"_s), QString());
  QCOMPARE(bench.Text(u"txtUnits"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"cboDescription_1"_s);
}

void ScreenViews::openingCustomItemsEmptiesTheirUnits() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuCItems"_s);
  bench.On().PickEntry(u"cboDescription_2"_s, u"Sign"_s);
  bench.On().Type(u"2"_s);
  bench.On().Trigger(u"mnuCItems"_s);
  QCOMPARE(bench.Text(u"cboDescription_2"_s), QString());
  QCOMPARE(bench.Text(u"cboPrice_2"_s), QString());
  QCOMPARE(bench.Text(u"txtCUnits"_s), QString());
  QCOMPARE(bench.On().FocusName(), u"cboDescription_2"_s);
}

void ScreenViews::openingManualSetsThePriceToZeroAndKeepsTheDescription() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuManual"_s);
  QCOMPARE(bench.Text(u"txtManual_1"_s), u"$0.00"_s);
  QCOMPARE(bench.On().FocusName(), u"txtManual_0"_s);
  bench.On().Fill(u"txtManual_0"_s, u"Crate"_s);
  bench.On().Fill(u"txtManual_2"_s, u"3"_s);
  bench.On().Fill(u"txtManual_1"_s, u"12"_s);
  bench.On().Trigger(u"mnuManual"_s);
  QCOMPARE(bench.Text(u"txtManual_0"_s), u"Crate"_s);
  QCOMPARE(bench.Text(u"txtManual_2"_s), QString());
  QCOMPARE(bench.Text(u"txtManual_1"_s), u"$0.00"_s);
}

void ScreenViews::openingLaborClearsItAndGoesToTheLastHours() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuLabor"_s);
  // The box that gets the focus blanks its zero.
  QCOMPARE(bench.On().FocusName(), u"txtHours_1"_s);
  QCOMPARE(bench.Text(u"txtHours_1"_s), QString());
  QCOMPARE(bench.Text(u"txtHours_0"_s), u"0"_s);
  QVERIFY(!bench.On().IsVisible(u"txtHours_2"_s));
  QVERIFY(!bench.On().IsVisible(u"lblLaborHeading_2"_s));
  QVERIFY(!bench.On().IsVisible(u"lblLaborCharge_2"_s));
  QCOMPARE(bench.Text(u"lblLaborHeading_0"_s), u"General Labor at $45.00 per Hour"_s);
  QCOMPARE(bench.Text(u"lblLaborHeading_1"_s), u"Night Labor at $90.00 per Hour"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_0"_s), u"$0.00"_s);
  QCOMPARE(bench.Text(u"lblLaborCharge_3"_s), u"$0.00"_s);
}

void ScreenViews::laborThatWasRenamedShowsAtTheNextOpening() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.Prices.Labor.txtLabor[2] = u"Weekend Labor"_s;
  bench.Prices.Labor.txtLaborRate[2] = u"$120.00"_s;
  bench.On().Trigger(u"mnuLabor"_s);
  QCOMPARE(bench.Text(u"lblLaborHeading_2"_s), u"Weekend Labor at $120.00 per Hour"_s);
  QCOMPARE(bench.On().FocusName(), u"txtHours_2"_s);
}

void ScreenViews::openingTheNarrativeGoesToItsText() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuNarrative"_s);
  QCOMPARE(bench.On().FocusName(), u"txtNarrative"_s);
}

void ScreenViews::escapeInAnEntryFrameClosesIt() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuServices"_s);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{});
  QCOMPARE(Help(bench.On()), QList<int>{1});
}

void ScreenViews::escapeLeavesAFrameOpenWhereSomethingWasTyped_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QString>("frame");
  QTest::addColumn<QString>("box");
  QTest::newRow("services") << u"mnuServices"_s << u"fraServices"_s << u"cboDescription_0"_s;
  QTest::newRow("a price") << u"mnuServices"_s << u"fraServices"_s << u"cboPrice_0"_s;
  QTest::newRow("items") << u"mnuItems"_s << u"fraItems"_s << u"txtUnits"_s;
  QTest::newRow("custom items") << u"mnuCItems"_s << u"fraCItems"_s << u"txtCUnits"_s;
  QTest::newRow("manual") << u"mnuManual"_s << u"fraManual"_s << u"txtManual_0"_s;
  QTest::newRow("labor") << u"mnuLabor"_s << u"fraLabor"_s << u"txtHours_1"_s;
  QTest::newRow("memo") << u"mnuMemo"_s << u"fraMemo"_s << u"txtMemo"_s;
  QTest::newRow("narrative") << u"mnuNarrative"_s << u"fraNarrative"_s << u"txtNarrative"_s;
}

void ScreenViews::escapeLeavesAFrameOpenWhereSomethingWasTyped() {
  QFETCH(const QString, entry);
  QFETCH(const QString, frame);
  QFETCH(const QString, box);
  InvoiceBench bench;
  bench.Tree.Write(u"/Narrative.txt"_s, "Thank you\r\n");
  bench.Tree.Write(u"/InvoiceMemo.txt"_s, "Open all day\r\n");
  bench.OpenAt(entry);
  bench.On().Control(box)->setFocus();
  bench.On().Type(u"7"_s);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{frame});
  QCOMPARE(bench.Dialogs.Beeps, 1);
  // Opened anew, and nothing typed yet.
  bench.On().Trigger(entry);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{});
  QCOMPARE(bench.Dialogs.Beeps, 1);
}

void ScreenViews::escapeClosesAFrameAgainOnceTheLineIsPosted() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.PostManual(u"Crate"_s, u"2"_s, u"10"_s);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{});
  // A post that was refused posts nothing.
  bench.On().Trigger(u"mnuManual"_s);
  bench.On().Fill(u"txtManual_0"_s, u"Crate"_s);
  bench.On().Click(u"cmdPost_2"_s);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{u"fraManual"_s});
}

void ScreenViews::escapeClosesTheMemoAgainOnceItIsSaved() {
  InvoiceBench bench;
  bench.OpenAt(u"mnuMemo"_s);
  bench.On().Type(u"Open all day"_s);
  bench.On().Click(u"cmdInvoiceMemo_2"_s);
  bench.On().PressKey(Qt::Key_Escape);
  QCOMPARE(Shown(bench.On()), QStringList{});
}

void ScreenViews::itemsCompleteHidesTheItemsAlone() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuItems"_s);
  bench.On().Click(u"cmdItemscomplete"_s);
  QCOMPARE(Shown(bench.On()), QStringList{});
  QCOMPARE(Help(bench.On()), QList<int>{6});
}

void ScreenViews::theHelpButtonsPutOnePanelInPlaceOfAnother() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Click(u"cmdTemplate_3"_s);
  QCOMPARE(Help(bench.On()), QList<int>{3});
  bench.On().Click(u"cmdTemplate_4"_s);
  QCOMPARE(Help(bench.On()), QList<int>{1});
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_8"_s);
  QCOMPARE(Help(bench.On()), QList<int>{4});
  bench.On().Click(u"cmdInvoice_7"_s);
  QCOMPARE(Help(bench.On()), QList<int>{2});
}

void ScreenViews::theDiscountHelpCoversTheFirstHelpUntilItIsSentBack() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_3"_s);
  QCOMPARE(Help(bench.On()), (QList<int>{2, 5}));
  const QWidget* help = bench.On().Control(u"fraInstructions_5"_s);
  QVERIFY(help->autoFillBackground());
  QCOMPARE(help->geometry(), bench.On().Control(u"fraInstructions_2"_s)->geometry());
  bench.On().Click(u"cmdInvoice_10"_s);
  QCOMPARE(Help(bench.On()), QList<int>{2});
}

void ScreenViews::theShippingWindowIsHiddenUntilToggled() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  QVERIFY(!bench.On().IsVisible(u"fraShipping"_s));
  bench.On().Click(u"cmdInvoice_6"_s);
  QVERIFY(bench.On().IsVisible(u"fraShipping"_s));
  QVERIFY(bench.On().IsVisible(u"cboShipping"_s));
  QVERIFY(bench.On().IsVisible(u"DTShip"_s));
  bench.On().Click(u"cmdInvoice_6"_s);
  QVERIFY(!bench.On().IsVisible(u"fraShipping"_s));
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.On().Click(u"cmdInvoice_11"_s);
  QVERIFY(!bench.On().IsVisible(u"fraShipping"_s));
}

void ScreenViews::wayForwardButtonsFollowTheView() {
  InvoiceBench bench;
  bench.Open();
  QVERIFY(bench.On().IsVisible(u"cmdInvoice_0"_s));
  QVERIFY(!bench.On().IsVisible(u"cmdInvoice_9"_s));
  bench.On().Trigger(u"mnuCreate"_s);
  QVERIFY(!bench.On().IsVisible(u"cmdInvoice_0"_s));
  QVERIFY(bench.On().IsVisible(u"cmdPrint"_s));
  bench.On().Trigger(u"mnuPrint"_s);
  for (const auto& name : {u"cmdInvoice_9"_s, u"cmdInvoiceContinue"_s, u"cmdCancelPrint"_s}) {
    QVERIFY2(bench.On().IsVisible(name), qPrintable(name));
  }
  for (const auto& name : {u"cmdInvoice_1"_s, u"cmdExit"_s, u"cmdRedo"_s, u"cmdSave"_s}) {
    QVERIFY2(bench.On().IsEnabled(name), qPrintable(name));
  }
}

void ScreenViews::entriesWithoutTheirFileAreDisabled() {
  InvoiceBench bench;
  bench.Tree.Remove(u"/Services.txt"_s);
  bench.Tree.Remove(u"/KVInventoriedItems.txt"_s);
  bench.Tree.Remove(u"/CustomItems.txt"_s);
  bench.Open();
  for (const auto& entry : {u"mnuServices"_s, u"mnuItems"_s, u"mnuCItems"_s}) {
    QVERIFY2(!bench.On().Entry(entry)->isEnabled(), qPrintable(entry));
  }
  QVERIFY(bench.On().Entry(u"mnuManual"_s)->isEnabled());
  QVERIFY(bench.On().Entry(u"mnuPrint"_s)->isEnabled());
  // A file that only the backup holds comes back.
  bench.Tree.Write(u"/Backup/Services.txt"_s, Field("Repair", 60) + Field("$80.00", 10) + Bytes16(4));
  bench.Reopen();
  QVERIFY(bench.On().Entry(u"mnuServices"_s)->isEnabled());
  QVERIFY(bench.Tree.Exists(u"/Services.txt"_s));
}

void ScreenViews::laborWithoutARateIsDisabledAndWithOneEnabledAgain() {
  InvoiceBench bench;
  bench.Tree.Write(u"/Labor.txt"_s, "\"General Labor\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n\"\",\"$0.00\"\r\n");
  bench.Open();
  QVERIFY(!bench.On().Entry(u"mnuLabor"_s)->isEnabled());
  bench.Prices.Labor.txtLaborRate[0] = u"$45.00"_s;
  bench.Reopen();
  QVERIFY(bench.On().Entry(u"mnuLabor"_s)->isEnabled());
}

void ScreenViews::everyViewFitsTheSmallestScreen() {
  InvoiceBench bench;
  bench.Tree.Write(u"/TaxSettings.txt"_s, "\"Provincial Tax\",\"Provincial Tax\",\"6.0\",\"1.0\",1,1\r\n");
  bench.Customer[1] = u"The Springfield Hardware and Paint and Glass Co"_s;
  bench.OpenAtLines();
  for (const auto& entry : {u"mnuSetup"_s, u"mnuCreate"_s, u"mnuServices"_s, u"mnuItems"_s, u"mnuCItems"_s,
                            u"mnuManual"_s, u"mnuLabor"_s, u"mnuMemo"_s, u"mnuNarrative"_s, u"mnuPrint"_s}) {
    bench.On().Trigger(entry);
    const QSize least = bench.On().Window()->minimumSizeHint();
    QVERIFY2(least.width() <= 1024 && least.height() <= 700, qPrintable(entry));
  }
  bench.On().Click(u"cmdInvoice_6"_s);
  bench.Answers.Ok();
  bench.On().Click(u"optDiscount_2"_s);
  const QSize least = bench.On().Window()->minimumSizeHint();
  QVERIFY(least.width() <= 1024 && least.height() <= 700);
}

void ScreenViews::everyBoxHasAnAccessibleName() {
  InvoiceBench bench;
  bench.Open();
  for (const QWidget* box : bench.On().Window()->findChildren<QWidget*>()) {
    const bool entry =
        qobject_cast<const QLineEdit*>(box) != nullptr || qobject_cast<const QComboBox*>(box) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(box) != nullptr || qobject_cast<const QDateEdit*>(box) != nullptr ||
        qobject_cast<const QTableView*>(box) != nullptr;
    // What a combo or a date box is made of speaks by the whole.
    if (!entry || box->objectName().isEmpty() || box->objectName().startsWith(u"qt_")) continue;
    QVERIFY2(!box->accessibleName().isEmpty(), qPrintable(box->objectName()));
  }
}

void ScreenViews::accessKeysOfAViewDifferFromEachOther() {
  InvoiceBench bench;
  bench.OpenAtLines();
  static const QRegularExpression mark(u"&([A-Za-z0-9])"_s);
  for (const auto& entry : {u"mnuSetup"_s, u"mnuCreate"_s, u"mnuServices"_s, u"mnuItems"_s, u"mnuCItems"_s,
                            u"mnuManual"_s, u"mnuLabor"_s, u"mnuMemo"_s, u"mnuNarrative"_s, u"mnuPrint"_s}) {
    bench.On().Trigger(entry);
    QMap<QString, QString> used{{u"I"_s, u"menu"_s}, {u"E"_s, u"menu"_s}, {u"L"_s, u"menu"_s}};
    for (const QWidget* control : bench.On().Window()->findChildren<QWidget*>()) {
      if (!control->isVisible() || qobject_cast<const QToolButton*>(control) != nullptr) continue;
      QString text;
      if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && label->buddy() != nullptr) {
        text = label->text();
      } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
        text = button->text();
      }
      const auto match = mark.match(text);
      if (!match.hasMatch()) continue;
      const QString key = match.captured(1).toUpper();
      QVERIFY2(!used.contains(key), qPrintable(entry + u": "_s + text + u" and "_s + used.value(key)));
      used[key] = text;
    }
  }
}

void ScreenViews::theSetupViewSaysWhereCommasDoHarm() {
  InvoiceBench bench;
  bench.Open();
  QVERIFY(bench.Text(u"lblInstructions_0"_s).contains(u"Leave commas out of the reference and the attention line"_s));
  for (const auto& box : {u"txtShipto_6"_s, u"txtReference"_s}) {
    QVERIFY2(bench.On().Control(box)->toolTip().contains(u"ithout commas"_s), qPrintable(box));
  }
}

void ScreenViews::theNextInvoiceLeavesThePrintReadyViewForSetup() {
  InvoiceBench bench;
  bench.OpenAtLines();
  bench.On().Trigger(u"mnuPrint"_s);
  bench.On().Click(u"cmdInvoice_3"_s);
  bench.Reopen();
  QCOMPARE(Shown(bench.On()), QStringList{u"fraSetup"_s});
  QCOMPARE(Help(bench.On()), QList<int>{0});
}

void ScreenViews::theCaptionsStandAsTheUserKnowsThem() {
  InvoiceBench bench;
  bench.Open();
  for (const auto& [name, caption] : {std::pair(u"cmdInvoice_1"_s, u"&Menu"_s),
                                      {u"cmdInvoice_2"_s, u"Reload Next Invoice No"_s},
                                      {u"cmdInvoice_6"_s, u"Toggle Shipping Window"_s},
                                      {u"cmdInvoice_11"_s, u"Close Shipping Window "_s},
                                      {u"cmdShipToAddress_0"_s, u"Same as Sold to"_s},
                                      {u"cmdShipToAddress_1"_s, u"Clear Ship To"_s},
                                      {u"ckPrepaid"_s, u"Invoice is Pre-Paid"_s}}) {
    QCOMPARE(bench.Text(name), caption);
  }
}

void ScreenViews::theListsHoldTheirEntriesInOrder() {
  InvoiceBench bench;
  bench.Open();
  QCOMPARE(Entries(bench, u"cboDays"_s), (QStringList{u"0"_s, u"10"_s, u"15"_s, u"20"_s, u"30"_s}));
  QCOMPARE(Entries(bench, u"cboPrepaid"_s), (QStringList{u"Check # "_s, u"Credit Card # "_s, u"Cash"_s}));
  QCOMPARE(Entries(bench, u"cboDiscount"_s),
           (QStringList{u"0.0"_s, u"1.0"_s, u"1.5"_s, u"2.0"_s, u"0,0"_s, u"1,0"_s, u"1,5"_s, u"2,0"_s}));
  QCOMPARE(Entries(bench, u"cboTerms"_s),
           (QStringList{u"Payment due in Full upon Receipt"_s, u"Payment due in Full within 10 Days"_s,
                        u"Payment due in Full within 15 Days"_s, u"Payment due in Full within 30 Days"_s,
                        u"Discount 1% in 10 days, Net 15 days"_s, u"Discount 2% in 10 days, Net 15 days"_s,
                        u"Discount 1% in 10 days, Net 20 days"_s, u"Discount 2% in 10 days, Net 20 days"_s,
                        u"Discount 1% in 10 days, Net 30 days"_s, u"Discount 2% in 10 days, Net 30 days"_s,
                        u" A Discount has been Applied"_s}));
}

QTEST_MAIN(ScreenViews)
#include "tst_screenViews.moc"
