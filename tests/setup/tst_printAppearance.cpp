// Colours, font and copies: what a load sets and what a save writes.
#include <QtTest>

#include "setup/PrintAppearance.h"
#include "support/DataFolder.h"
#include "support/ErrorOf.h"

using namespace Qt::StringLiterals;

class PrintAppearanceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void withoutTheFileItIsBlackBlackAndArial() {
    DataFolder folder;
    PrintAppearance print;
    print.txtBorders = print.txtData = print.BorderColor = 255;
    print.lblFont = u"Courier"_s;
    print.ckColor = false;
    print.PrintInColor = false;
    print.PrintCopies = 9;
    LoadPrintColors(folder.Disk, print);
    QCOMPARE(print.txtBorders, 0U);
    QCOMPARE(print.txtData, 0U);
    QCOMPARE(print.BorderColor, 0U);
    QCOMPARE(print.lblFont, u"Arial"_s);
    QCOMPARE(print.PrintInColor, true);
    QCOMPARE(print.PrintCopies, 3);
    QCOMPARE(print.ckColor, false);
  }

  void aSaveAfterTheDefaultsHoldsTrueAndThree() {
    DataFolder folder;
    PrintAppearance print;
    LoadPrintColors(folder.Disk, print);
    folder.Put(u"/Backup/PrintColors.txt"_s, "old");
    SavePrintColors(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/PrintColors.txt"_s), "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    QVERIFY(!folder.Has(u"/Backup/PrintColors.txt"_s));
  }

  void theFiveLinesAreRead() {
    DataFolder folder;
    folder.Put(u"/PrintColors.txt"_s, "16711680\r\n255\r\n\"Liberation Serif\"\r\n#FALSE#\r\n2\r\n");
    PrintAppearance print;
    LoadPrintColors(folder.Disk, print);
    QCOMPARE(print.txtBorders, 0xFF0000U);
    QCOMPARE(print.BorderColor, 0xFF0000U);
    QCOMPARE(print.txtData, 0xFFU);
    QCOMPARE(print.lblFont, u"Liberation Serif"_s);
    QCOMPARE(print.PrintInColor, false);
    QCOMPARE(print.ckColor, false);
    QCOMPARE(print.PrintCopies, 2);
  }

  void theTickNeverFlowsBack() {
    DataFolder folder;
    PrintAppearance print;
    LoadPrintColors(folder.Disk, print);
    print.ckColor = false;
    print.txtBorders = 0x0000FF;
    print.txtData = 0x00FF00;
    print.lblFont = u"Liberation Mono"_s;
    SavePrintColors(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/PrintColors.txt"_s), "255\r\n65280\r\n\"Liberation Mono\"\r\n#TRUE#\r\n3\r\n");
    QCOMPARE(print.BorderColor, 0xFFU);
    QCOMPARE(print.ckColor, false);
    LoadPrintColors(folder.Disk, print);
    QCOMPARE(print.ckColor, true);
  }

  void aColorOfAllThirtyTwoBitsComesThrough() {
    DataFolder folder;
    folder.Put(u"/PrintColors.txt"_s, "-2147483643\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    PrintAppearance print;
    LoadPrintColors(folder.Disk, print);
    QCOMPARE(print.txtBorders, 0x80000005U);
    SavePrintColors(folder.Disk, print);
    QCOMPARE(folder.Bytes(u"/PrintColors.txt"_s), "-2147483643\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
  }

  void aFileThatIsNotWhatItMustBeIsDamage_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << QByteArray() << 62;
    QTest::newRow("no copies") << QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n") << 62;
    QTest::newRow("a colour of letters") << QByteArray("red\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n") << 13;
    QTest::newRow("a colour too large") << QByteArray("4294967296\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n") << 6;
    QTest::newRow("256 copies") << QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n256\r\n") << 6;
    QTest::newRow("fewer than no copies") << QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n-1\r\n") << 6;
  }
  void aFileThatIsNotWhatItMustBeIsDamage() {
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    DataFolder folder;
    folder.Put(u"/PrintColors.txt"_s, content);
    PrintAppearance print;
    const RuntimeError error = CaughtFrom([&] { LoadPrintColors(folder.Disk, print); });
    QCOMPARE(error.Number(), number);
    QCOMPARE(error.From(), RuntimeError::Origin::FileContent);
    QCOMPARE(error.Subject(), u"/PrintColors.txt"_s);
  }
};

QTEST_GUILESS_MAIN(PrintAppearanceTest)
#include "tst_printAppearance.moc"
