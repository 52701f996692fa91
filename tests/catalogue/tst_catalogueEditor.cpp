// The rules of the catalogue screen without a screen: what its buttons do, which boxes are open, and what a box takes.
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

class CatalogueEditorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void openingShutsTheBoxesAndSavesOfAllLists() {
    Desk desk;
    desk.Editor.Open();
    QCOMPARE(desk.View.Shut, AllShut);
    for (const int save : {4, 13, 22}) QVERIFY(!desk.Live(save));
    QVERIFY(!desk.Editor.IsEntering());
  }

  void openingKeepsTheMode() {
    Desk desk;
    desk.Catalog.PutRow(Custom, false, {u"Engraving"_s, u"$1.00"_s, u"$0.00"_s, u"0"_s});
    desk.Editor.Modify(Custom);
    desk.Editor.Open();
    QVERIFY(desk.Editor.ModifyMode());
    QVERIFY(!desk.Editor.IsEntering());
  }

  void openingOpensTheGridsThatAModifyShut() {
    Desk desk;
    desk.Catalog.PutRow(Services, false, {u"Repair"_s, u"$1.00"_s, u"0:15"_s});
    desk.Catalog.Grid(Services).SetRow(1);
    desk.Catalog.PutRow(Custom, false, {u"Engraving"_s, u"$1.00"_s, u"$0.00"_s, u"0"_s});
    desk.Editor.Modify(Services);
    desk.Editor.Modify(Custom);
    QCOMPARE(desk.View.ShutGrids, (std::set<CatalogueList>{Services, Custom}));
    desk.Editor.Open();
    QCOMPARE(desk.View.ShutGrids, std::set<CatalogueList>{});
  }

  void addNewOpensOneListAlone_data() {
    QTest::addColumn<int>("list");
    QTest::addColumn<int>("save");
    QTest::addColumn<QList<int>>("open");
    QTest::addColumn<QString>("focus");
    const auto row = [](const char* name, CatalogueList list, int save, const QList<Box>& open, Box focus) {
      QList<int> boxes;
      for (const Box box : open) boxes << static_cast<int>(box);
      QTest::newRow(name) << static_cast<int>(list) << save << boxes << CatalogueBoxes::Name(focus);
    };
    row("services", Services, 4, {Box::txtDescription0, Box::txtCharge0}, Box::txtDescription0);
    row("items", Items, 13, {Box::txtDescription1, Box::txtCharge1, Box::txtCharge2}, Box::txtDescription1);
    row("custom", Custom, 22, {Box::txtDescription2, Box::txtCharge3, Box::txtCharge4}, Box::txtDescription2);
  }
  void addNewOpensOneListAlone() {
    QFETCH(int, list);
    QFETCH(int, save);
    QFETCH(QList<int>, open);
    QFETCH(QString, focus);
    Desk desk;
    desk.Editor.Open();
    desk.Editor.AddNew(static_cast<CatalogueList>(list));
    for (const Box box : AllShut) {
      QVERIFY2(desk.View.Shut.contains(box) != open.contains(static_cast<int>(box)), qPrintable(desk.View.NameOf(box)));
    }
    for (const int command : {4, 13, 22}) QCOMPARE(desk.Live(command), command == save);
    QVERIFY(desk.Editor.IsEntering());
    QCOMPARE(desk.View.Focus, focus);
  }

  void aNewServiceStartsAtNoTime() {
    Desk desk;
    desk.Fill({{Box::lstTime, u"3:15"_s}, {Box::txtCharge0, u"5"_s}, {Box::txtDescription0, u"Repair"_s}});
    desk.Editor.AddNew(Services);
    QCOMPARE(desk.View.Text(Box::lstTime), u"0:00"_s);
    QCOMPARE(desk.View.Text(Box::txtCharge0), QString());
    QCOMPARE(desk.View.Text(Box::txtDescription0), QString());
  }

  void clearingAServiceKeepsItsTime() {
    Desk desk;
    desk.Fill({{Box::lstTime, u"3:15"_s}, {Box::txtCharge0, u"5"_s}, {Box::txtDescription0, u"Repair"_s}});
    desk.Editor.Clear(Services);
    QCOMPARE(desk.View.Text(Box::lstTime), u"3:15"_s);
    QCOMPARE(desk.View.Text(Box::txtCharge0), QString());
    QCOMPARE(desk.View.Text(Box::txtDescription0), QString());
    QCOMPARE(desk.View.Focus, CatalogueBoxes::Name(Box::txtDescription0));
  }

  void clearingAnItemKeepsCostDiscountPriceAndCategory() {
    Desk desk;
    desk.FillItem();
    desk.Fill({{Box::txtCost, u"4"_s},
               {Box::txtDiscountQty, u"6"_s},
               {Box::txtReorderAmount, u"7"_s},
               {Box::txtReorderAt, u"8"_s}});
    desk.Editor.Clear(Items);
    for (const Box box : {Box::txtDescription1, Box::txtCharge1, Box::txtOnHand, Box::txtDiscountQty,
                          Box::txtReorderAmount, Box::txtReorderAt}) {
      QVERIFY2(desk.View.Text(box).isEmpty(), qPrintable(desk.View.NameOf(box)));
    }
    QCOMPARE(desk.View.Text(Box::txtCost), u"4"_s);
    QCOMPARE(desk.View.Text(Box::txtCharge2), u"11"_s);
    QCOMPARE(desk.View.Text(Box::cboCategory), u"Tools"_s);
    QCOMPARE(desk.View.Focus, QString());
  }

  void modifyShutsTheGridAndItsCancelOpensIt() {
    for (const CatalogueList list : AllCatalogueLists) {
      Desk desk;
      desk.Catalog.Grid(list).SetRows(2);
      desk.Catalog.Grid(list).SetRow(1);
      desk.Editor.Modify(list);
      QCOMPARE(desk.View.ShutGrids, std::set<CatalogueList>{list});
      QVERIFY(desk.Editor.ModifyMode());
      desk.Editor.Cancel(list);
      QVERIFY(desk.View.ShutGrids.empty());
      QVERIFY2(desk.Editor.ModifyMode(), "a cancel keeps the mode");
    }
  }

  void aTimeThatTheListLacksIsLoadedAsItStands() {
    Desk desk;
    desk.Catalog.PutRow(Services, false, {u"Repair"_s, u"$1.00"_s, QString()});
    desk.Catalog.fgServices.SetRow(1);
    desk.Fill({{Box::lstTime, u"3:15"_s}});
    desk.Editor.Modify(Services);
    QCOMPARE(desk.View.Text(Box::lstTime), QString());
  }

  void theCategoryIsLoadedUnlessOneIsToBeKept_data() {
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("clears");
    QTest::addColumn<QString>("after");
    QTest::newRow("none, unticked") << QString() << false << u"Tools"_s;
    QTest::newRow("none, ticked") << QString() << true << u"Tools"_s;
    QTest::newRow("another, unticked") << u"Paint"_s << false << u"Tools"_s;
    QTest::newRow("another, ticked") << u"Paint"_s << true << u"Paint"_s;
  }
  void theCategoryIsLoadedUnlessOneIsToBeKept() {
    QFETCH(QString, shown);
    QFETCH(bool, clears);
    QFETCH(QString, after);
    Desk desk;
    desk.Catalog.PutRow(Items, false,
                        {u"Hammer"_s, u"Tools"_s, u"$1.00"_s, u"$2.00"_s, u"3"_s, u"$1.50"_s, u"4"_s, u"5"_s, u"6"_s});
    desk.Fill({{Box::cboCategory, shown}});
    desk.View.ClearsItem = clears;
    desk.Editor.Modify(Items);
    QCOMPARE(desk.View.Text(Box::cboCategory), after);
    QVERIFY2(desk.Live(11), "the Clear of the items");
  }

  void aZeroIsEmptiedOnEnteringWhereItsBoxSaysSo() {
    Desk desk;
    for (const Box box : {Box::txtCharge0, Box::txtCharge1, Box::txtCharge2, Box::txtCharge3, Box::txtCharge4,
                          Box::txtCost, Box::txtLaborRate0, Box::txtLaborRate1, Box::txtLaborRate2}) {
      for (const QString& text : {u"$0.00"_s, u"0"_s, u"$1.00"_s}) {
        desk.Fill({{box, text}});
        desk.Editor.EnterBox(box);
        QCOMPARE(desk.View.Text(box), text == u"$0.00" ? QString() : text);
      }
    }
    for (const Box box : {Box::txtOnHand, Box::txtDiscountQty, Box::txtReorderAmount, Box::txtReorderAt}) {
      for (const QString& text : {u"0"_s, u"$0.00"_s, u"00"_s}) {
        desk.Fill({{box, text}});
        desk.Editor.EnterBox(box);
        QCOMPARE(desk.View.Text(box), text == u"0" ? QString() : text);
      }
    }
    for (const Box box : {Box::txtDescription0, Box::txtCustomDiscItems, Box::txtLabor0}) {
      desk.Fill({{box, u"0"_s}});
      desk.Editor.EnterBox(box);
      QCOMPARE(desk.View.Text(box), u"0"_s);
    }
  }

  void onlySomeBoxesAreCheckedWhenLeft() {
    Desk desk;
    for (const Box box : {Box::txtDescription0, Box::txtDescription1, Box::txtDescription2, Box::txtCharge3,
                          Box::txtCharge4, Box::txtOnHand, Box::txtReorderAmount, Box::txtReorderAt,
                          Box::txtCustomDiscItems, Box::txtLabor0, Box::txtLabor1, Box::txtLabor2}) {
      for (const QString& text : {QString(), u"x"_s, u"5"_s}) {
        desk.Fill({{box, text}});
        desk.Editor.LeaveBox(box);
        QCOMPARE(desk.View.Text(box), text);
      }
    }
    QCOMPARE(desk.Asked.Take(), QStringList());
    QCOMPARE(desk.View.Focus, QString());
  }

  void aBlankDiscountPriceTakesTheSellPriceRoundedToCentsOnce() {
    Desk desk;
    desk.Fill({{Box::txtCharge1, u"12.34499"_s}});
    desk.Editor.LeaveBox(Box::txtCharge2);
    QCOMPARE(desk.View.Text(Box::txtCharge2), u"$12.34"_s);
    QCOMPARE(desk.View.Text(Box::txtCharge1), u"12.34499"_s);
  }

  void everyLaborRateIsCheckedWhenLeft() {
    Desk desk;
    for (const Box box : {Box::txtLaborRate0, Box::txtLaborRate1, Box::txtLaborRate2}) {
      desk.Editor.LeaveBox(box);
      QCOMPARE(desk.Asked.Take(), QStringList{u": Labor Rate must be greater than Zero"_s});
      QCOMPARE(desk.View.Focus, CatalogueBoxes::Name(box));
      desk.Fill({{box, u"40"_s}});
      desk.Editor.LeaveBox(box);
      QCOMPARE(desk.View.Text(box), u"$40.00"_s);
    }
  }

  void deletingAsksByItsListsOwnWords() {
    for (const auto& [list, question] :
         {std::pair{Services, u"Delete Service Item? This will DELETE the Selected Service"_s},
          std::pair{Items, u"Delete Sales Item? This will DELETE the Selected Sales Item"_s},
          std::pair{Custom, u"Delete Sales Item? This will DELETE the Selected Custom Item"_s}}) {
      Desk desk;
      desk.Editor.Delete(list);
      QCOMPARE(desk.Asked.Take(), QStringList());
      desk.Catalog.Grid(list).SetRows(2);
      desk.Catalog.Grid(list).SetRow(1);
      desk.Editor.ClickRow(list);
      desk.Asked.Answers = {false};
      desk.Editor.Delete(list);
      QCOMPARE(desk.Asked.Take(), QStringList{question});
      QCOMPARE(desk.Catalog.Grid(list).Rows(), 2);
      QVERIFY(desk.Live(ControlsOf(list).Delete));
    }
  }
};

QTEST_GUILESS_MAIN(CatalogueEditorTest)
#include "tst_catalogueEditor.moc"
