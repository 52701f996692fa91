// The boxes of the catalogue screen: keys, the focus coming and going; the labor tab; leaving the screen.

#include "support/CatalogueScreen.h"

using namespace Qt::StringLiterals;

namespace {
const QByteArray LaborFile = "\"General Labor\",\"$45.00\"\r\n\"Welding\",\"$60.00\"\r\n\"Painting\",\"$30.00\"\r\n";
}

class ScreenBoxes : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aServiceDescriptionTakesThirtyFourTypedCharacters();
  void chargesTakeDecimalKeysAloneAndNoBackspace();
  void pastedTextPassesTheSameKeys();
  void aZeroChargeIsEmptiedWhenEnteredAndOthersStay();
  void leavingAChargeReformatsIt();
  void leavingAnEmptyServiceChargeTakesTheFocusBack();
  void leavingAnEmptySellPriceTakesTheFocusBack();
  void aWayOutRunsThoughTheChargeIsEmpty();
  void leavingAnEmptyDiscountPriceTakesTheSellPrice();
  void aDiscountPriceOfAPointAloneTakesTheSellPriceToo();
  void customPricesAreNotCheckedOnLeaving();
  void leavingCostReformatsItAndLeavesAnEmptyOneAlone();
  void quantityBoxesEmptyAZeroAndOnlyTheDiscountQuantityPutsItBack();
  void anEmptyLaborRateIsToldAndKeepsTheFocus();
  void aLaborRateOfAPointAloneIsNoAmount();
  void aLaborRateIsReformattedOnLeaving();
  void laborNamesRefuseTheDoubleQuote();
  void theFirstLaborNameIsSelectedAsItsTabOpens();
  void createGeneralLaborEmptiesTheNamesAndTheFirstRate();
  void clearAllEmptiesNamesAndRates();
  void reloadBringsTheFileBack();
  void saveLaborRatesWritesTheFileAndShowsTheServices();
  void theMenuSavesTheListsAndNotTheLaborRates();
  void theCloseBoxSavesBothAndThenTheBackupRuns();
  void anActivationShutsTheBoxes();
  void aDiskThatIsFullIsToldAndTheScreenStays();
  void aCloseThatCannotSaveTheListsLeavesTheLaborRatesForTheNextOne();
  void theZeroTimeOfAServiceComesBackAsAQuarterOfAnHour();
  void aDamagedFileEndsTheStartAndStaysAsItIs();
};

void ScreenBoxes::aServiceDescriptionTakesThirtyFourTypedCharacters() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, Field(QByteArray(50, 'y'), 60) + Field("$1.00", 10) + Hex("01 00"));
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", QByteArray(40, 'x').constData());
  QCOMPARE(screen.Text("txtDescription_0"), QString(34, u'x'));
  // A longer text of the file is shown whole.
  screen.SelectRow("fgServices", 1);
  screen.Click(3);
  QCOMPARE(screen.Text("txtDescription_0"), QString(50, u'y'));
}

void ScreenBoxes::chargesTakeDecimalKeysAloneAndNoBackspace() {
  CatalogueScreen screen;
  screen.Open();
  for (const int command : {1, 8, 18}) {
    screen.ShowTab(command == 1 ? 0 : command == 8 ? 1 : 3);
    screen.Click(command);
    for (const char* box : {"txtCharge_0", "txtCharge_1", "txtCharge_2", "txtCost", "txtCharge_3", "txtCharge_4"}) {
      if (!screen.Driver().IsVisible(QString::fromLatin1(box))) continue;
      screen.Fill(box, "0a-1.2.5$");
      QCOMPARE(screen.Text(box), u"1.25"_s);
      screen.Driver().PressKey(Qt::Key_Backspace);
      QCOMPARE(screen.Text(box), u"1.25"_s);
    }
  }
  screen.ShowTab(2);
  screen.Fill("txtLaborRate_1", "0a-1.2.5$");
  screen.Driver().PressKey(Qt::Key_Backspace);
  QCOMPARE(screen.Text("txtLaborRate_1"), u"1.25"_s);
}

void ScreenBoxes::pastedTextPassesTheSameKeys() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtCharge_0", "");
  screen.Driver().Paste(u"$1,2x3.4.5"_s);
  QCOMPARE(screen.Text("txtCharge_0"), u"123.45"_s);
}

