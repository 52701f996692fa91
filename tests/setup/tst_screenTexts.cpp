// Every caption and tip of Setup, as its user reads them.
#include <QtTest>

#include "support/SetupScreen.h"

using namespace Qt::StringLiterals;

class ScreenTextsTest : public QObject {
  Q_OBJECT

  enum Where { Business, Help, Printing, Taxation, Phone, Logo };
  static constexpr char AnyText[] = "(any)";

  /// A row: a control that shows there, its caption, its tip; what the row leaves open is `AnyText`.
  static void Row(Where where, const char* name, const char* text, const char* tip = AnyText) {
    QTest::newRow(name) << static_cast<int>(where) << QString::fromLatin1(name) << QString::fromLatin1(text)
                        << QString::fromLatin1(tip);
  }
  static void GoTo(const ScreenDriver& setup, int where) {
    switch (where) {
      case Business:
        return SetupScreen::GoToTab(setup, 0);
      case Help:
        return SetupScreen::GoToTab(setup, 1);
      case Logo:
        return SetupScreen::GoToTab(setup, 3);
      default:
        return SetupScreen::GoToOptions(setup, where - Printing);
    }
  }

  static void BusinessRows() {
    Row(Business, "lblAddress_0", "Company Name");
    Row(Business, "lblAddress_1", "Address 1");
    Row(Business, "lblAddress_2", "Address 2");
    Row(Business, "lblAddress_3", "City");
    Row(Business, "lblAddress_4", "State");
    Row(Business, "lblAddress_5", "Postal Zip Code");
    Row(Business, "lblAddress_6", "Telephone");
    Row(Business, "lblAddress_7", "Fax No,email or Web");
    Row(Business, "lblAddress_8", "FEIN, VAT, ABN");
    Row(Business, "lblExample", "Example : ABN - 123456789");
    Row(Business, "lblPostal", "Postal Code is Mandatory");
    Row(Business, "cmdAddress", "USA Style Address");
    Row(Business, "Image4", AnyText, "Clear All business Data");
    Row(Business, "Image5", AnyText, "Reload Business Data");
    Row(Business, "Image1_0", AnyText, "Toggles the Tab Selection");
    Row(Business, "cmdQuit", "&Save Settings / Return to Menu", "Returns to Main Menu");
    Row(Help, "lblHelp_0",
        "Enter the Information needed at each Tab. Click Save Settings / Return to Menu when complete.");
  }

  static void PrintingRows() {
    Row(Printing, "Image1_1", AnyText, "Toggles the Sub-Tab Selection");
    Row(Printing, "lblBorders", "Border / Frame Color");
    Row(Printing, "lblData", "Text Color");
    Row(Printing, "lblFontName", "Document Font");
    Row(Printing, "lblFont", "Arial", "Select a print FONT, not size");
    Row(Printing, "cmdChange_0", "Change");
    Row(Printing, "cmdChange_1", "Change");
    Row(Printing, "cmdChange_2", "Change");
    Row(Printing, "ckColor", "Print", "Headings, totals etc are printed in highlighting colors");
    Row(Printing, "lblCopies", "Print Copies");
    Row(Printing, "optPlain", "No Remittance Slip", "Use plain paper");
    Row(Printing, "optReturn", "Print Remittance Slip ",
        "Invoices are printed using  perforated Response Paper to create a remittance slip");
  }

