// The print primitives on the recording surface. At 10 points a line is 223.453125 twips high, a digit 111.21875 wide,
// a blank and a point 55.5625; "00 " is 278 twips exactly.
#include <limits>

#include "runtime/RuntimeError.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

class TestPrimitives : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void printAtZeroChangesNothing();
  void printAtMovesEachCoordinateByItself();
  void printAtIgnoresNegativeCoordinates();
  void printAtKeepsInchesAs32BitFloats();
  void aFontSizeOfZeroKeepsTheSize();
  void fontWeightAndUnderlineAreAlwaysSet();
  void colorsComeFromTheTwoSwatches();
  void withoutColorBothInksAreBlack();
  void setupPutsTheSurfaceInOrder();
  void anyOtherOrientationIsLandscape();
  void aJobBeginsWithTheDialogThenTheSetup();
  void aCancelledDialogSetsNothingUp();
  void thePrinterDialogForgetsTheFileFoundBefore_data();
  void thePrinterDialogForgetsTheFileFoundBefore();
  void aJobWithoutDialogSetsUpOnlyAFreshSurface();
  void aLineEndMovesDownByTheLineHeightUnrounded();
  void aJoinedPrintStaysBehindItsText();
  void textIsAlignedByItsWidth();
  void aRuleTakesTheCursorToItsEnd();
  void aRuleTakesColorAndWidthOfTheMoment();
  void pagesCountFromOneAndAgainAfterTheJob();
  void fontAndColorPersistOverANewPage();
  void aTrappedCancelIsSilent();
  void anyOtherErrorIsToldAndLeavesNothingBehind();
  void aFailedSendIsTold();
  void aJobThatRanSaysSo();
};

void TestPrimitives::printAtZeroChangesNothing() {
  PageFixture f;
  f.Paper.CurrentX = 17;
  f.Paper.CurrentY = 23;
  f.Routines.PrintAt(0, 0);
  QCOMPARE(f.Paper.CurrentX, 17.0F);
  QCOMPARE(f.Paper.CurrentY, 23.0F);
}

void TestPrimitives::printAtMovesEachCoordinateByItself() {
  PageFixture f;
  f.Routines.PrintAt(2.0F, 0);
  QCOMPARE(f.Paper.CurrentX, 2880.0F);
  QCOMPARE(f.Paper.CurrentY, 0.0F);
  f.Routines.PrintAt(0, 0.5F);
  QCOMPARE(f.Paper.CurrentX, 2880.0F);
  QCOMPARE(f.Paper.CurrentY, 720.0F);
}

void TestPrimitives::printAtIgnoresNegativeCoordinates() {
  PageFixture f;
  f.Paper.CurrentX = 17;
  f.Paper.CurrentY = 23;
  f.Routines.PrintAt(-1.0F, -0.5F);
  QCOMPARE(f.Paper.CurrentX, 17.0F);
  QCOMPARE(f.Paper.CurrentY, 23.0F);
}

void TestPrimitives::printAtKeepsInchesAs32BitFloats() {
  PageFixture f;
  // The 32-bit 8.6 is 8.60000038147; its product lies nearer to 12384 plus one step of 1/1024 than to 12384.
  f.Routines.PrintAt(0, 8.6F);
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 12384.0009765625);
}

void TestPrimitives::aFontSizeOfZeroKeepsTheSize() {
  PageFixture f;
  f.Routines.SetPrintFont(26, true, false);
  f.Routines.SetPrintFont(0, true, false);
  QCOMPARE(f.Paper.FontSize(), 26);
  f.Routines.SetPrintFont(-3, true, false);
  QCOMPARE(f.Paper.FontSize(), 26);
}

void TestPrimitives::fontWeightAndUnderlineAreAlwaysSet() {
  PageFixture f;
  f.Routines.SetPrintFont(10, true, true);
  f.Paper.PrintLine(u"a"_s);
  f.Routines.SetPrintFont(0, false, true);
  f.Paper.PrintLine(u"b"_s);
  f.Routines.SetPrintFont(0, false, false);
  f.Paper.PrintLine(u"c"_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(1)),
           QStringList({u"0 0.0 10bu 000000 a"_s, u"0 223.5 10u 000000 b"_s, u"0 446.9 10 000000 c"_s}));
}

void TestPrimitives::colorsComeFromTheTwoSwatches() {
  PageFixture f;
  f.Routines.SetPrintColor(true);
  QCOMPARE(f.Paper.ForeColor(), 0x804020U);
  QCOMPARE(f.Routines.InkColor(), 0x804020U);
  f.Routines.SetPrintColor(false);
  QCOMPARE(f.Paper.ForeColor(), 0x0000AAU);
  QCOMPARE(f.Routines.InkColor(), 0x0000AAU);
}

void TestPrimitives::withoutColorBothInksAreBlack() {
  PageFixture f;
  f.Look.ckColor = false;
  for (const bool dataColor : {true, false}) {
    f.Paper.SetForeColor(0x123456);
    f.Routines.SetPrintColor(dataColor);
    QCOMPARE(f.Paper.ForeColor(), 0U);
    QCOMPARE(f.Routines.InkColor(), 0U);
  }
}

