// What every screen brings: the guard, the close box, the place on the display, control arrays and picture buttons.
#include "desktop/ControlArray.h"
#include "desktop/PictureButton.h"
#include "support/BenchScreen.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

class ScreensShare : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aScreenBearsItsName() {
    RecordingHost host;
    BenchScreen screen(host, u"frmInvoice"_s);
    QCOMPARE(screen.objectName(), u"frmInvoice"_s);
  }

  void anErrorGoesToTheHostAndEndsTheHandler() {
    RecordingHost host;
    BenchScreen screen(host);
    bool went = false;
    const bool whole = screen.Run([&] {
      if (!went) throw RuntimeError(ErrorNumber::DiskFull, u"/SoldItems.txt"_s);
      went = true;
    });
    QVERIFY(!whole);
    QVERIFY(!went);
    QCOMPARE(host.Errors, QList<int>{ErrorNumber::DiskFull});
    QVERIFY(screen.Run([&] { went = true; }));
    QVERIFY(went);
  }

  void anErrorOfAnyKindStopsAtTheGuard() {
    RecordingHost host;
    BenchScreen screen(host);
    QVERIFY(!screen.Run([] { throw std::out_of_range("beyond"); }));
    QCOMPARE(host.Errors.size(), 1);
  }

  void clicksAndSignalsRunUnderTheGuard() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* button = screen.Add<QPushButton>(u"button"_s);
    auto* box = screen.Add<QLineEdit>(u"box"_s);
    screen.OnClick(button, [] { throw RuntimeError(ErrorNumber::FileNotFound, u"a"_s); });
    QString seen;
    screen.On(box, &QLineEdit::textChanged, [&](const QString& text) {
      seen = text;
      throw RuntimeError(ErrorNumber::Overflow, u"box"_s);
    });
    int plain = 0;
    screen.On(box, &QLineEdit::textChanged, [&] { ++plain; });
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"button"_s);
    driver.Fill(u"box"_s, u"7"_s);
    QCOMPARE(seen, u"7"_s);
    QCOMPARE(plain, 1);
    QCOMPARE(host.Errors, (QList<int>{ErrorNumber::FileNotFound, ErrorNumber::Overflow}));
  }

  void enterAndEscapeRunTheirButtonsAfterSettlingTheBox() {
    RecordingHost host;
    BenchScreen screen(host);
    QStringList log;
    auto* box = screen.Add<QLineEdit>(u"box"_s);
    auto* filtered = screen.Add<QLineEdit>(u"filtered"_s);
    auto* lines = screen.Add<QPlainTextEdit>(u"lines"_s);
    auto* next = screen.Add<QPushButton>(u"next"_s);
    auto* back = screen.Add<QPushButton>(u"back"_s);
    auto* other = screen.Add<QPushButton>(u"other"_s);
    screen.OnLeave(box, [&] { log.append(u"leave"_s); });
    screen.FilterKeys(filtered, [](int) { return 0; });
    screen.OnClick(next, [&] { log.append(u"next"_s); });
    screen.OnClick(back, [&] { log.append(u"back"_s); });
    screen.OnClick(other, [&] { log.append(u"other"_s); });
    screen.SetEnterButton(next);
    screen.SetEscapeButton(back);
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"box"_s);
    driver.PressKey(Qt::Key_Return);
    driver.Click(u"box"_s);
    driver.PressKey(Qt::Key_Escape);
    QCOMPARE(log, (QStringList{u"leave"_s, u"next"_s, u"leave"_s, u"back"_s}));
    log.clear();
    // A box whose filter has no use for Enter hands it on; one of several lines keeps it; a button runs itself.
    driver.Click(u"filtered"_s);
    driver.PressKey(Qt::Key_Enter);
    driver.Click(u"lines"_s);
    driver.PressKey(Qt::Key_Return);
    QCOMPARE(lines->toPlainText(), u"\n"_s);
    other->setFocus();
    driver.PressKey(Qt::Key_Return);
    next->setEnabled(false);
    driver.Click(u"box"_s);
    driver.PressKey(Qt::Key_Return);
    back->hide();
    driver.PressKey(Qt::Key_Escape);
    QCOMPARE(log, (QStringList{u"next"_s, u"other"_s}));
  }

  void theTabKeyLeavesABoxOfSeveralLines() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* lines = screen.Add<QPlainTextEdit>(u"lines"_s);
    screen.Add<QLineEdit>(u"box"_s);
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"lines"_s);
    driver.PressKey(Qt::Key_Tab);
    QCOMPARE(driver.FocusName(), u"box"_s);
    QCOMPARE(lines->toPlainText(), QString());
  }

  void theUsersCloseBoxEndsTheProgramAfterTheScreensOwnSaving() {
    RecordingHost host;
    BenchScreen screen(host);
    QStringList log;
    screen.Closing = [&] { log.append(u"saved, told %1"_s.arg(host.Closes)); };
    screen.show();
    ScreenDriver(&screen).CloseByUser();
    QCOMPARE(log, QStringList{u"saved, told 0"_s});
    QCOMPARE(host.Closes, 1);
  }

  void aCloseWhoseSavingFailsKeepsTheProgramRunning() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.Closing = [] { throw RuntimeError(ErrorNumber::DiskFull, u"/Services.txt"_s); };
    screen.show();
    ScreenDriver(&screen).CloseByUser();
    QCOMPARE(host.Errors, QList<int>{ErrorNumber::DiskFull});
    QCOMPARE(host.Closes, 0);
    QVERIFY(screen.isVisible());
  }

  void aCloseFromCodeSavesNothingAndEndsNothing() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.Closing = [] { QFAIL("a close from code saves nothing"); };
    screen.show();
    screen.close();
    QVERIFY(!screen.isVisible());
    QCOMPARE(host.Closes, 0);
  }

  void theFirstScreenHasTheDefaultSizeAsFarAsTheDisplayHasRoom() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.show();
    ScreenDriver::ProcessEvents();
    const QSize display = screen.screen()->availableSize();
    QCOMPARE(screen.size(), QSize(1180, 760).boundedTo(display.shrunkBy({8, 40, 8, 8})));
  }

  void theFirstWindowAndItsFrameStandOnASmallDisplay() {
    // A panel of 28 at the top, and room left for a title bar.
    const QRect display(0, 28, 1366, 740);
    const QRect framed = WindowPlacement::FirstFrame(display);
    QVERIFY(display.contains(framed));
    QCOMPARE(framed.height(), 740);
    QCOMPARE(WindowPlacement::FirstFrame(QRect(0, 0, 1024, 768)).size(), QSize(1024, 768));
    RecordingHost host;
    BenchScreen screen(host);
    screen.show();
    ScreenDriver::ProcessEvents();
    const QRect here = screen.screen()->availableGeometry();
    QVERIFY(here.contains(screen.frameGeometry()));
    QVERIFY(WindowPlacement::FirstFrame(here).contains(screen.frameGeometry()));
    // On a large display the whole default size is in the middle.
    const QRect large = WindowPlacement::FirstFrame(QRect(0, 0, 1920, 1080));
    QVERIFY(large.height() >= WindowPlacement::DefaultHeight + 24);
    QCOMPARE(large.center(), QRect(0, 0, 1920, 1080).center());
  }

  void aScreenOpensWhereTheLastOneStood() {
    RecordingHost host;
    BenchScreen first(host);
    BenchScreen second(host);
    first.show();
    ScreenDriver::ProcessEvents();
    first.move(37, 21);
    first.resize(640, 480);
    ScreenDriver::ProcessEvents();
    first.hide();
    second.show();
    ScreenDriver::ProcessEvents();
    QCOMPARE(second.pos(), QPoint(37, 21));
    QCOMPARE(second.size(), QSize(640, 480));
    // The other way round, without hiding in between; a screen that is shown already stays.
    second.resize(700, 500);
    ScreenDriver::ProcessEvents();
    first.show();
    ScreenDriver::ProcessEvents();
    QCOMPARE(first.size(), QSize(700, 500));
    second.resize(650, 450);
    ScreenDriver::ProcessEvents();
    first.show();
    QCOMPARE(first.size(), QSize(700, 500));
  }

  void aMaximizedScreenIsFollowedByAMaximizedOne() {
    RecordingHost host;
    BenchScreen first(host);
    BenchScreen second(host);
    first.show();
    first.resize(640, 480);
    ScreenDriver::ProcessEvents();
    first.showMaximized();
    QTRY_VERIFY(first.isMaximized());
    first.hide();
    second.show();
    ScreenDriver::ProcessEvents();
    QTRY_VERIFY(second.isMaximized());
    second.showNormal();
    QTRY_VERIFY(!second.isMaximized());
    second.hide();
    first.show();
    ScreenDriver::ProcessEvents();
    QTRY_VERIFY(!first.isMaximized());
  }

  void aControlArrayIsIndexedByTheNumbersOfItsNames() {
    QWidget form;
    auto* zero = new QLineEdit(&form);
    zero->setObjectName(u"txtBox_0"_s);
    auto* frame = new QWidget(&form);
    auto* twelve = new QLineEdit(frame);
    twelve->setObjectName(u"txtBox_12"_s);
    auto* other = new QPushButton(&form);
    other->setObjectName(u"txtBox_1"_s);
    auto* longer = new QLineEdit(&form);
    longer->setObjectName(u"txtBox_2_x"_s);
    const ControlArray<QLineEdit, 13> boxes(&form, u"txtBox"_s);
    QCOMPARE(boxes[0], zero);
    QCOMPARE(boxes[12], twelve);
    QVERIFY(!boxes.Has(1));
    QVERIFY(!boxes.Has(2));
    QVERIFY(!boxes.Has(13));
    QVERIFY(!boxes.Has(-1));
    QCOMPARE(boxes.Size(), 13);
    for (const int absent : {1, 13, -1}) QVERIFY_THROWS_EXCEPTION(std::logic_error, boxes[absent]);
  }

  void theFocusForAControlThatIsNotThereIsNoFocus() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.Add<QLineEdit>(u"first"_s);
    auto* second = screen.Add<QLineEdit>(u"second"_s);
    screen.SetFocusTo(nullptr);
    screen.SetFocusTo(second);
    screen.SetFocusTo(nullptr);
    screen.show();
    ScreenDriver driver(&screen);
    QCOMPARE(screen.focusWidget(), second);
    screen.SetFocusTo(nullptr);
    QCOMPARE(screen.focusWidget(), second);
  }

  void aPictureIsClickedByMouseAndKeys() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* picture = screen.Add<PictureButton>(u"Image1"_s);
    QPixmap orange(40, 30);
    orange.fill(QColor(255, 140, 0));
    picture->SetPicture(orange);
    int clicks = 0;
    screen.OnClick(picture, [&] { ++clicks; });
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"Image1"_s);
    driver.PressKey(Qt::Key_Space);
    driver.PressKey(Qt::Key_Return);
    QCOMPARE(clicks, 3);
    QVERIFY(picture->sizeHint().width() >= 40);
    const QImage drawn = picture->grab().toImage();
    QCOMPARE(drawn.pixelColor(drawn.rect().center()).rgb(), qRgb(255, 140, 0));
  }
};

QTEST_MAIN(ScreensShare)
#include "tst_screens.moc"
