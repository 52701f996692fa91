// The user's boxes and dialogs, the real ones.
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>

#include "desktop/QtDialogs.h"
#include "support/BenchScreen.h"
#include "support/QueuedAnswers.h"
#include "support/ScreenDriver.h"
#include "support/TemporaryTree.h"

using namespace Qt::StringLiterals;

namespace {

int NumberThrownBy(const std::function<void()>& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace

class UserDialogs : public QObject {
  Q_OBJECT

 private:
  RecordingHost m_host;
  std::unique_ptr<BenchScreen> m_screen;
  QtDialogs m_dialogs;

 private Q_SLOTS:
  void init() {
    m_screen = std::make_unique<BenchScreen>(m_host);
    m_screen->Add<QLineEdit>(u"box"_s);
    m_screen->show();
    m_screen->activateWindow();
    ScreenDriver::ProcessEvents();
  }
  void cleanup() { m_screen.reset(); }

  void aMessageHasItsTextItsTitleAndAnOkButton() {
    QueuedAnswers answers;
    answers.Ok();
    m_dialogs.ShowMessage(u"The Invoice is <b>full</b>"_s, u"Invoice"_s);
    QCOMPARE(answers.Last().Text, u"The Invoice is <b>full</b>"_s);
    QCOMPARE(answers.Last().Title, u"Invoice"_s);
    QCOMPARE(answers.Last().Buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
  }

  void theTitleIsTheProgramsWhereNoneIsNamed() {
    QueuedAnswers answers;
    answers.Ok();
    m_dialogs.ShowMessage(u"x"_s);
    QCOMPARE(answers.Last().Title, u"Karvex Invoicer"_s);
  }

  void aQuestionIsAnsweredByYesOrNo() {
    QueuedAnswers answers;
    answers.Yes(u"Delete?"_s, u"Item Deletion"_s);
    QVERIFY(m_dialogs.AskYesNo(u"Delete?"_s, u"Item Deletion"_s));
    QCOMPARE(answers.Last().Buttons, QMessageBox::Yes | QMessageBox::No);
    answers.No();
    QVERIFY(!m_dialogs.AskYesNo(u"Delete?"_s));
  }

  void escapeIsNoAndClosesAMessage() {
    QueuedAnswers answers;
    answers.Escape();
    QVERIFY(!m_dialogs.AskYesNo(u"Delete?"_s));
    answers.Escape();
    m_dialogs.ShowMessage(u"x"_s);
    QCOMPARE(answers.Boxes().size(), 2);
  }

  void boxesKeepTheTextUnformattedAndTakeNoPartInMarkup() {
    QueuedAnswers answers;
    answers.Dialog([](QDialog& dialog) {
      QCOMPARE(dynamic_cast<QMessageBox&>(dialog).textFormat(), Qt::PlainText);
      QCOMPARE(dynamic_cast<QMessageBox&>(dialog).icon(), QMessageBox::NoIcon);
      dialog.accept();
    });
    m_dialogs.ShowMessage(u"1 < 2"_s);
  }

  void theOwnerIsTheActiveWindowAndIsActiveAgainAfterwards() {
    QueuedAnswers answers;
    QWidget* parent = nullptr;
    answers.Dialog([&](QDialog& dialog) {
      parent = dialog.parentWidget();
      dialog.accept();
    });
    m_dialogs.ShowMessage(u"x"_s);
    ScreenDriver::ProcessEvents();
    QCOMPARE(parent, m_screen.get());
    QTRY_VERIFY(m_screen->isActiveWindow());
  }

  void twoBoxesInARowHaveTheSameOwner() {
    QueuedAnswers answers;
    QList<QWidget*> parents;
    for (int i = 0; i < 2; ++i) {
      answers.Dialog([&](QDialog& dialog) {
        parents.append(dialog.parentWidget());
        dialog.accept();
      });
    }
    m_dialogs.ShowMessage(u"one"_s);
    m_dialogs.ShowMessage(u"two"_s);
    QCOMPARE(parents, (QList<QWidget*>{m_screen.get(), m_screen.get()}));
  }

  void aChosenFileIsItsPathAndCancelIsAnError() {
    QueuedAnswers answers;
    TemporaryTree tree;
    tree.Write(u"/logo.bmp"_s, "BM");
    answers.Dialog([&](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      QCOMPARE(files.windowTitle(), u"Find the Logo"_s);
      QCOMPARE(files.nameFilters(), (QStringList{u"Pictures (*.bmp *.jpg)"_s, u"All (*)"_s}));
      files.selectFile(tree.Path(u"/logo.bmp"_s));
      dialog.accept();
    });
    const QString filter = u"Pictures |(*.bmp;*.jpg)|All|*.*"_s;
    QCOMPARE(m_dialogs.ChooseFile(u"Find the Logo"_s, filter), tree.Path(u"/logo.bmp"_s));
    answers.File(tree.Path(u"/logo.bmp"_s));
    QCOMPARE(m_dialogs.ChooseFile(u"Find"_s, filter), tree.Path(u"/logo.bmp"_s));
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseFile(u"Find"_s, filter); }), 32755);
  }

  void coloursArePackedBlueGreenRed() {
    QueuedAnswers answers;
    answers.Dialog([&](QDialog& dialog) {
      auto& colors = dynamic_cast<QColorDialog&>(dialog);
      QCOMPARE(colors.currentColor().rgb(), qRgb(0x03, 0x02, 0x01));
      colors.setCurrentColor(QColor(0x11, 0x22, 0x33));
      dialog.accept();
    });
    QCOMPARE(m_dialogs.ChooseColor(0x010203), 0x332211u);
    answers.Color(0x0000FF);
    QCOMPARE(m_dialogs.ChooseColor(0), 0x0000FFu);
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseColor(0); }), 32755);
  }

  void aChosenFontIsItsNameAndOnlyFontsThatPrintAreOffered() {
    QueuedAnswers answers;
    answers.Dialog([&](QDialog& dialog) {
      auto& fonts = dynamic_cast<QFontDialog&>(dialog);
      QVERIFY(fonts.testOption(QFontDialog::ScalableFonts));
      QVERIFY(!fonts.testOption(QFontDialog::NonScalableFonts));
      fonts.setCurrentFont(QFont(u"Liberation Serif"_s));
      dialog.accept();
    });
    QCOMPARE(m_dialogs.ChooseFont(u"Liberation Sans"_s), u"Liberation Serif"_s);
    answers.CancelDialog();
    QCOMPARE(NumberThrownBy([&] { m_dialogs.ChooseFont(u"Arial"_s); }), 32755);
  }
};

QTEST_MAIN(UserDialogs)
#include "tst_dialogs.moc"
