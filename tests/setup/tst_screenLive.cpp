// Setup alone: each control writes its value to the live settings at the moment that it changes, and the way out runs
// in its order.
#include <QCheckBox>
#include <QtTest>

#include "desktop/SerialLine.h"
#include "desktop/Style.h"
#include "setup/frmSetup.h"
#include "shell/CommonDialog.h"
#include "shell/Screens.h"
#include "support/DataFolder.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"
#include "support/TestDialogs.h"

using namespace Qt::StringLiterals;

namespace {

class NotedScreens final : public Screens, public ScreenHost {
 public:
  QStringList Asked;
  std::function<void()> AtHide;

  void Show(ScreenName screen) override { Asked << u"show %1"_s.arg(static_cast<int>(screen)); }
  void Hide(ScreenName screen) override {
    Asked << u"hide %1"_s.arg(static_cast<int>(screen));
    if (AtHide) AtHide();
  }
  void Unload(ScreenName) override { Asked << u"unload"_s; }
  void ShowSetupAtFirstTab() override { Asked << u"first tab"_s; }
  void StartInvoiceFor(const SoldTo&) override { Asked << u"invoice"_s; }
  void StartCall(const QString&, const QString&) override { Asked << u"call"_s; }
  void PrintSample() override { Asked << u"sample"_s; }
  void QuitProgram() override { Asked << u"quit"_s; }
  void UnhandledError(const RuntimeError& error) override { Asked << error.Text(); }
  void UserClosed() override { Asked << u"closed"_s; }
};

/// Setup on its live settings, with nothing of the program around it.
struct Bench {
  Bench() {
    ApplyStyle(*qApp);
    LoadSetup(NoPorts, Folder.Disk, Live, [](const QByteArray&) { return true; }, {});
    Setup = std::make_unique<frmSetup>(Around, Around, SetupContext{Folder.Disk, Boxes, Live, Dialog, u"/program"_s});
    Setup->Activate();
    Setup->show();
    Setup->resize(1180, 760);
    ScreenDriver::ProcessEvents();
  }
  ScreenDriver Driver() const { return ScreenDriver(Setup.get()); }
  void GoTo(int tab, int subTab) const {
    Driver().Control<QTabWidget>(u"tabInfo"_s)->setCurrentIndex(tab);
    Driver().Control<QTabWidget>(u"SSTab2"_s)->setCurrentIndex(subTab);
    ScreenDriver::ProcessEvents();
  }

  QueuedAnswers Answers;
  DataFolder Folder;
  TestDialogs Boxes;
  NotedScreens Around;
  SerialLine NoPorts{PortTable{}};
  LiveSettings Live;
  CommonDialog Dialog;
  std::unique_ptr<frmSetup> Setup;
};

QString Shown(ScreenName screen) {
  return u"show %1"_s.arg(static_cast<int>(screen));
}

}  // namespace

class ScreenLiveTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theTaxBoxesAreLive() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    bench.GoTo(2, 1);
    setup.Fill(u"cboTaxHeading1"_s, u"Bed Tax"_s);
    QCOMPARE(bench.Live.Tax.cboTaxHeading1, u"Bed Tax"_s);
    setup.PickEntry(u"cboTaxHeading2"_s, u"Tax Surcharge"_s);
    QCOMPARE(bench.Live.Tax.cboTaxHeading2, u"Tax Surcharge"_s);
    setup.PickEntry(u"cboRate1"_s, u"5,0"_s);
    QCOMPARE(bench.Live.Tax.cboRate1, u"5,0"_s);
    setup.Fill(u"cboRate2"_s, u"6.25"_s);
    QCOMPARE(bench.Live.Tax.cboRate2, u"6.25"_s);
    setup.Click(u"cmdGraduatedTax_0"_s);
    setup.Fill(u"txtGradulated_0"_s, u"12"_s);
    setup.Fill(u"txtGradulated_1"_s, u"3"_s);
    QCOMPARE(bench.Live.Tax.txtGradulated[0], u"12"_s);
    QCOMPARE(bench.Live.Tax.txtGradulated[1], u"3"_s);
    QVERIFY(bench.Folder.Files().isEmpty());
  }

  void theTicksAreLive() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    TaxConfiguration& tax = bench.Live.Tax;
    bench.GoTo(2, 1);
    const QList<std::pair<QString, bool*>> ticks = {{u"ckApply1stTax"_s, &tax.ckApply1stTax},
                                                    {u"ckApply2ndTax"_s, &tax.ckApply2ndTax},
                                                    {u"ckSalesItems"_s, &tax.ckSalesItems},
                                                    {u"ckServices"_s, &tax.ckServices},
                                                    {u"ckLabor"_s, &tax.ckLabor},
                                                    {u"ckCustom"_s, &tax.ckCustom},
                                                    {u"ckApplyGraduated"_s, &tax.ckApplyGraduated}};
    for (const auto& [name, value] : ticks) {
      const bool before = *value;
      setup.Click(name);
      QVERIFY2(*value == !before, qPrintable(name));
      QCOMPARE(setup.Control<QCheckBox>(name)->isChecked(), *value);
    }
  }

  void thePrintingControlsAreLiveAndTheStoredValuesAreNot() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    bench.GoTo(2, 0);
    setup.Click(u"ckColor"_s);
    QCOMPARE(bench.Live.Print.ckColor, false);
    QCOMPARE(bench.Live.Print.PrintInColor, true);
    setup.Click(u"optReturn"_s);
    QCOMPARE(bench.Live.Print.optReturn, true);
    QCOMPARE(bench.Live.Print.optPlain, false);
    bench.Answers.Color(0x0000FF);
    setup.Click(u"cmdChange_0"_s);
    QCOMPARE(bench.Live.Print.txtBorders, 0x0000FFU);
    QCOMPARE(bench.Live.Print.BorderColor, 0U);
    bench.Answers.Color(0x00FF00);
    setup.Click(u"cmdChange_1"_s);
    QCOMPARE(bench.Live.Print.txtData, 0x00FF00U);
    bench.Answers.Font(u"Liberation Mono"_s);
    setup.Click(u"cmdChange_2"_s);
    QCOMPARE(bench.Live.Print.lblFont, u"Liberation Mono"_s);
    setup.PickEntry(u"cboCopies"_s, u"5"_s);
    QCOMPARE(bench.Live.Print.PrintCopies, 3);
  }

  void theProfileWaitsForTheSave() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    setup.Fill(u"txtBusiness_0"_s, u"Acme"_s);
    QCOMPARE(bench.Live.Business.BusinessName, QString());
    setup.Fill(u"txtBusiness_6"_s, u"555"_s);
    setup.Click(u"cmdQuit"_s);
    QCOMPARE(bench.Live.Business.BusinessName, u"Acme"_s);
    QCOMPARE(bench.Live.Business.BusinessTelephone, u"555"_s);
  }

  void theStyleIsToldWhenItIsTurnedOver() {
    Bench bench;
    QList<bool> told;
    bench.Live.Business.UseAddressStyle = [&](bool usaStyle) { told << usaStyle; };
    bench.Driver().Click(u"cmdAddress"_s);
    bench.Driver().Click(u"cmdAddress"_s);
    QCOMPARE(told, (QList<bool>{false, true}));
  }

  void thePhoneControlsAreLive() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    bench.GoTo(2, 2);
    setup.Click(u"ckPhone"_s);
    QCOMPARE(bench.Live.Phone.ckPhone, true);
    QCOMPARE(bench.Live.Phone.PhoneDaisyChained, false);
    setup.Fill(u"txtModemPort"_s, u"4"_s);
    QCOMPARE(bench.Live.Phone.txtModemPort, u"4"_s);
    QCOMPARE(bench.Live.Phone.ModemPort, 1);
    setup.Click(u"ckCallerID"_s);
    QCOMPARE(bench.Live.Phone.ckCallerID, false);
    QCOMPARE(bench.Live.Phone.UsingCallerId, false);
  }

  void anActivationShowsWhatWasReadAgainMeanwhile() {
    Bench bench;
    bench.Folder.Put(u"/KarvexInvoicerSettings.txt"_s,
                     "0,1,0,0,0,\"0.0\",\"0\",#FALSE#,#TRUE#,\"$7.00\",\"$8.00\"\r\n");
    bench.Setup->hide();
    LoadSettings(bench.Folder.Disk, bench.Live);
    bench.Setup->Activate();
    bench.Setup->show();
    const ScreenDriver setup = bench.Driver();
    QVERIFY(!setup.Control<QCheckBox>(u"ckSalesItems"_s)->isChecked());
    QVERIFY(setup.Control<QCheckBox>(u"ckServices"_s)->isChecked());
    QCOMPARE(setup.Text(u"txtGradulated_0"_s), u"$7.00"_s);
    QCOMPARE(setup.Text(u"txtGradulated_1"_s), u"$8.00"_s);
    QCOMPARE(bench.Live.Print.optReturn, true);
    QCOMPARE(bench.Live.Print.optPlain, false);
  }

  void theWayOutHidesSetupAndThenShowsTheMainMenu() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    setup.Fill(u"txtBusiness_0"_s, u"Acme"_s);
    setup.Fill(u"txtBusiness_6"_s, u"555"_s);
    bench.Around.AtHide = [&] { QVERIFY(bench.Folder.Has(u"/TaxSettings.txt"_s)); };
    setup.Click(u"cmdQuit"_s);
    QCOMPARE(bench.Around.Asked,
             (QStringList{u"hide %1"_s.arg(static_cast<int>(ScreenName::frmSetup)), Shown(ScreenName::frmStartup)}));
  }

  void aRequiredFileThatIsGoneLeadsBackToTheStartUpScreen() {
    Bench bench;
    const ScreenDriver setup = bench.Driver();
    setup.Fill(u"txtBusiness_0"_s, u"Acme"_s);
    setup.Fill(u"txtBusiness_6"_s, u"555"_s);
    bench.Around.AtHide = [&] { QVERIFY(QFile::remove(bench.Folder.Path(u"/Phone.txt"_s))); };
    setup.Click(u"cmdQuit"_s);
    QCOMPARE(bench.Around.Asked.last(), Shown(ScreenName::frmSplash));
  }

  void theSampleIsAskedOfTheProgram() {
    Bench bench;
    bench.GoTo(3, 0);
    bench.Driver().Click(u"cmdLogo_5"_s);
    QCOMPARE(bench.Around.Asked, QStringList{u"sample"_s});
  }
};

QTEST_MAIN(ScreenLiveTest)
#include "tst_screenLive.moc"
