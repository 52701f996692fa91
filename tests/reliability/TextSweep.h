/// Hostile texts and numbers at the edges of 16, 32 and 64 bits for every box that can be typed into: each is pasted,
/// the box is left, and the screen's own save is pressed. The program goes on; what was saved can be read at the next
/// start; and what stood before beside it still stands.
#pragma once

#include <QtWidgets>

#include "reliability/OneDay.h"

namespace TextSweep {

using namespace Qt::StringLiterals;

inline const QStringList& Texts() {
  static const QStringList texts{u""_s,
                                 u"-1"_s,
                                 u"32767"_s,
                                 u"32768"_s,
                                 u"2147483647"_s,
                                 u"2147483648"_s,
                                 u"922337203685477.5807"_s,
                                 u"922337203685477.5808"_s,
                                 u"9223372036854775808"_s,
                                 u"1e400"_s,
                                 u"1e5"_s,
                                 u"."_s,
                                 u"../../secret"_s,
                                 u"\"quoted\", \"twice\""_s,
                                 u"one\r\ntwo\rthree\nfour"_s,
                                 u"\U0001F34A \u20ac \u0416 \u2028"_s,
                                 u"a"_s + QChar::Null + QChar(0xd800) + u'b',
                                 QString(300, u'9')};
  return texts;
}

/// A place of the program where boxes stand open: how the user comes there from the menu, and what he saves by.
struct Stage {
  const char* Name;
  std::function<void()> Open;
  QString Window;
  QStringList Saves;                 ///< The buttons pressed after each text, in this order, those of them that can be.
  std::function<void()> Again = {};  ///< How he comes there once everything is saved, where that differs.
  QStringList Boxes = {};            ///< Where only these are open here that aren't open elsewhere too.
};

inline bool CanBeTypedInto(const QWidget* box) {
  const auto* line = qobject_cast<const QLineEdit*>(box);
  const auto* lines = qobject_cast<const QPlainTextEdit*>(box);
  const auto* combo = qobject_cast<const QComboBox*>(box);
  const bool open = line != nullptr    ? !line->isReadOnly()
                    : lines != nullptr ? !lines->isReadOnly()
                                       : combo != nullptr && combo->isEditable();
  const bool inside = qobject_cast<const QComboBox*>(box->parentWidget()) != nullptr ||
                      qobject_cast<const QAbstractSpinBox*>(box->parentWidget()) != nullptr;
  return open && !inside && box->isVisible() && box->isEnabled() && !box->objectName().isEmpty();
}

/// The boxes that can be typed into where the window stands now, by name; in Setup those of every page.
inline QStringList BoxesOf(const QWidget* window) {
  QSet<QString> names;
  const auto look = [&] {
    for (const QWidget* box : window->findChildren<QWidget*>()) {
      if (CanBeTypedInto(box)) names.insert(box->objectName());
    }
  };
  look();
  for (QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
    for (int i = 0; window->objectName() == u"frmSetup"_s && i < tabs->count(); ++i) {
      tabs->setCurrentIndex(i);
      ScreenDriver::ProcessEvents();
      look();
    }
  }
  QStringList sorted(names.cbegin(), names.cend());
  sorted.sort();
  return sorted;
}

/// Brings the pages to the front that the box stands on.
inline void ShowPageOf(QWidget* box) {
  for (QWidget* part = box; part != nullptr; part = part->parentWidget()) {
    for (QWidget* above = part->parentWidget(); above != nullptr; above = above->parentWidget()) {
      if (auto* tabs = qobject_cast<QTabWidget*>(above); tabs != nullptr && tabs->indexOf(part) >= 0) {
        tabs->setCurrentWidget(part);
      }
    }
  }
  ScreenDriver::ProcessEvents();
}

/// Whatever box comes up gets a Yes or an OK, any other dialog its way out; the texts are kept.
class AnyAnswer {
 public:
  explicit AnyAnswer(QueuedAnswers& answers) : m_answers(answers) {
    for (int i = 0; i < 30; ++i) {
      m_answers.Dialog([this](QDialog& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr) {
          dialog.reject();
          return;
        }
        Said.append(box->text());
        QAbstractButton* yes = box->button(QMessageBox::Yes);
        (yes != nullptr ? yes : box->buttons().constFirst())->click();
      });
    }
  }
  ~AnyAnswer() { m_answers.Forget(); }
  Q_DISABLE_COPY_MOVE(AnyAnswer)

  QStringList Said;

 private:
  QueuedAnswers& m_answers;
};

/// A comma in these moves what follows it into the next row of a partial invoice, which is meant and tested there.
inline bool IsSplitByCommas(const QString& box) {
  return box == u"txtReference"_s || box == u"txtShipto_6"_s;
}

inline QString Readable(const QString& text) {
  return text.size() > 40 ? text.left(5) + u"... (%1)"_s.arg(text.size()) : text;
}

inline void Begin(ProgramFixture& program) {
  const auto files = OneDay::Files();
  for (auto it = files.cbegin(); it != files.cend(); ++it) program.Tree.Write(it.key(), it.value());
  program.Tree.Remove(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s);
}

