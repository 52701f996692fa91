// A box settles when it is left for another control of its window, before the click that left it, and only then.
#include "desktop/ListCombo.h"
#include "desktop/QtDialogs.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

class Leaving : public QObject {
  Q_OBJECT

 private:
  /// Two boxes and two buttons; what happens is noted in order.
  struct Bench {
    Bench() {
      screen.menuBar()->addMenu(u"&Tools"_s)->addAction(u"&Entry"_s)->setObjectName(u"mnuEntry"_s);
      Note(first, u"first"_s);
      Note(second, u"second"_s);
      screen.OnClick(save, [this] { log.append(u"save"_s); });
      screen.OnClick(
          menu, [this] { log.append(u"menu"_s); }, BenchScreen::WhenLeaveRefused::Always);
      screen.SetFocusTo(first);
      screen.show();
      driver.emplace(&screen);
      driver->Click(u"first"_s);
      log.clear();
    }
    void Note(QWidget* box, const QString& name) {
      screen.OnEnter(box, [this, name] { log.append(u"enter "_s + name); });
      screen.OnLeave(box, [this, name] {
        log.append(u"leave "_s + name);
        if (leaving && name == u"first") leaving();
      });
    }
    RecordingHost host;
    BenchScreen screen{host};
    QLineEdit* first = screen.Add<QLineEdit>(u"first"_s);
    QLineEdit* second = screen.Add<QLineEdit>(u"second"_s);
    QLineEdit* third = screen.Add<QLineEdit>(u"third"_s);
    QPushButton* save = screen.Add<QPushButton>(u"save"_s);
    QPushButton* menu = screen.Add<QPushButton>(u"menu"_s);
    QtDialogs dialogs;
    QStringList log;
    std::function<void()> leaving;
    std::optional<ScreenDriver> driver;
  };