void ScreenBoxes::aZeroChargeIsEmptiedWhenEnteredAndOthersStay() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.Click(24);
  screen.SetFocus("txtCharge_1");
  QCOMPARE(screen.Text("txtCharge_1"), QString());
  screen.Driver().Type(u"5"_s);
  screen.SetFocus("txtCharge_2");
  QCOMPARE(screen.Text("txtCharge_2"), QString());
  screen.SetFocus("txtCharge_1");
  QCOMPARE(screen.Text("txtCharge_1"), u"$5.00"_s);
}

void ScreenBoxes::leavingAChargeReformatsIt() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtCharge_0", "1234.567");
  screen.SetFocus("txtDescription_0");
  QCOMPARE(screen.Text("txtCharge_0"), u"$1,234.57"_s);
}

void ScreenBoxes::leavingAnEmptyServiceChargeTakesTheFocusBack() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  for (const char* text : {"", "."}) {
    screen.Fill("txtCharge_0", text);
    screen.Click(4);
    QCOMPARE(screen.TakeBeeps(), 1);
    QCOMPARE(screen.Focus(), u"txtCharge_0"_s);
    // The zero that it was set to is emptied by the focus coming back.
    QCOMPARE(screen.Text("txtCharge_0"), QString());
    QCOMPARE(screen.Rows("fgServices"), 0);
  }
}

void ScreenBoxes::leavingAnEmptySellPriceTakesTheFocusBack() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.SetFocus("txtCharge_1");
  screen.SetFocus("txtCost");
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Focus(), u"txtCharge_1"_s);
}

void ScreenBoxes::aWayOutRunsThoughTheChargeIsEmpty() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.Fill("txtCharge_0", "");
  screen.Click(5);
  QCOMPARE(screen.Text("txtDescription_0"), QString());
  screen.Fill("txtCharge_0", "");
  screen.TakeBeeps();
  screen.Click(0);
  QCOMPARE(screen.TakeBeeps(), 1);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

void ScreenBoxes::leavingAnEmptyDiscountPriceTakesTheSellPrice() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.Fill("txtCharge_1", "12.5");
  screen.Fill("txtCharge_2", "");
  screen.SetFocus("txtReorderAt");
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Text("txtCharge_2"), u"$12.50"_s);
  QCOMPARE(screen.Focus(), u"txtReorderAt"_s);
  screen.Fill("txtCharge_2", "11");
  screen.SetFocus("txtReorderAt");
  QCOMPARE(screen.TakeBeeps(), 0);
  QCOMPARE(screen.Text("txtCharge_2"), u"$11.00"_s);
  // Without a sell price it is zero.
  screen.Click(8);
  QCOMPARE(screen.Text("txtCharge_1"), QString());
  screen.Fill("txtCharge_2", "");
  screen.SetFocus("txtReorderAt");
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Text("txtCharge_2"), u"$0.00"_s);
}

void ScreenBoxes::aDiscountPriceOfAPointAloneTakesTheSellPriceToo() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Click(8);
  screen.Fill("txtCharge_1", "12.5");
  screen.Fill("txtCharge_2", ".");
  screen.SetFocus("txtReorderAt");
  QCOMPARE(screen.TakeBeeps(), 1);
  QCOMPARE(screen.Text("txtCharge_2"), u"$12.50"_s);
}

void ScreenBoxes::customPricesAreNotCheckedOnLeaving() {
  CatalogueScreen screen;
  screen.Open(3);
  screen.Click(18);
  screen.Fill("txtCharge_3", "5");
  screen.Fill("txtCharge_4", "");
  screen.SetFocus("txtDescription_2");
  QCOMPARE(screen.Focus(), u"txtDescription_2"_s);
  QCOMPARE(screen.TakeBeeps(), 0);
  QCOMPARE(screen.Text("txtCharge_3"), u"5"_s);
  QCOMPARE(screen.Text("txtCharge_4"), QString());
}

void ScreenBoxes::leavingCostReformatsItAndLeavesAnEmptyOneAlone() {
  CatalogueScreen screen;
  screen.Open(1);
  screen.Fill("txtCost", "3.5");
  screen.SetFocus("txtOnHand");
  QCOMPARE(screen.Text("txtCost"), u"$3.50"_s);
  screen.Fill("txtCost", "");
  screen.SetFocus("txtOnHand");
  QCOMPARE(screen.Text("txtCost"), QString());
  screen.Fill("txtCost", ".");
  screen.Program.Answers.Ok();
  screen.SetFocus("txtOnHand");
  QVERIFY(screen.Program.Answers.Last().Text.startsWith(u"Cost per unit: "_s));
  QCOMPARE(screen.Text("txtCost"), u"."_s);
}