void TestPrimitives::setupPutsTheSurfaceInOrder() {
  PageFixture f;
  f.Look.lblFont = u"Liberation Serif"_s;
  f.Paper.ColorMode = f.Paper.PaperSize = f.Paper.Orientation = f.Paper.ScaleMode = 9;
  f.Paper.SetForeColor(0x123456);
  f.Routines.SetPrintFont(26, true, true);
  f.Routines.SetupPrinter(u"Portrait"_s, true);
  QCOMPARE(f.Paper.ColorMode, 2);
  QCOMPARE(f.Paper.PaperSize, 1);
  QCOMPARE(f.Paper.Orientation, 1);
  QCOMPARE(f.Paper.ScaleMode, 1);
  f.Paper.PrintLine(u"a"_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(1)), QStringList(u"0 0.0 26 000000 a"_s));
  QCOMPARE(f.Paper.Texts(1).at(0).Font.Name, u"Liberation Serif"_s);
  f.Routines.SetupPrinter(u"Portrait"_s, false);
  QCOMPARE(f.Paper.ColorMode, 1);
}

void TestPrimitives::anyOtherOrientationIsLandscape() {
  PageFixture f;
  for (const QString& text : {u"Landscape"_s, u"portrait"_s, QString()}) {
    f.Routines.SetupPrinter(text, true);
    QCOMPARE(f.Paper.Orientation, 2);
  }
}

void TestPrimitives::aJobBeginsWithTheDialogThenTheSetup() {
  PageFixture f;
  f.Look.ckColor = false;
  f.Routines.BeginPrintJob({});
  QCOMPARE(f.Paper.DialogsShown, 1);
  QCOMPARE(f.Paper.ColorMode, 1);
  QCOMPARE(f.Paper.Orientation, 1);
}

void TestPrimitives::aCancelledDialogSetsNothingUp() {
  PageFixture f;
  f.Look.ckColor = false;
  f.Paper.DialogError = 32755;
  QVERIFY_THROWS_EXCEPTION(RuntimeError, f.Routines.BeginPrintJob({}));
  QCOMPARE(f.Paper.ColorMode, 2);
}

void TestPrimitives::thePrinterDialogForgetsTheFileFoundBefore_data() {
  QTest::addColumn<int>("dialogError");
  QTest::newRow("accepted") << 0;
  QTest::newRow("cancelled") << 32755;
}

void TestPrimitives::thePrinterDialogForgetsTheFileFoundBefore() {
  QFETCH(int, dialogError);
  PageFixture f;
  f.Dialog.FileName = u"/pictures/logo.png"_s;
  f.Routines.BeginPrintJobWithoutDialog({});
  QCOMPARE(f.Dialog.FileName, u"/pictures/logo.png"_s);
  f.Paper.DialogError = dialogError;
  try {
    f.Routines.BeginPrintJob({});
  } catch (const RuntimeError& error) {
    QCOMPARE(error.Number(), dialogError);
  }
  QCOMPARE(f.Paper.DialogsShown, 1);
  QCOMPARE(f.Dialog.FileName, QString());
}

void TestPrimitives::aJobWithoutDialogSetsUpOnlyAFreshSurface() {
  PageFixture f;
  f.Look.ckColor = false;
  f.Look.lblFont = u"Liberation Serif"_s;
  f.Routines.BeginPrintJobWithoutDialog({});
  QCOMPARE(f.Paper.DialogsShown, 0);
  QCOMPARE(f.Paper.ColorMode, 1);
  f.Look.lblFont = u"Liberation Mono"_s;
  f.Look.ckColor = true;
  f.Routines.BeginPrintJobWithoutDialog({});
  QCOMPARE(f.Paper.ColorMode, 1);
  f.Paper.PrintLine(u"a"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Texts(1).at(0).Font.Name, u"Liberation Serif"_s);
}

void TestPrimitives::aLineEndMovesDownByTheLineHeightUnrounded() {
  PageFixture f;
  f.Paper.CurrentX = 500;
  f.Paper.PrintLine(u"a"_s);
  QCOMPARE(f.Paper.CurrentX, 0.0F);
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 223.453125);
  f.Paper.PrintLine({});
  QCOMPARE(static_cast<double>(f.Paper.CurrentY), 446.90625);
  QCOMPARE(static_cast<double>(f.Paper.TextHeight({})), 223.453125);
}

void TestPrimitives::aJoinedPrintStaysBehindItsText() {
  PageFixture f;
  f.Paper.CurrentX = 500;
  f.Paper.CurrentY = 300;
  f.Paper.PrintJoined(u"00 "_s);
  QCOMPARE(f.Paper.CurrentX, 778.0F);
  QCOMPARE(f.Paper.CurrentY, 300.0F);
}