 private Q_SLOTS:
  void theFirstFocusOfAShownScreenEntersItsBox() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.Add<QLineEdit>(u"first"_s);
    auto* asked = screen.Add<QLineEdit>(u"asked"_s);
    int entered = 0;
    screen.OnEnter(asked, [&] { ++entered; });
    screen.SetFocusTo(asked);
    QCOMPARE(entered, 0);
    screen.show();
    ScreenDriver driver(&screen);
    QCOMPARE(driver.FocusName(), u"asked"_s);
    QCOMPARE(entered, 1);
  }

  void theLastFocusAskedForThatCanBeGrantedIsSetWhenTheScreenShows() {
    RecordingHost host;
    BenchScreen screen(host);
    screen.Add<QLineEdit>(u"first"_s);
    auto* wanted = screen.Add<QLineEdit>(u"wanted"_s);
    auto* hidden = screen.Add<QLineEdit>(u"hidden"_s);
    auto* disabled = screen.Add<QLineEdit>(u"disabled"_s);
    screen.SetFocusTo(wanted);
    screen.SetFocusTo(hidden);
    screen.SetFocusTo(disabled);
    hidden->hide();
    disabled->setEnabled(false);
    screen.show();
    ScreenDriver driver(&screen);
    QCOMPARE(driver.FocusName(), u"wanted"_s);
  }

  void theFocusIsNotGivenToADisabledOrHiddenControl() {
    Bench bench;
    bench.second->setEnabled(false);
    bench.screen.SetFocusTo(bench.second);
    bench.third->hide();
    bench.screen.SetFocusTo(bench.third);
    QCOMPARE(bench.driver->FocusName(), u"first"_s);
    QCOMPARE(bench.log, QStringList());
  }

  void aClickIntoAnotherBoxLeavesThenEnters() {
    Bench bench;
    bench.driver->Click(u"second"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter second"_s}));
  }

  void theTabKeyLeavesThenEnters() {
    Bench bench;
    bench.driver->PressKey(Qt::Key_Tab);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter second"_s}));
  }

  void aButtonPressSettlesTheBoxBeforeTheClick() {
    Bench bench;
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"save"_s}));
    QCOMPARE(bench.driver->FocusName(), u"save"_s);
  }

  void anAccessKeySettlesTheBoxBeforeTheClick() {
    Bench bench;
    bench.save->setText(u"&Save"_s);
    bench.driver->PressAccessKey('s');
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"save"_s}));
    QCOMPARE(bench.driver->FocusName(), u"save"_s);
  }

  void theSpaceBarAndEnterRunTheButtonThatHasTheFocus() {
    Bench bench;
    bench.save->setFocus();
    bench.driver->PressKey(Qt::Key_Space);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"save"_s, u"save"_s}));
  }

  void afterAMessageTheFocusIsBackWhereEnterWasPressed() {
    Bench bench;
    QueuedAnswers answers;
    bench.screen.SetEnterButton(bench.save);
    auto* refuse = bench.screen.Add<QPushButton>(u"refuse"_s);
    bench.screen.OnClick(refuse, [&] { bench.dialogs.ShowMessage(u"No"_s); });
    bench.driver->Fill(u"second"_s, u"abc"_s);
    // Without a message the focus stays where the key led it.
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.driver->FocusName(), u"save"_s);
    bench.screen.SetEnterButton(refuse);
    bench.driver->Click(u"second"_s);
    answers.Ok(u"No"_s);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.driver->FocusName(), u"second"_s);
    bench.driver->Type(u"5"_s);
    QCOMPARE(bench.driver->Text(u"second"_s), u"5"_s);
    // Pressed on the button itself it stays there.
    answers.Ok(u"No"_s);
    bench.driver->Click(u"refuse"_s);
    answers.Ok(u"No"_s);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.driver->FocusName(), u"refuse"_s);
  }

  void afterAMessageTheFocusGoesWhereTheScreenSendsIt() {
    Bench bench;
    QueuedAnswers answers;
    auto* refuse = bench.screen.Add<QPushButton>(u"refuse"_s);
    bench.screen.SetEnterButton(refuse);
    bench.screen.OnClick(refuse, [&] {
      bench.dialogs.ShowMessage(u"No"_s);
      bench.screen.SetFocusTo(bench.third);
    });
    bench.driver->Click(u"second"_s);
    answers.Ok(u"No"_s);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.driver->FocusName(), u"third"_s);
    // Nor to a box that can't have it any more.
    bench.screen.OnClick(refuse, [&] { bench.second->setEnabled(false); });
    bench.driver->Click(u"second"_s);
    answers.Ok(u"No"_s);
    bench.driver->PressKey(Qt::Key_Return);
    QVERIFY(bench.driver->FocusName() != u"second"_s);
  }

  void aCheckThatTakesTheFocusBackDropsTheClickThatWouldUseTheBox() {
    Bench bench;
    bench.leaving = [&] { bench.screen.SetFocusTo(bench.first); };
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s}));
    QCOMPARE(bench.driver->FocusName(), u"first"_s);
    bench.log.clear();
    bench.save->setText(u"&Save"_s);
    bench.driver->PressAccessKey('s');
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s}));
  }

  void aCheckThatTakesTheFocusBackDoesNotStopTheWaysOut() {
    Bench bench;
    bench.leaving = [&] { bench.screen.SetFocusTo(bench.first); };
    bench.driver->Click(u"menu"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s, u"menu"_s}));
    bench.log.clear();
    bench.menu->setText(u"&Menu"_s);
    bench.driver->PressAccessKey('m');
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s, u"menu"_s}));
  }

  void aLeaveHandlerThatSendsTheFocusToAThirdControlLetsTheClickRun() {
    Bench bench;
    bench.leaving = [&] { bench.screen.SetFocusTo(bench.second); };
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter second"_s, u"save"_s}));
    QCOMPARE(bench.driver->FocusName(), u"second"_s);
  }

  void aBoxShownByALeaveHandlerLeavesTheClickStanding() {
    Bench bench;
    QueuedAnswers answers;
    bench.leaving = [&] { bench.dialogs.ShowMessage(u"Too short"_s); };
    answers.Ok(u"Too short"_s, u"Karvex Invoicer"_s);
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"save"_s}));
    QVERIFY(!bench.save->isDown());
  }

  void aBoxShownByALeaveHandlerThatTakesTheFocusBackDropsTheClick() {
    Bench bench;
    QueuedAnswers answers;
    bench.leaving = [&] {
      bench.dialogs.ShowMessage(u"Too short"_s);
      bench.screen.SetFocusTo(bench.first);
    };
    answers.Ok();
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s}));
    answers.Ok();
    bench.log.clear();
    bench.driver->Click(u"menu"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s, u"menu"_s}));
  }

  void aBoxShownByALeaveHandlerIsNoLeavingItself() {
    Bench bench;
    QueuedAnswers answers;
    bench.leaving = [&] { bench.dialogs.ShowMessage(u"Once"_s); };
    answers.Ok();
    bench.driver->Click(u"second"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter second"_s}));
    QCOMPARE(answers.Boxes().size(), 1);
    QTRY_VERIFY(bench.screen.isActiveWindow());
  }

  void aDialogThatTakesTheFocusForAWhileIsNoLeaving() {
    Bench bench;
    QueuedAnswers answers;
    answers.Ok();
    bench.dialogs.ShowMessage(u"Hello"_s);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log, QStringList());
    QTRY_VERIFY(bench.screen.isActiveWindow());
    QCOMPARE(bench.driver->FocusName(), u"first"_s);
  }

  void theMenuIsNoLeaving() {
    Bench bench;
    bench.driver->PressAccessKey('t');
    bench.driver->PressKey(Qt::Key_Escape);
    bench.driver->PressKey(Qt::Key_Escape);
    bench.driver->Trigger(u"mnuEntry"_s);
    QCOMPARE(bench.log, QStringList());
  }

  void anotherWindowOfTheProgramIsNoLeaving() {
    Bench bench;
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    QCOMPARE(bench.log, QStringList());
  }

  void aPressOnAWindowThatIsNotActiveSettlesTheBoxAsWell() {
    Bench bench;
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    bench.leaving = [&] { bench.screen.SetFocusTo(bench.first); };
    const QPoint position = bench.save->mapTo(&bench.screen, bench.save->rect().center());
    QTest::mouseClick(bench.screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter first"_s}));
    QTRY_VERIFY(bench.screen.isActiveWindow());
  }

  void hidingTheScreenIsNoLeavingAndForgetsTheBox() {
    Bench bench;
    bench.screen.hide();
    bench.screen.SetFocusTo(bench.second);
    bench.screen.show();
    ScreenDriver::ProcessEvents();
    QVERIFY(!bench.log.contains(u"leave first"_s));
    QCOMPARE(bench.log.last(), u"enter second"_s);
  }

  void aBoxHiddenByCodeRunsItsLeaving() {
    Bench bench;
    bench.first->hide();
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log.first(), u"leave first"_s);
    QCOMPARE(bench.log.count(u"leave first"_s), 1);
  }

  void aBoxDisabledByCodeRunsItsLeaving() {
    Bench bench;
    bench.first->setEnabled(false);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log.first(), u"leave first"_s);
    QCOMPARE(bench.log.count(u"leave first"_s), 1);
  }

  void aBoxDisabledWithItsFrameRunsItsLeaving() {
    Bench bench;
    bench.screen.centralWidget()->setEnabled(false);
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.log, QStringList{u"leave first"_s});
  }

  void aLeaveHandlerThatFailsTellsTheHostAndDropsTheClickThatWouldUseTheBox() {
    Bench bench;
    bench.leaving = [] { throw RuntimeError(ErrorNumber::TypeMismatch, u"first"_s); };
    bench.driver->Click(u"save"_s);
    QCOMPARE(bench.host.Errors, QList<int>{ErrorNumber::TypeMismatch});
    QCOMPARE(bench.log, QStringList{u"leave first"_s});
    bench.screen.SetFocusTo(bench.first);
    bench.log.clear();
    bench.driver->Click(u"menu"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"menu"_s}));
  }

  void enterHandlersThatMoveTheFocusLeaveWhatTheyEntered() {
    Bench bench;
    bench.screen.OnEnter(bench.second, [&] { bench.screen.SetFocusTo(bench.third); });
    bench.driver->Click(u"second"_s);
    QCOMPARE(bench.log, (QStringList{u"leave first"_s, u"enter second"_s, u"leave second"_s}));
    QCOMPARE(bench.driver->FocusName(), u"third"_s);
  }

  void handlersThatSendTheFocusRoundInACircleEnd() {
    Bench bench;
    bench.screen.OnEnter(bench.second, [&] { bench.screen.SetFocusTo(bench.first); });
    bench.screen.OnEnter(bench.first, [&] { bench.screen.SetFocusTo(bench.second); });
    bench.driver->Click(u"second"_s);
    QVERIFY(bench.log.size() < 20);
  }

  void aClickOnAButtonThatTheLeaveHandlerDisabledIsDropped() {
    Bench bench;
    bench.leaving = [&] { bench.save->setEnabled(false); };
    bench.driver->Click(u"save"_s);
    QVERIFY(!bench.log.contains(u"save"_s));
  }

  void aButtonInAScrolledAreaSettlesTheBoxToo() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* box = screen.Add<QLineEdit>(u"box"_s);
    auto* area = screen.Add<QScrollArea>(u"area"_s);
    auto* button = new QPushButton;
    button->setObjectName(u"button"_s);
    area->setWidget(button);
    QStringList log;
    screen.OnLeave(box, [&] {
      log.append(u"leave"_s);
      screen.SetFocusTo(box);
    });
    screen.OnClick(button, [&] { log.append(u"click"_s); });
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"box"_s);
    driver.Click(u"button"_s);
    QCOMPARE(log, QStringList{u"leave"_s});
  }

  void radioButtonsAndCheckBoxesSettleTheBoxToo() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* box = screen.Add<QLineEdit>(u"box"_s);
    auto* option = screen.Add<QRadioButton>(u"option"_s);
    auto* tick = screen.Add<QCheckBox>(u"tick"_s);
    QtDialogs dialogs;
    QueuedAnswers answers;
    QStringList log;
    screen.OnLeave(box, [&] {
      log.append(u"leave"_s);
      dialogs.ShowMessage(u"left"_s);
    });
    screen.OnClick(option, [&] { log.append(option->isChecked() ? u"on"_s : u"off"_s); });
    screen.OnClick(tick, [&] { log.append(tick->isChecked() ? u"ticked"_s : u"unticked"_s); });
    screen.show();
    ScreenDriver driver(&screen);
    for (const QString& name : {u"option"_s, u"tick"_s}) {
      driver.Click(u"box"_s);
      answers.Ok();
      driver.Click(name);
    }
    QCOMPARE(log, (QStringList{u"leave"_s, u"on"_s, u"leave"_s, u"ticked"_s}));
  }

  void combosAndTextsOfSeveralLinesAreLeftToo() {
    RecordingHost host;
    BenchScreen screen(host);
    auto* combo = screen.Add<ListCombo>(u"combo"_s);
    combo->setEditable(true);
    combo->AddEntry(u"One"_s);
    auto* lines = screen.Add<QPlainTextEdit>(u"lines"_s);
    QStringList log;
    screen.OnLeave(combo, [&] { log.append(u"leave combo "_s + combo->Text()); });
    screen.OnEnter(lines, [&] { log.append(u"enter lines"_s); });
    screen.OnLeave(lines, [&] { log.append(u"leave lines"_s); });
    screen.show();
    ScreenDriver driver(&screen);
    driver.Click(u"combo"_s);
    driver.Type(u"x"_s);
    // Its own list is no leaving.
    driver.PickEntry(u"combo"_s, 0);
    QCOMPARE(log, QStringList());
    driver.Click(u"lines"_s);
    driver.Click(u"combo"_s);
    QCOMPARE(log, (QStringList{u"leave combo One"_s, u"enter lines"_s, u"leave lines"_s}));
  }
};

QTEST_MAIN(Leaving)
#include "tst_leaving.moc"
