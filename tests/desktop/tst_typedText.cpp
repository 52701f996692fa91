// What is typed or pasted passes the box's filter and limit; a text set from code passes neither.
#include "desktop/GridView.h"
#include "desktop/ListCombo.h"
#include "desktop/QtDialogs.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"

using namespace Qt::StringLiterals;

namespace {

int DigitsOnly(int key) {
  return key >= '0' && key <= '9' ? key : 0;
}

/// As a dead key or an input method hands it over, to the control that has the focus.
void Commit(const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(QApplication::focusObject(), &event);
  ScreenDriver::ProcessEvents();
}

}  // namespace

class TypedTexts : public QObject {
  Q_OBJECT

 private:
  struct Bench {
    Bench() {
      combo->setEditable(true);
      screen.show();
      driver.emplace(&screen);
    }
    RecordingHost host;
    BenchScreen screen{host};
    QLineEdit* box = screen.Add<QLineEdit>(u"box"_s);
    QPlainTextEdit* lines = screen.Add<QPlainTextEdit>(u"lines"_s);
    ListCombo* combo = screen.Add<ListCombo>(u"combo"_s);
    QLineEdit* other = screen.Add<QLineEdit>(u"other"_s);
    QtDialogs dialogs;
    std::optional<ScreenDriver> driver;
  };

 private Q_SLOTS:
  void theFilterLetsThroughRefusesAndReplacesCharacters_data() {
    QTest::addColumn<QString>("control");
    QTest::newRow("a text box") << u"box"_s;
    QTest::newRow("a box of several lines") << u"lines"_s;
    QTest::newRow("an editable list") << u"combo"_s;
  }
  void theFilterLetsThroughRefusesAndReplacesCharacters() {
    QFETCH(QString, control);
    Bench bench;
    bench.screen.FilterKeys(bench.driver->Control(control), [](int key) { return key == 'x' ? 'Y' : DigitsOnly(key); });
    bench.driver->Click(control);
    bench.driver->Type(u"1a2x"_s);
    QCOMPARE(bench.driver->Text(control), u"12Y"_s);
  }

  void theFilterGetsTheCharacterCodes() {
    Bench bench;
    QList<int> keys;
    bench.screen.FilterKeys(bench.box, [&](int key) {
      keys.append(key);
      return key;
    });
    bench.driver->Click(u"box"_s);
    bench.driver->Type(u"aZ é"_s);
    bench.driver->PressKey(Qt::Key_Backspace);
    bench.driver->PressKey(Qt::Key_Return);
    bench.driver->PressKey(Qt::Key_Enter);
    QCOMPARE(keys, (QList<int>{'a', 'Z', ' ', 0xE9, 8, 13, 13}));
    QCOMPARE(bench.box->text(), u"aZ "_s);
  }

