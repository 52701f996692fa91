// The taxes' lists, their file, and the closing of the graduated scheme.
#include <QtTest>

#include "setup/TaxConfiguration.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class TaxConfigurationTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theListsHaveTheirEntriesInOrder() {
    QCOMPARE(TaxRateEntries().join(u'|'), u"4.0|5.0|6.0|7.0|5,0|6,0|7,0"_s);
    QCOMPARE(TaxHeading1Entries().join(u'|'), u"Sales Tax|County Tax|Tax|Taxes|VAT Tax|Provincial Tax|GST"_s);
    QCOMPARE(TaxHeading2Entries().join(u'|'),
             u"Sales Tax|County Tax|Tax|Taxes|VAT Tax|Provincial Tax|GST|Tax Surcharge"_s);
  }

  void withoutTheFileTheDefaultsStand() {
    DataFolder folder;
    TaxConfiguration tax;
    tax.ckApply1stTax = tax.ckApply2ndTax = true;
    LoadTaxLists(folder.Disk, tax);
    QCOMPARE(tax.cboTaxHeading1, u"Sales Tax"_s);
    QCOMPARE(tax.cboTaxHeading2, u"Tax"_s);
    QCOMPARE(tax.cboRate1, u"4.0"_s);
    QCOMPARE(tax.cboRate2, u"4.0"_s);
    QCOMPARE(tax.ckApply1stTax, false);
    QCOMPARE(tax.ckApply2ndTax, false);
    QVERIFY(folder.Files().isEmpty());
  }

  void withoutTheFileALoadLeavesTheRates() {
    DataFolder folder;
    TaxConfiguration tax;
    tax.cboRate1 = u"9"_s;
    tax.cboRate2 = u"8"_s;
    LoadTaxSettings(folder.Disk, tax);
    QCOMPARE(tax.cboRate1, u"9"_s);
    QCOMPARE(tax.cboRate2, u"8"_s);
  }

  void theFileIsOneLineOfSixFields() {
    DataFolder folder;
    folder.Put(u"/Backup/TaxSettings.txt"_s, "old");
    TaxConfiguration tax;
    tax.cboTaxHeading1 = u"City, State"_s;
    tax.cboTaxHeading2 = u"GST"_s;
    tax.cboRate1 = u"6,5"_s;
    tax.cboRate2 = u"7.25"_s;
    tax.ckApply2ndTax = true;
    SaveTaxSettings(folder.Disk, tax);
    QCOMPARE(folder.Bytes(u"/TaxSettings.txt"_s), "\"City, State\",\"GST\",\"6,5\",\"7.25\",0,1\r\n");
    QVERIFY(!folder.Has(u"/Backup/TaxSettings.txt"_s));
  }

  void aHeadingTypedByHandComesBackFromTheFile() {
    DataFolder folder;
    folder.Put(u"/TaxSettings.txt"_s, "\"Bed Tax\",\"Resort Tax\",\"3\",\"\",1,0\r\n");
    TaxConfiguration tax;
    LoadTaxLists(folder.Disk, tax);
    QCOMPARE(tax.cboTaxHeading1, u"Bed Tax"_s);
    QCOMPARE(tax.cboTaxHeading2, u"Resort Tax"_s);
    QCOMPARE(tax.cboRate1, u"3"_s);
    QCOMPARE(tax.cboRate2, u""_s);
    QCOMPARE(tax.ckApply1stTax, true);
    QCOMPARE(tax.ckApply2ndTax, false);
  }

  void aFileThatIsNotWhatItMustBeIsDamage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("cut short") << QByteArray("\"a\",\"b\",\"4.0\",\"4.0\",0\r\n") << 62;
    QTest::newRow("a tick of letters") << QByteArray("\"a\",\"b\",\"4.0\",\"4.0\",yes,0\r\n") << 13;
    QTest::newRow("a tick of two") << QByteArray("\"a\",\"b\",\"4.0\",\"4.0\",0,2\r\n") << 13;
  }
  void aFileThatIsNotWhatItMustBeIsDamage() {
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(u"/TaxSettings.txt"_s, content);
    TaxConfiguration tax;
    const RuntimeError error = CaughtFrom([&] { LoadTaxLists(folder.Disk, tax); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/TaxSettings.txt"_s);
  }

  void closingTheSchemeMakesBothAmountsCurrencyText() {
    TaxConfiguration tax;
    tax.ckApplyGraduated = true;
    tax.txtGradulated = {u"1000"_s, u"5.5"_s};
    QCOMPARE(CloseGraduatedTax(tax), -1);
    QCOMPARE(tax.txtGradulated[0], u"$1,000.00"_s);
    QCOMPARE(tax.txtGradulated[1], u"$5.50"_s);
    QCOMPARE(tax.ckApplyGraduated, true);
  }

  void aLimitOfZeroTurnsTheSchemeOffWhateverWasTicked() {
    TaxConfiguration tax;
    tax.ckApplyGraduated = true;
    tax.txtGradulated = {u"0"_s, u"5"_s};
    QCOMPARE(CloseGraduatedTax(tax), -1);
    QCOMPARE(tax.ckApplyGraduated, false);
  }

  void anAmountThatIsNoNumberBecomesZeroAndStopsTheClosing_data() {
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("surcharge");
    QTest::addColumn<int>("refused");
    QTest::addColumn<QString>("limitAfter");
    QTest::addColumn<QString>("surchargeAfter");
    QTest::newRow("limit") << u"abc"_s << u"5"_s << 0 << u"$0.00"_s << u"5"_s;
    QTest::newRow("empty limit") << u""_s << u"x"_s << 0 << u"$0.00"_s << u"x"_s;
    QTest::newRow("surcharge") << u"10"_s << u"five"_s << 1 << u"$10.00"_s << u"$0.00"_s;
  }
  void anAmountThatIsNoNumberBecomesZeroAndStopsTheClosing() {
    QFETCH(QString, limit);
    QFETCH(QString, surcharge);
    QFETCH(int, refused);
    QFETCH(QString, limitAfter);
    QFETCH(QString, surchargeAfter);
    TaxConfiguration tax;
    tax.ckApplyGraduated = true;
    tax.txtGradulated = {limit, surcharge};
    QCOMPARE(CloseGraduatedTax(tax), refused);
    QCOMPARE(tax.txtGradulated[0], limitAfter);
    QCOMPARE(tax.txtGradulated[1], surchargeAfter);
    QCOMPARE(tax.ckApplyGraduated, true);
  }

  void anAmountTooLargeForANumberChangesNothing() {
    TaxConfiguration tax;
    tax.ckApplyGraduated = true;
    tax.txtGradulated = {u"0"_s, u"1E400"_s};
    const RuntimeError error = CaughtFrom([&] { CloseGraduatedTax(tax); });
    QCOMPARE(error.Number(), ErrorNumber::Overflow);
    QCOMPARE(error.From(), RuntimeError::Origin::Event);
    QCOMPARE(error.Subject(), u"Graduated Tax Levels"_s);
    QCOMPARE(tax.txtGradulated[0], u"0"_s);
    QCOMPARE(tax.txtGradulated[1], u"1E400"_s);
    QCOMPARE(tax.ckApplyGraduated, true);
  }
};

QTEST_GUILESS_MAIN(TaxConfigurationTest)
#include "tst_taxConfiguration.moc"