void ScreenBoxes::quantityBoxesEmptyAZeroAndOnlyTheDiscountQuantityPutsItBack() {
  CatalogueScreen screen;
  screen.Open(1);
  for (const char* box : {"txtDiscountQty", "txtOnHand", "txtReorderAmount", "txtReorderAt"}) {
    screen.Fill(box, "0");
    screen.SetFocus("txtCost");
    QCOMPARE(screen.Text(box), u"0"_s);
    screen.SetFocus(box);
    QCOMPARE(screen.Text(box), QString());
    screen.SetFocus("txtCost");
    QCOMPARE(screen.Text(box), qstrcmp(box, "txtDiscountQty") == 0 ? u"0"_s : QString());
    screen.Fill(box, "12");
    screen.SetFocus("txtCost");
    screen.SetFocus(box);
    QCOMPARE(screen.Text(box), u"12"_s);
  }
}

void ScreenBoxes::anEmptyLaborRateIsToldAndKeepsTheFocus() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.Fill("txtLaborRate_1", "");
  screen.Program.Answers.Ok(u"Labor Rate must be greater than Zero"_s, u"Karvex Invoicer"_s);
  screen.Click(17);
  QCOMPARE(screen.Focus(), u"txtLaborRate_1"_s);
  QCOMPARE(screen.ShownTab(), 2);
  QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s), LaborFile);
}

void ScreenBoxes::aLaborRateOfAPointAloneIsNoAmount() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  const QString name = screen.Driver().Control(u"txtLaborRate_1"_s)->accessibleName();
  QVERIFY(!name.isEmpty());
  for (const bool byEnter : {false, true}) {
    // The point of an amount that stands there would refuse another.
    screen.Fill("txtLaborRate_1", "");
    screen.Fill("txtLaborRate_1", ".");
    screen.Program.Answers.Ok();
    if (byEnter) {
      screen.Driver().PressKey(Qt::Key_Return);
    } else {
      screen.Click(17);
    }
    QVERIFY(screen.Program.Answers.Last().Text.startsWith(name + u": "_s));
    QVERIFY(screen.Program.Answers.Last().Text.contains(u"(error 13)"_s));
    QCOMPARE(screen.Text("txtLaborRate_1"), u"."_s);
    QCOMPARE(screen.ShownTab(), 2);
    QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s), LaborFile);
  }
}

void ScreenBoxes::aLaborRateIsReformattedOnLeaving() {
  CatalogueScreen screen;
  screen.Open(2);
  screen.SetFocus("txtLaborRate_0");
  QCOMPARE(screen.Text("txtLaborRate_0"), QString());
  screen.Driver().Type(u"1045.5"_s);
  screen.SetFocus("txtLabor_0");
  QCOMPARE(screen.Text("txtLaborRate_0"), u"$1,045.50"_s);
  // A rate of zero is taken.
  screen.Fill("txtLaborRate_1", ".0");
  screen.SetFocus("txtLabor_0");
  QCOMPARE(screen.Text("txtLaborRate_1"), u"$0.00"_s);
}

void ScreenBoxes::laborNamesRefuseTheDoubleQuote() {
  CatalogueScreen screen;
  screen.Open(2);
  screen.Fill("txtLabor_1", "");
  screen.Program.Answers.Ok(u"This character, (\") is invalid for this field"_s, u"Invalid Key entry"_s);
  screen.Driver().Type(u"\""_s);
  QCOMPARE(screen.TakeBeeps(), 1);
  screen.Driver().Type(u"Fit"_s);
  screen.Driver().Paste(u" 6\" pipe"_s);
  QCOMPARE(screen.Text("txtLabor_1"), u"Fit 6 pipe"_s);
}

void ScreenBoxes::theFirstLaborNameIsSelectedAsItsTabOpens() {
  CatalogueScreen screen;
  screen.Open(2);
  QCOMPARE(screen.Text("txtLabor_0"), u"General Labor"_s);
  QCOMPARE(screen.Focus(), u"txtLabor_0"_s);
  ScreenDriver(u"frmServices"_s).Type(u"Mason"_s);
  QCOMPARE(screen.Text("txtLabor_0"), u"Mason"_s);
}