  void chordsAndEditingKeysPassByThemselves() {
    Bench bench;
    bench.box->setText(u"abc"_s);
    QList<int> keys;
    bench.screen.FilterKeys(bench.box, [&](int key) {
      keys.append(key);
      return 0;
    });
    bench.driver->Click(u"box"_s);
    bench.driver->PressKey(Qt::Key_Home);
    bench.driver->PressKey(Qt::Key_Delete);
    bench.driver->PressKey(Qt::Key_Right);
    bench.driver->PressKey(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(bench.box->text(), u"bc"_s);
    QCOMPARE(bench.box->selectedText(), u"bc"_s);
    bench.driver->PressKey(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(bench.box->text(), QString());
    bench.driver->PressKey(Qt::Key_Tab);
    QCOMPARE(bench.driver->FocusName(), u"lines"_s);
    QCOMPARE(keys, QList<int>());
  }

  void aRefusedBackspaceAndARefusedEnterDoNothing() {
    Bench bench;
    bench.screen.FilterKeys(bench.box, DigitsOnly);
    bench.box->setText(u"12"_s);
    int returns = 0;
    connect(bench.box, &QLineEdit::returnPressed, this, [&] { ++returns; });
    bench.driver->Click(u"box"_s);
    bench.driver->PressKey(Qt::Key_Backspace);
    bench.driver->PressKey(Qt::Key_Return);
    QCOMPARE(bench.box->text(), u"12"_s);
    QCOMPARE(returns, 0);
  }

  void pastedTextPassesTheFilterCharacterByCharacter() {
    Bench bench;
    // One point only: the filter must see what the characters before have made of the box.
    const auto onePoint = [&](int key) {
      return key == '.' && bench.box->text().contains(u'.') ? 0 : key == '.' ? key : DigitsOnly(key);
    };
    bench.screen.FilterKeys(bench.box, onePoint);
    bench.box->setText(u"7"_s);
    bench.driver->Click(u"box"_s);
    bench.driver->Paste(u"1a.2.3\r\n4"_s);
    QCOMPARE(bench.box->text(), u"71.234"_s);
    bench.box->undo();
    QVERIFY(bench.box->text() != u"71.234"_s);
  }

  void pastedTextUsesTheFilterWithoutMessagesWhereThereIsOne() {
    Bench bench;
    QStringList asked;
    bench.screen.FilterKeys(
        bench.box,
        [&](int key) {
          asked.append(u"key"_s);
          return key;
        },
        [&](int key) {
          asked.append(u"paste"_s);
          return DigitsOnly(key);
        });
    bench.driver->Click(u"box"_s);
    bench.driver->Paste(u"a1"_s);
    QCOMPARE(bench.box->text(), u"1"_s);
    QCOMPARE(asked, (QStringList{u"paste"_s, u"paste"_s}));
    bench.driver->Type(u"b"_s);
    QCOMPARE(asked.last(), u"key"_s);
  }

  void pastingFromTheBoxesOwnMenuPassesTheFilterToo_data() {
    QTest::addColumn<QString>("control");
    QTest::newRow("a text box") << u"box"_s;
    QTest::newRow("a box of several lines") << u"lines"_s;
    QTest::newRow("an editable list") << u"combo"_s;
  }
  void pastingFromTheBoxesOwnMenuPassesTheFilterToo() {
    QFETCH(QString, control);
    Bench bench;
    QWidget* box = bench.driver->Control(control);
    bench.screen.FilterKeys(box, DigitsOnly);
    bench.driver->Click(control);
    QApplication::clipboard()->setText(u"a1b2"_s);
    QWidget* target = box == bench.lines ? bench.lines->viewport() : box;
    if (box == bench.combo) target = bench.combo->lineEdit();
    QContextMenuEvent press(QContextMenuEvent::Mouse, target->rect().center(),
                            target->mapToGlobal(target->rect().center()));
    QCoreApplication::sendEvent(target, &press);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QAction* paste = nullptr;
    for (QAction* action : menu->actions()) {
      if (action->text().startsWith(u"&Paste"_s)) paste = action;
    }
    QVERIFY(paste != nullptr);
    paste->trigger();
    menu->close();
    ScreenDriver::ProcessEvents();
    QCOMPARE(bench.driver->Text(control), u"12"_s);
  }

  void charactersOfAnInputMethodPassTheFilter_data() {
    QTest::addColumn<QString>("control");
    QTest::newRow("a text box") << u"box"_s;
    QTest::newRow("a box of several lines") << u"lines"_s;
    QTest::newRow("an editable list") << u"combo"_s;
  }
  void charactersOfAnInputMethodPassTheFilter() {
    QFETCH(QString, control);
    Bench bench;
    bench.screen.FilterKeys(bench.driver->Control(control), [](int key) { return key == 0xE9 ? 0 : key; });
    bench.screen.SetTypingLimit(bench.driver->Control(control), 3);
    bench.driver->Click(control);
    Commit(u"é"_s);
    Commit(u"â"_s);
    Commit(u"bcd"_s);
    QCOMPARE(bench.driver->Text(control), u"âbc"_s);
  }

  void aLineBreakPastedIntoABoxOfOneLineIsABlankWithoutAnyRuleToo_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("held");
    QTest::newRow("a text box") << u"box"_s << u"a b c d"_s;
    QTest::newRow("an editable list") << u"combo"_s << u"a b c d"_s;
    QTest::newRow("a box of several lines") << u"lines"_s << u"a\nb\nc d"_s;
  }
  void aLineBreakPastedIntoABoxOfOneLineIsABlankWithoutAnyRuleToo() {
    QFETCH(QString, control);
    QFETCH(QString, held);
    Bench bench;
    bench.driver->Click(control);
    bench.driver->Paste(u"a\r\nb\nc d"_s);
    const auto* lines = qobject_cast<QPlainTextEdit*>(bench.driver->Control(control));
    QCOMPARE(lines != nullptr ? lines->toPlainText() : bench.driver->Text(control), held);
  }

  void theLimitCutsWhatIsTypedAndPastedButNotATextFromCode_data() {
    QTest::addColumn<QString>("control");
    QTest::newRow("a text box") << u"box"_s;
    QTest::newRow("a box of several lines") << u"lines"_s;
    QTest::newRow("an editable list") << u"combo"_s;
  }
  void theLimitCutsWhatIsTypedAndPastedButNotATextFromCode() {
    QFETCH(QString, control);
    Bench bench;
    const auto set = [&](const QString& text) {
      if (control == u"box") bench.box->setText(text);
      if (control == u"lines") bench.lines->setPlainText(text);
      if (control == u"combo") bench.combo->SetText(text);
    };
    bench.screen.SetTypingLimit(bench.driver->Control(control), 4);
    bench.driver->Click(control);
    bench.driver->Type(u"abcdef"_s);
    QCOMPARE(bench.driver->Text(control), u"abcd"_s);
    bench.driver->PressKey(Qt::Key_Backspace);
    bench.driver->Paste(u"xyz"_s);
    QCOMPARE(bench.driver->Text(control), u"abcx"_s);
    set(u"longer than four"_s);
    QCOMPARE(bench.driver->Text(control), u"longer than four"_s);
    bench.driver->Type(u"!"_s);
    QCOMPARE(bench.driver->Text(control), u"longer than four"_s);
    // What is selected makes room.
    bench.driver->PressKey(Qt::Key_A, Qt::ControlModifier);
    bench.driver->Type(u"12345"_s);
    QCOMPARE(bench.driver->Text(control), u"1234"_s);
  }

  void theLimitIsMetByLoweringItLater() {
    Bench bench;
    bench.screen.SetTypingLimit(bench.box, 10);
    bench.driver->Click(u"box"_s);
    bench.driver->Type(u"Florida"_s);
    bench.screen.SetTypingLimit(bench.box, 2);
    QCOMPARE(bench.box->text(), u"Florida"_s);
    bench.driver->Type(u"x"_s);
    QCOMPARE(bench.box->text(), u"Florida"_s);
  }

  void aReadOnlyBoxAsksNoFilter() {
    Bench bench;
    int asked = 0;
    bench.screen.FilterKeys(bench.box, [&](int key) {
      ++asked;
      return key;
    });
    bench.box->setReadOnly(true);
    bench.driver->Click(u"box"_s);
    bench.driver->Type(u"a"_s);
    bench.driver->Paste(u"b"_s);
    QCOMPARE(asked, 0);
    QCOMPARE(bench.box->text(), QString());
  }

  void aBoxShownByAFilterSetsOffNoLeaving() {
    Bench bench;
    QueuedAnswers answers;
    int left = 0;
    bench.screen.OnLeave(bench.box, [&] { ++left; });
    bench.screen.FilterKeys(bench.box, [&](int) {
      bench.dialogs.ShowMessage(u"This character, (,) is invalid for this field"_s, u"Invalid Key entry"_s);
      bench.screen.SetFocusTo(bench.box);
      return 0;
    });
    bench.driver->Click(u"box"_s);
    answers.Ok(u"This character, (,) is invalid for this field"_s, u"Invalid Key entry"_s);
    bench.driver->Type(u","_s);
    QCOMPARE(left, 0);
    QCOMPARE(bench.box->text(), QString());
    QCOMPARE(bench.driver->FocusName(), u"box"_s);
  }

  void aFilterThatSendsTheFocusAwayAndBackSetsOffNoLeaving() {
    Bench bench;
    QStringList log;
    bench.screen.OnLeave(bench.box, [&] { log.append(u"leave"_s); });
    bench.screen.OnEnter(bench.other, [&] { log.append(u"enter other"_s); });
    bool back = true;
    bench.screen.FilterKeys(bench.box, [&](int) {
      bench.screen.SetFocusTo(bench.other);
      if (back) bench.screen.SetFocusTo(bench.box);
      log.append(u"filtered"_s);
      return 0;
    });
    bench.driver->Click(u"box"_s);
    bench.driver->Type(u"1"_s);
    QCOMPARE(log, QStringList{u"filtered"_s});
    // Where it leaves the focus elsewhere, the box is left once the filter is through.
    back = false;
    bench.driver->Type(u"1"_s);
    QCOMPARE(log, (QStringList{u"filtered"_s, u"filtered"_s, u"leave"_s, u"enter other"_s}));
  }

  void aFilterThatFailsTellsTheHostAndLetsNothingThrough() {
    Bench bench;
    bench.screen.FilterKeys(bench.box, [](int) -> int { throw RuntimeError(ErrorNumber::Overflow, u"box"_s); });
    bench.driver->Click(u"box"_s);
    bench.driver->Type(u"1"_s);
    QCOMPARE(bench.host.Errors, QList<int>{ErrorNumber::Overflow});
    QCOMPARE(bench.box->text(), QString());
  }

  void droppedTextIsNotTakenByAFilteredBox() {
    Bench bench;
    bench.screen.FilterKeys(bench.box, DigitsOnly);
    QVERIFY(!bench.box->acceptDrops());
    bench.screen.SetTypingLimit(bench.lines, 5);
    QVERIFY(!bench.lines->viewport()->acceptDrops());
  }

  void aGridsKeysPassTheFilterToo() {
    RecordingHost host;
    BenchScreen screen(host);
    TextMatrix matrix(u"A|B"_s, 3);
    auto* grid = screen.Add<GridView>(u"grid"_s);
    grid->SetMatrix(&matrix);
    QList<int> keys;
    grid->KeyPress = [&](int key) { keys.append(key); };
    screen.FilterKeys(grid, DigitsOnly);
    screen.show();
    ScreenDriver driver(&screen);
    driver.SelectRow(u"grid"_s, 1);
    driver.Type(u"1a2"_s);
    QCOMPARE(keys, (QList<int>{'1', '2'}));
  }
};

QTEST_MAIN(TypedTexts)
#include "tst_typedText.moc"
