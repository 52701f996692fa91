// What the box of an unhandled error says.
#include <QtTest>

#include "shell/ErrorText.h"

using namespace Qt::StringLiterals;

namespace {

const QString Root = u"/home/me/oranges"_s;

}  // namespace

class ErrorTextTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itTellsWhatHappenedToWhichFileAndWhatToDo() {
    QCOMPARE(ErrorBoxText(RuntimeError::AtPath(61, u"/data/Labor.txt"_s), false, Root),
             u"/data/Labor.txt: The disk is full. (error 61)\n\nMake room on it and try again. Nothing was lost."_s);
  }

  void aBoxGoesByTheNameThatItsScreenCallsItAFileByItsPath() {
    QCOMPARE(ErrorBoxText(RuntimeError(13, u"txtUnits"_s, u"It isn't a number."_s), false, Root, u"Quantity"_s)
                 .section(u'\n', 0, 0),
             u"Quantity: It isn't a number. (error 13)"_s);
    QVERIFY(ErrorBoxText(RuntimeError(61, u"/Labor.txt"_s), false, Root, u"Quantity"_s).startsWith(Root));
  }

  void anErrorOfNoFileOrBoxBeginsWithWhatHappened() {
    QVERIFY(ErrorBoxText(RuntimeError(9, {}), false, Root)
                .startsWith(u"A line or entry was asked for that isn't there. (error 9)\n\n"_s));
  }

  void noErrorOfAFileTellsThatItIsAsItWas() {
    // The new file may stand already, when only its folder couldn't be flushed.
    for (const int number : {61, 70, 75}) {
      const QString text = ErrorBoxText(RuntimeError::AtPath(number, u"/data/Labor.txt"_s), false, Root);
      QVERIFY2(text.endsWith(u" Nothing was lost."_s) && !text.contains(u"unchanged"_s), qPrintable(text));
    }
  }

  void aRecordThatMayBeDamagedIsNotCalledSafe() {
    QVERIFY(
        !ErrorBoxText(RuntimeError::AtPath(57, u"/data/SoldItems.txt"_s), false, Root).contains(u"Nothing was lost"_s));
  }

  void damageTellsThatTheProgramEndsAndHowToMendIt() {
    const QString text = ErrorBoxText(RuntimeError(62, u"/Phone.txt"_s).AsFileContent(u"/Phone.txt"_s), true, Root);
    QVERIFY(text.startsWith(u"/home/me/oranges/Phone.txt: The file ends too early. (error 62)\n\n"_s));
    QVERIFY(text.contains(u"The program ends"_s));
    QVERIFY(text.contains(u"Backup"_s));
  }

  void damageMaySayItselfHowToMendIt() {
    const RuntimeError damage =
        RuntimeError(62, u"/SpeedNumbers.txt"_s, u"It is cut."_s, RuntimeError::Origin::FileContent)
            .WithAdvice(u"Remove it."_s);
    QCOMPARE(ErrorBoxText(damage, true, Root),
             u"/home/me/oranges/SpeedNumbers.txt: It is cut. (error 62)\n\nThe file can't be read as what it must be. "
             u"The program ends "
             u"and leaves all files as they are. Remove it."_s);
  }

  void aLogoThatIsNoPictureIsNotAdvisedAway() {
    const RuntimeError damage(481, u"/CompanyLogo.txt"_s, u"It names /home/me/logo.png."_s,
                              RuntimeError::Origin::FileContent);
    QCOMPARE(ErrorBoxText(damage, true, Root),
             u"/home/me/oranges/CompanyLogo.txt: It names /home/me/logo.png. (error 481)\n\nThe program ends and "
             u"leaves all files as "
             u"they are. Put a picture in that place, or move what stands there elsewhere; or remove CompanyLogo.txt "
             u"and its copy in the Backup folder. Then start the program again."_s);
  }

  void aFileThatWasAskedForAndCannotBeReadIsToBeMended() {
    for (const int number : {6, 9, 13, 62}) {
      const QString text = ErrorBoxText(RuntimeError(number, u"/a/20260001.txt"_s), false, Root);
      QVERIFY2(text.endsWith(u"\n\nMend the file or remove it, then try again. Nothing was lost."_s), qPrintable(text));
    }
  }

  void theAdviceIsThatOfAFileHoweverItIsNamed() {
    for (const QString& subject : {u"/Labor.txt"_s, u"\\Labor.txt"_s}) {
      QVERIFY(ErrorBoxText(RuntimeError(13, subject), false, Root).contains(u"Mend the file or remove it"_s));
    }
    QVERIFY(ErrorBoxText(RuntimeError(13, u"txtUnits"_s), false, Root).contains(u"Correct what was typed"_s));
  }

  void anErrorAtTheStartTellsThatNothingWasChanged() {
    const QString text = ErrorBoxText(RuntimeError::AtPath(70, u"/data/AuxFiles"_s), true, Root);
    QVERIFY(text.contains(u"can't start"_s));
    QVERIFY(!text.contains(u"Backup"_s));
  }

  void anErrorsOwnAdviceStandsInPlaceOfTheUsualOne() {
    const RuntimeError error = RuntimeError(6, u"/Services.txt"_s, u"It is full."_s).WithAdvice(u"Delete one."_s);
    QCOMPARE(ErrorBoxText(error, false, Root),
             u"/home/me/oranges/Services.txt: It is full. (error 6)\n\nDelete one."_s);
  }

  void aFolderThatIsGoneIsToldOnceAndWhatToDoNext() {
    QCOMPARE(ErrorBoxText(RuntimeError::AtPath(76, u"/data/Templates"_s), false, Root),
             u"/data/Templates: The folder isn't there. (error 76)\n\nStart the program again: it makes its folders at "
             u"each start."_s);
  }

  void everyErrorSaysWhatToDo_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("advice");
    QTest::newRow("overflow") << 6 << u"Correct what was typed"_s;
    QTest::newRow("no such row") << 9 << u"There is no room for it"_s;
    QTest::newRow("no number") << 13 << u"Correct what was typed"_s;
    QTest::newRow("not found") << 53 << u"Put the file there or choose another one"_s;
    QTest::newRow("no name") << 64 << u"Choose another name"_s;
    QTest::newRow("closed") << 52 << u"close the program and start it again"_s;
    QTest::newRow("broken disk") << 57 << u"Have the disk checked"_s;
    QTest::newRow("full") << 61 << u"Make room on it"_s;
    QTest::newRow("printer") << 482 << u"Check that the printer is on"_s;
    QTest::newRow("denied") << 70 << u"Check that you may read and write the file and its folder"_s;
    QTest::newRow("access") << 75 << u"Check that you may read and write the file and its folder"_s;
    QTest::newRow("no folder") << 76 << u"Start the program again"_s;
  }
  void everyErrorSaysWhatToDo() {
    QFETCH(int, number);
    QFETCH(QString, advice);
    QVERIFY(ErrorBoxText(RuntimeError(number, u"x"_s), false, Root).contains(advice));
  }
};

QTEST_GUILESS_MAIN(ErrorTextTest)
#include "tst_errorText.moc"