void TestPrimitives::textIsAlignedByItsWidth() {
  PageFixture f;
  f.Routines.PrintJoinedRight(1000, u"00 "_s);
  f.Routines.PrintJoinedCentred(1000, u"00 "_s);
  f.Routines.PrintLineRight(5000, u"00 "_s);
  f.Routines.PrintLineCentred(5000, u"00 "_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(1)), QStringList({u"722 0.0 10 000000 00 "_s, u"861 0.0 10 000000 00 "_s,
                                                     u"4722 0.0 10 000000 00 "_s, u"4861 223.5 10 000000 00 "_s}));
  QCOMPARE(f.Paper.Texts(1).at(0).X, 722.0F);
  QCOMPARE(f.Paper.Texts(1).at(1).X, 861.0F);
}

void TestPrimitives::aRuleTakesTheCursorToItsEnd() {
  PageFixture f;
  f.Paper.Line(10, 20, 30, 40);
  QCOMPARE(f.Paper.CurrentX, 30.0F);
  QCOMPARE(f.Paper.CurrentY, 40.0F);
  f.Paper.Box(10, 20, 50, 60);
  QCOMPARE(f.Paper.CurrentX, 50.0F);
  QCOMPARE(f.Paper.CurrentY, 60.0F);
}

void TestPrimitives::aRuleTakesColorAndWidthOfTheMoment() {
  PageFixture f;
  f.Paper.SetForeColor(0x0000FF);
  f.Paper.DrawWidth = 6;
  f.Paper.Line(10, 20, 30, 40);
  f.Paper.SetForeColor(0);
  f.Paper.DrawWidth = 1;
  f.Paper.Box(10, 20, 50, 60);
  f.Paper.EndDoc();
  const std::vector<PaperRule> expected = {{10, 20, 30, 40, false, 6, 0x0000FF}, {10, 20, 50, 60, true, 1, 0}};
  QVERIFY(f.Paper.Rules(1) == expected);
}

void TestPrimitives::pagesCountFromOneAndAgainAfterTheJob() {
  PageFixture f;
  QCOMPARE(f.Paper.Page(), 1);
  f.Paper.PrintLine(u"a"_s);
  f.Paper.NewPage();
  QCOMPARE(f.Paper.Page(), 2);
  QCOMPARE(f.Paper.CurrentY, 0.0F);
  f.Paper.PrintLine(u"b"_s);
  f.Paper.EndDoc();
  QCOMPARE(f.Paper.Page(), 1);
  QCOMPARE(f.Paper.CurrentY, 0.0F);
  QCOMPARE(f.Paper.Words(1), QStringList(u"a"_s));
  QCOMPARE(f.Paper.Words(2), QStringList(u"b"_s));
}

void TestPrimitives::fontAndColorPersistOverANewPage() {
  PageFixture f;
  f.Routines.SetPrintFont(12, true, true);
  f.Paper.SetForeColor(0x0000FF);
  f.Paper.NewPage();
  f.Paper.PrintLine(u"a"_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(2)), QStringList(u"0 0.0 12bu ff0000 a"_s));
}

void TestPrimitives::aTrappedCancelIsSilent() {
  PageFixture f;
  f.Paper.DialogError = 32755;
  bool drawn = false;
  QVERIFY(!f.Routines.RunPrintJob(f.Messages, [&] {
    f.Routines.BeginPrintJob({});
    drawn = true;
  }));
  QVERIFY(!drawn);
  QCOMPARE(f.Messages.Messages, QStringList());
}

void TestPrimitives::anyOtherErrorIsToldAndLeavesNothingBehind() {
  PageFixture f;
  QVERIFY(!f.Routines.RunPrintJob(f.Messages, [&] {
    f.Paper.PrintLine(u"half a page"_s);
    throw RuntimeError(62, u"/MyWebSite.txt"_s);
  }));
  QCOMPARE(f.Messages.Messages, QStringList(u"Print Error: A Print Error has occurred"_s));
  QVERIFY(f.Paper.Jobs.empty());
  f.Paper.PrintLine(u"next"_s);
  f.Paper.EndDoc();
  QCOMPARE(Described(f.Paper.Texts(1)), QStringList(u"0 0.0 10 000000 next"_s));
}

void TestPrimitives::aFailedSendIsTold() {
  PageFixture f;
  f.Paper.SendError = 482;
  QVERIFY(!f.Routines.RunPrintJob(f.Messages, [&] {
    f.Paper.PrintLine(u"a"_s);
    f.Paper.EndDoc();
  }));
  QCOMPARE(f.Messages.Messages, QStringList(u"Print Error: A Print Error has occurred"_s));
}

void TestPrimitives::aJobThatRanSaysSo() {
  PageFixture f;
  QVERIFY(f.Routines.RunPrintJob(f.Messages, [&] {
    f.Paper.PrintLine(u"a"_s);
    f.Paper.EndDoc();
  }));
  QCOMPARE(f.Paper.Jobs.size(), 1U);
  QCOMPARE(f.Messages.Messages, QStringList());
}

QTEST_MAIN(TestPrimitives)
#include "tst_primitives.moc"
