// What a Save of the catalogue screen checks, in which order, and the row that it writes, without a screen.
#include "support/CatalogueDesk.h"

using namespace Qt::StringLiterals;
using Box = CatalogueBox;
using Desk = CatalogueDesk;

namespace {

constexpr CatalogueList Services = CatalogueList::Services;
constexpr CatalogueList Items = CatalogueList::Items;
constexpr CatalogueList Custom = CatalogueList::Custom;
const std::set<Box> AllShut{Box::txtDescription0, Box::txtDescription1, Box::txtDescription2, Box::txtCharge0,
                            Box::txtCharge1,      Box::txtCharge2,      Box::txtCharge3,      Box::txtCharge4};

}  // namespace

class CatalogueEditorSavesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aSaveChecksDescriptionThenChargesInTheirOrder() {
    for (const CatalogueList list : AllCatalogueLists) {
      Desk desk;
      const CatalogueControls controls = ControlsOf(list);
      desk.Editor.Save(list);
      QCOMPARE(desk.View.Focus, CatalogueBoxes::Name(controls.Description));
      QCOMPARE(desk.Asked.Take(), QStringList{u"beep"_s});
      desk.Fill({{controls.Description, u"Something"_s}});
      for (const Box charge : controls.Charges) {
        desk.Editor.Save(list);
        QCOMPARE(desk.View.Focus, CatalogueBoxes::Name(charge));
        QCOMPARE(desk.Asked.Take(), QStringList{u"beep"_s});
        desk.Fill({{charge, u" "_s}});
        desk.Editor.Save(list);
        QCOMPARE(desk.View.Focus, CatalogueBoxes::Name(charge));
        QCOMPARE(desk.Asked.Take(), QStringList{u"beep"_s});
        desk.Fill({{charge, u"1"_s}});
      }
      QCOMPARE(desk.Catalog.Grid(list).Rows(), 1);
    }
  }

  void aSaveShutsItsBoxesAndGoesToAddNew_data() {
    QTest::addColumn<int>("list");
    QTest::addColumn<int>("addNew");
    QTest::addColumn<int>("shut");
    QTest::newRow("services") << static_cast<int>(Services) << 1 << 3;
    QTest::newRow("items") << static_cast<int>(Items) << 8 << 11;
    QTest::newRow("custom") << static_cast<int>(Custom) << 18 << 21;
  }
  void aSaveShutsItsBoxesAndGoesToAddNew() {
    QFETCH(int, list);
    QFETCH(int, addNew);
    QFETCH(int, shut);
    Desk desk;
    desk.Editor.Open();
    const auto which = static_cast<CatalogueList>(list);
    desk.Editor.AddNew(which);
    desk.Catalog.EnableCommand(shut, true);
    desk.Fill({{ControlsOf(which).Description, u"Something"_s}, {Box::txtOnHand, u"0"_s}});
    for (const Box charge : ControlsOf(which).Charges) desk.Fill({{charge, u"1"_s}});
    desk.Editor.Save(which);
    QCOMPARE(desk.Catalog.Grid(which).Rows(), 2);
    QCOMPARE(desk.View.Focus, u"button %1"_s.arg(addNew));
    QCOMPARE(desk.View.Shut, AllShut);
    QVERIFY(!desk.Live(shut));
    QVERIFY(!desk.Editor.IsEntering());
    QCOMPARE(desk.View.Text(ControlsOf(which).Description), QString());
  }

  void anItemsRowHoldsAmountsAsCurrencyAndTheRestAsTyped() {
    Desk desk;
    desk.FillItem();
    desk.Fill({{Box::txtCost, u"4.5"_s}, {Box::txtOnHand, u"2.5"_s}, {Box::txtReorderAt, u" 7"_s}});
    desk.Editor.Save(Items);
    QCOMPARE(desk.Row(Items, 1), u"Hammer|Tools|4.5|$12.00|2|$11.00|0|0| 7"_s);
    QCOMPARE(desk.Catalog.cboCategory(), QStringList{u"Tools"_s});
  }

  void anErrorNamesTheBoxAndLeavesTheGridShut() {
    Desk desk;
    desk.Catalog.fgItems.SetRows(2);
    desk.Catalog.fgItems.SetRow(1);
    desk.Editor.Modify(Items);
    for (const auto& [box, text, number] :
         {std::tuple{Box::txtCharge1, u"."_s, 13}, std::tuple{Box::txtCharge2, u"1E30"_s, 6},
          std::tuple{Box::txtCost, u"."_s, 13}, std::tuple{Box::txtOnHand, u"32768"_s, 6},
          std::tuple{Box::txtDiscountQty, u"2147483648"_s, 6}, std::tuple{Box::txtReorderAmount, u"40000"_s, 6},
          std::tuple{Box::txtReorderAt, u"-40000"_s, 6}}) {
      desk.FillItem();
      desk.Fill({{Box::txtCost, {}}, {Box::txtDiscountQty, {}}, {Box::txtReorderAmount, {}}, {Box::txtReorderAt, {}}});
      desk.Fill({{box, text}});
      const RuntimeError error = CaughtFrom([&] { desk.Editor.Save(Items); });
      QCOMPARE(error.Number(), number);
      QCOMPARE(error.Subject(), CatalogueBoxes::Name(box));
      QCOMPARE(desk.View.ShutGrids, std::set<CatalogueList>{Items});
      QCOMPARE(desk.Row(Items, 1), u"||||||||"_s);
    }
  }

  void withoutALineToModifyTheGridOpensAndNothingIsWritten() {
    Desk desk;
    desk.Catalog.PutRow(Custom, false, {u"Engraving"_s, u"$1.00"_s, u"$0.00"_s, u"0"_s});
    desk.Editor.Modify(Custom);
    desk.View.EnableGrid(Services, false);
    desk.Fill({{Box::txtDescription0, u"Repair"_s}, {Box::txtCharge0, u"5"_s}});
    desk.Editor.Save(Services);
    QCOMPARE(desk.Asked.Take(), QStringList{u": Select the line to modify, or click Add New"_s});
    QVERIFY(!desk.View.ShutGrids.contains(Services));
    QCOMPARE(desk.Catalog.fgServices.Rows(), 1);
    QCOMPARE(desk.View.Text(Box::txtDescription0), u"Repair"_s);
    QVERIFY(desk.Editor.ModifyMode());
  }
};

QTEST_GUILESS_MAIN(CatalogueEditorSavesTest)
#include "tst_catalogueEditorSaves.moc"