void ScreenBoxes::createGeneralLaborEmptiesTheNamesAndTheFirstRate() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.Click(12);
  QCOMPARE(screen.Text("txtLabor_0"), u"General Labor"_s);
  QCOMPARE(screen.Text("txtLabor_1"), QString());
  QCOMPARE(screen.Text("txtLabor_2"), QString());
  QCOMPARE(screen.Text("txtLaborRate_0"), QString());
  QCOMPARE(screen.Text("txtLaborRate_1"), u"$60.00"_s);
  QCOMPARE(screen.Text("txtLaborRate_2"), u"$30.00"_s);
  QCOMPARE(screen.Focus(), u"txtLaborRate_0"_s);
}

void ScreenBoxes::clearAllEmptiesNamesAndRates() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.SetFocus("txtLabor_2");
  screen.Driver().PressAccessKey('c');
  for (const char* box :
       {"txtLabor_0", "txtLabor_1", "txtLabor_2", "txtLaborRate_0", "txtLaborRate_1", "txtLaborRate_2"}) {
    QCOMPARE(screen.Text(box), QString());
  }
  QCOMPARE(screen.Focus(), u"txtLabor_0"_s);
}

void ScreenBoxes::reloadBringsTheFileBack() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.Click(15);
  screen.Click(16);
  QCOMPARE(screen.Text("txtLabor_1"), u"Welding"_s);
  QCOMPARE(screen.Text("txtLaborRate_2"), u"$30.00"_s);
  screen.Program.Tree.Remove(u"/Labor.txt"_s);
  screen.Click(16);
  QCOMPARE(screen.Text("txtLabor_0"), u"General Labor"_s);
  QCOMPARE(screen.Text("txtLaborRate_2"), u"$0.00"_s);
  QVERIFY(!screen.Live(16));
}

void ScreenBoxes::saveLaborRatesWritesTheFileAndShowsTheServices() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Backup/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.Fill("txtLabor_1", "Fitting, fine");
  screen.Fill("txtLaborRate_1", "1060.5");
  screen.Driver().PressAccessKey('l');
  QCOMPARE(
      screen.Program.Tree.Bytes(u"/Labor.txt"_s),
      QByteArray("\"General Labor\",\"$45.00\"\r\n\"Fitting, fine\",\"$1,060.50\"\r\n\"Painting\",\"$30.00\"\r\n"));
  QVERIFY(!screen.Program.Tree.Exists(u"/Backup/Labor.txt"_s));
  QCOMPARE(screen.ShownTab(), 0);
  QCOMPARE(screen.Focus(), u"cmdServices_1"_s);
}

void ScreenBoxes::theMenuSavesTheListsAndNotTheLaborRates() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Open(2);
  screen.Fill("txtLabor_1", "Fitting");
  screen.ShowTab(3);
  screen.Click(18);
  screen.Fill("txtDescription_2", "Engraving");
  screen.Fill("txtCharge_3", "100");
  screen.Fill("txtCharge_4", "90.5");
  screen.Fill("txtCustomDiscItems", "3");
  screen.Click(22);
  screen.Click(0);
  QVERIFY(!ScreenDriver::IsShown(u"frmServices"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(screen.Program.Tree.Bytes(u"/CustomItems.txt"_s), CatalogueScreen::CustomItem("Engraving"));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s), LaborFile);
  screen.GoFromMenu();
  QCOMPARE(screen.Text("txtLabor_1"), u"Fitting"_s);
}

void ScreenBoxes::theCloseBoxSavesBothAndThenTheBackupRuns() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("b"));
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "a");
  screen.Fill("txtCharge_0", "1");
  screen.PickTime("0:15");
  screen.Click(4);
  screen.ShowTab(2);
  screen.Fill("txtLabor_1", "Fitting");
  screen.Driver().CloseByUser();
  QVERIFY(screen.Program.Running().HasEnded());
  const QByteArray services = CatalogueScreen::Service("b") + CatalogueScreen::Service("a");
  const QByteArray labor = "\"General Labor\",\"$45.00\"\r\n\"Fitting\",\"$60.00\"\r\n\"Painting\",\"$30.00\"\r\n";
  for (const QString& folder : {QString(), u"/Backup"_s}) {
    QCOMPARE(screen.Program.Tree.Bytes(folder + u"/Services.txt"_s), services);
    QCOMPARE(screen.Program.Tree.Bytes(folder + u"/Labor.txt"_s), labor);
  }
}