  static void TaxationRows() {
    Row(Taxation, "lblTaxHeading1", "Enter or Select the 1st tax category");
    Row(Taxation, "lblRate1", "Enter or Select the 1st tax rate to apply");
    Row(Taxation, "lblTaxHeading2", "Enter or Select the 2nd tax category");
    Row(Taxation, "lblRate2", "Enter or Select the 2nd tax rate to apply");
    Row(Taxation, "cboTaxHeading1", AnyText, "Enter or Select the 1st tax category");
    Row(Taxation, "cboRate1", AnyText, "Enter or Select the 1st tax rate to apply");
    Row(Taxation, "cboTaxHeading2", AnyText, "Enter or Select the 2nd tax category");
    Row(Taxation, "cboRate2", AnyText, "Enter or Select the 2nd tax rate to apply");
    Row(Taxation, "ckApply1stTax", "Apply 1st Tax to Invoices");
    Row(Taxation, "ckApply2ndTax", "Apply 2nd Tax to Invoices");
    Row(Taxation, "ckSalesItems", "Tax Inventoried Sales  Items");
    Row(Taxation, "ckServices", "Tax Services");
    Row(Taxation, "ckLabor", "Tax Labor");
    Row(Taxation, "ckCustom", "Tax Custom Sales  Items");
    Row(Taxation, "ckApplyGraduated", "Apply Graduated Tax Scheme", "A specialized Tax System used in some countries");
    Row(Taxation, "cmdGraduatedTax_0", "View/Create a Graduated Tax Scheme", "International Users only");
    Row(Taxation, "fraGraduated", "Graduated Tax Levels", "A specialized Tax system");
    Row(Taxation, "lblGradulated_0", "Apply Primary Tax Rate to all Sales up to  a Total of:");
    Row(Taxation, "txtGradulated_0", "$0.00", "Max amount of primary rate");
    Row(Taxation, "lblGradulated_1", "Apply a Surcharge of:");
    Row(Taxation, "txtGradulated_1", "$0.00", "Flat surcharge when 1st total is exceeded");
    Row(Taxation, "cmdGraduatedTax_1", "Save Graduated Tax Scheme and Close Window");
    Row(Taxation, "cmdGraduatedTax_2", "Clear/Redo");
  }

  static void PhoneRows() {
    Row(Phone, "ckCallerID", "Using Caller ID", "Modem MUST support this feature");
    Row(Phone, "lblCallid", "Modem Supports Caller ID  Check with your Phone Co for support for this feature");
    Row(Phone, "lblModem_0", "Modem is connected to");
    Row(Phone, "lblModem_1", "COM Port #");
    Row(Phone, "ckPhone", "A Phone is Daisy-Chained  downstream from the Computer");
  }

  static void LogoRows() {
    Row(Logo, "Image2Group", "Image on Disk");
    Row(Logo, "Image3Group", "Adjusted Logo");
    Row(Logo, "cmdLogo_0", "Find");
    Row(Logo, "cmdLogo_1", "&Store");
    Row(Logo, "cmdLogo_2", "&Clear");
    Row(Logo, "cmdLogo_3", "<Width>");
    Row(Logo, "cmdLogo_4", "Height^");
    Row(Logo, "cmdLogo_5", "Print Sample", "Print a sample to Review");
    Row(Logo, "lblLogo_0", "BEFORE SELECTING YOUR LOGO: COPY THE FILE INTO YOUR KARVEXSOFT FOLDER");
    Row(Logo, "lblLogo_1",
        "Do not select your LOGO from a Network Device or a removable device.   An error will occur if the network "
        "device or removable device is unavailable.");
    Row(Logo, "lblLogo_2",
        "Your LOGO is not Saved when clicking Save Changes and Return to Menu. It must be STORED while diplaying the "
        "Logo Screen. ");
  }

 private Q_SLOTS:
  void eachControlShowsItsCaptionAndTip_data() {
    QTest::addColumn<int>("where");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    BusinessRows();
    PrintingRows();
    TaxationRows();
    PhoneRows();
    LogoRows();
  }
  void eachControlShowsItsCaptionAndTip() {
    QFETCH(int, where);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, tip);
    SetupScreen program;
    const ScreenDriver setup = program.Open();
    GoTo(setup, where);
    if (where == Taxation) setup.Click(u"cmdGraduatedTax_0"_s);
    QVERIFY(setup.IsVisible(name));
    if (text != QLatin1StringView(AnyText)) QCOMPARE(setup.Text(name), text);
    if (tip != QLatin1StringView(AnyText)) QCOMPARE(setup.Control(name)->toolTip(), tip);
  }
};

QTEST_MAIN(ScreenTextsTest)
#include "tst_screenTexts.moc"