/// Pastes, leaves the box, and presses what saves. Comes back to the stage first where the last text left it.
inline void TryText(ProgramFixture& program, const Stage& stage, const QString& name, const QString& text) {
  AnyAnswer answers(program.Answers);
  if (!ScreenDriver::IsShown(stage.Window)) {
    if (!ScreenDriver::IsShown(u"frmStartup"_s)) QVERIFY(program.StartAtMenu());
    stage.Open();
  }
  const ScreenDriver screen(stage.Window);
  auto* box = screen.Control<QWidget>(name);
  ShowPageOf(box);
  if (!box->isVisible() || !box->isEnabled()) return;
  box->setFocus(Qt::TabFocusReason);
  ScreenDriver::ProcessEvents();
  screen.PressKey(Qt::Key_A, Qt::ControlModifier);
  screen.PressKey(Qt::Key_Delete);
  screen.Paste(text);
  screen.PressKey(Qt::Key_Tab);
  for (const QString& save : stage.Saves) {
    if (!ScreenDriver::IsShown(stage.Window)) break;
    auto* button = ScreenDriver(stage.Window).Control<QAbstractButton>(save);
    ShowPageOf(button);
    if (button->isVisible() && button->isEnabled()) ScreenDriver(stage.Window).Click(save);
  }
  const QString where = u"%1 with %2: %3"_s.arg(name, Readable(text), answers.Said.join(u" | "_s));
  QVERIFY2(!program.Running().HasEnded(), qPrintable(where));
  if (qEnvironmentVariableIsSet("KARVEX_TELL")) qInfo() << where;
}

/// The next start reads everything, the screen opens again, and each partial invoice is recalled, all without a word.
/// What stood before still stands.
inline void CheckWhatWasSaved(ProgramFixture& program, const Stage& stage) {
  for (const auto& [name, length, kept] : {std::tuple{u"/CustomerData.txt"_s, 328, "Business"},
                                           {u"/Services.txt"_s, 72, "Repair"},
                                           {u"/KVInventoriedItems.txt"_s, 104, "Hammer"},
                                           {u"/CustomItems.txt"_s, 70, "Shelf"},
                                           {u"/SoldItems.txt"_s, 90, " "},
                                           {u"/InvoiceSalesJournal.txt"_s, 125, " "},
                                           {u"/TaxRecords.txt"_s, 75, " "},
                                           {u"/KVActiveAccounts/1001.txt"_s, 155, " "}}) {
    const QByteArray content = program.Tree.Bytes(name);
    QVERIFY2(content.size() >= length && content.size() % length == 0 && content.contains(kept), qPrintable(name));
  }
  QVERIFY(program.StartAtMenu());
  stage.Again ? stage.Again() : stage.Open();
  QVERIFY(ScreenDriver::IsShown(stage.Window));
  const qsizetype partials = program.Tree.List(u"/KarvexInvoicer/IncompleteInvoices"_s).size();
  if (partials == 0) return;
  QVERIFY(program.StartAtMenu());
  for (int row = 1; row <= partials; ++row) {
    ScreenDriver(u"frmStartup"_s).Click(u"optMainMenuSub_1"_s);
    ScreenDriver(u"frmStartup"_s).Click(u"cmdGoto"_s);
    program.Answers.Ok();
    ScreenDriver(u"frmIncomplete"_s).DoubleClickRow(u"fgIncomplete"_s, row);
    const QueuedAnswers::Box said = program.Answers.Last();
    QVERIFY2(said.Title == u"Partial Invoice Loaded"_s, qPrintable(u"row %1: %2"_s.arg(row).arg(said.Text)));
    ScreenDriver(u"frmInvoice"_s).Click(u"cmdExit"_s);
  }
}

/// Every box of the stage with every text, a fresh program for each box.
inline void SweepBoxes(const Stage& here) {
  QStringList boxes;
  {
    ProgramFixture program;
    Begin(program);
    QVERIFY(program.StartAtMenu());
    const AnyAnswer answers(program.Answers);
    here.Open();
    boxes = BoxesOf(ScreenDriver(here.Window).Window());
    for (const QString& box : here.Boxes) QVERIFY2(boxes.contains(box), qPrintable(box));
    if (!here.Boxes.isEmpty()) boxes = here.Boxes;
    // On every view of the invoice; its own is the first.
    if (here.Name != QByteArray("invoice's head")) boxes.removeAll(u"txtInvoiceNo"_s);
  }
  QVERIFY(!boxes.isEmpty());
  for (const QString& box : boxes) {
    ProgramFixture program;
    Begin(program);
    QVERIFY(program.StartAtMenu());
    for (const QString& text : Texts()) {
      if (IsSplitByCommas(box) && text.contains(u',')) continue;
      TryText(program, here, box, text);
      if (QTest::currentTestFailed()) return;
    }
    CheckWhatWasSaved(program, here);
    if (QTest::currentTestFailed()) {
      qWarning() << "after" << box;
      return;
    }
  }
}

}  // namespace TextSweep