void ScreenBoxes::anActivationShutsTheBoxes() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.ShowTab(1);
  screen.Click(8);
  screen.ShowTab(3);
  screen.Click(18);
  screen.Click(0);
  screen.GoFromMenu();
  for (const int command : {4, 13, 22}) QVERIFY(!screen.Live(command));
  for (const char* box : {"txtDescription_0", "txtDescription_1", "txtDescription_2", "txtCharge_0", "txtCharge_1",
                          "txtCharge_2", "txtCharge_3", "txtCharge_4"}) {
    QVERIFY2(!screen.Open(box), box);
  }
}

void ScreenBoxes::aDiskThatIsFullIsToldAndTheScreenStays() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("b"));
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "a");
  screen.Fill("txtCharge_0", "1");
  screen.Click(4);
  screen.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  screen.Program.Answers.Ok();
  screen.Click(0);
  QVERIFY(screen.Program.Answers.Last().Text.contains(u"Services.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmServices"_s));
  QCOMPARE(screen.Program.Tree.Bytes(u"/Services.txt"_s), CatalogueScreen::Service("b"));
  QCOMPARE(screen.Rows("fgServices"), 2);
  screen.Program.Files.Reset();
  screen.Click(0);
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
  QCOMPARE(screen.Program.Tree.Size(u"/Services.txt"_s), 144);
}

void ScreenBoxes::aCloseThatCannotSaveTheListsLeavesTheLaborRatesForTheNextOne() {
  CatalogueScreen screen;
  screen.Program.Tree.Write(u"/Labor.txt"_s, LaborFile);
  screen.Program.Tree.Write(u"/Services.txt"_s, CatalogueScreen::Service("b"));
  screen.Open(2);
  screen.Fill("txtLabor_1", "Fitting");
  screen.Program.Files.FailAt(FailingDevice::Call::Write, 1, ENOSPC);
  screen.Program.Answers.Ok();
  screen.Driver().CloseByUser();
  QVERIFY(!screen.Program.Running().HasEnded());
  QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s), LaborFile);
  QCOMPARE(screen.Text("txtLabor_1"), u"Fitting"_s);
  screen.Program.Files.Reset();
  screen.Driver().CloseByUser();
  QVERIFY(screen.Program.Running().HasEnded());
  QCOMPARE(screen.Program.Tree.Bytes(u"/Labor.txt"_s),
           QByteArray("\"General Labor\",\"$45.00\"\r\n\"Fitting\",\"$60.00\"\r\n\"Painting\",\"$30.00\"\r\n"));
}

void ScreenBoxes::theZeroTimeOfAServiceComesBackAsAQuarterOfAnHour() {
  CatalogueScreen screen;
  screen.Open();
  screen.Click(1);
  screen.Fill("txtDescription_0", "Advice");
  screen.Fill("txtCharge_0", "5");
  screen.Click(4);
  QCOMPARE(screen.Row("fgServices", 1), u"Advice|$5.00|0:00"_s);
  screen.Click(0);
  screen.GoFromMenu();
  QCOMPARE(screen.Row("fgServices", 1), u"Advice|$5.00|0:15"_s);
}

void ScreenBoxes::aDamagedFileEndsTheStartAndStaysAsItIs() {
  const QList<std::pair<QString, QByteArray>> files{{u"/Services.txt"_s, CatalogueScreen::Service("a").repeated(256)},
                                                    {u"/Labor.txt"_s, "\"A\",\"$1.00\"\r\n"}};
  for (const auto& [name, content] : files) {
    CatalogueScreen screen;
    screen.Program.Tree.Write(name, content);
    screen.Program.Tree.Write(u"/Backup"_s + name, "good");
    screen.Program.Answers.Ok();
    QVERIFY(!screen.Program.Start());
    QVERIFY(screen.Program.Answers.Last().Text.startsWith(screen.Program.Tree.Path(name) + u": "_s));
    QCOMPARE(screen.Program.Tree.Bytes(name), content);
    QCOMPARE(screen.Program.Tree.Bytes(u"/Backup"_s + name), QByteArray("good"));
  }
}

QTEST_MAIN(ScreenBoxes)
#include "tst_screenBoxes.moc"
