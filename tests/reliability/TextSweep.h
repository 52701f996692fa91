/// Hostile texts and numbers at the edges of 16, 32 and 64 bits for every box that can be typed into: each is pasted,
/// the box is left, and the screen's own save is pressed. The program goes on; what was saved can be read at the next
/// start; and what stood before beside it still stands. No box of a screen is left out, and no text of a box.
#pragma once

#include <QtWidgets>

#include "reliability/AnyAnswer.h"
#include "reliability/OneDay.h"

namespace TextSweep {

using namespace Qt::StringLiterals;

inline const QStringList& Texts() {
  static const QStringList texts{u""_s,
                                 u"-1"_s,
                                 u"255"_s,
                                 u"256"_s,
                                 u"32767"_s,
                                 u"32768"_s,
                                 u"-32769"_s,
                                 u"65536"_s,
                                 u"2147483647"_s,
                                 u"2147483648"_s,
                                 u"-2147483649"_s,
                                 u"4294967296"_s,
                                 u"922337203685477.5807"_s,
                                 u"922337203685477.5808"_s,
                                 u"-922337203685477.5809"_s,
                                 u"9223372036854775807"_s,
                                 u"9223372036854775808"_s,
                                 u"18446744073709551616"_s,
                                 u"1e400"_s,
                                 u"1e5"_s,
                                 u"."_s,
                                 u"12/31/9999"_s,
                                 u"2/30/2026"_s,
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
  QString Window;
  std::function<void()> Open;
  QStringList Boxes;                 ///< All that are open here and not in a stage before.
  QStringList Saves;                 ///< The buttons pressed after each text, in this order, those of them that can be.
  std::function<void()> Again = {};  ///< How he comes there once all is saved, where that differs.
  std::function<void(const TemporaryTree&)> Stock = {};  ///< What the tree holds beside the common files.
};

/// Whether it is a box that its user types into, where it is shown and enabled.
inline bool IsTypedInto(const QWidget* box) {
  const auto* line = qobject_cast<const QLineEdit*>(box);
  const auto* lines = qobject_cast<const QPlainTextEdit*>(box);
  const auto* combo = qobject_cast<const QComboBox*>(box);
  const auto* date = qobject_cast<const QAbstractSpinBox*>(box);
  const bool open = (line != nullptr && !line->isReadOnly()) || (lines != nullptr && !lines->isReadOnly()) ||
                    (combo != nullptr && combo->isEditable()) || (date != nullptr && !date->isReadOnly());
  const bool inside = qobject_cast<const QComboBox*>(box->parentWidget()) != nullptr ||
                      qobject_cast<const QAbstractSpinBox*>(box->parentWidget()) != nullptr;
  return open && !inside && !box->objectName().isEmpty();
}

/// All of a window's, by name, whichever page or view they stand on.
inline QStringList BoxesOf(const QWidget* window) {
  QStringList names;
  for (const QWidget* box : window->findChildren<QWidget*>()) {
    if (IsTypedInto(box)) names.append(box->objectName());
  }
  names.sort();
  return names;
}

inline QString TextIn(const QWidget* box) {
  if (const auto* lines = qobject_cast<const QPlainTextEdit*>(box)) return lines->toPlainText();
  if (const auto* combo = qobject_cast<const QComboBox*>(box)) return combo->currentText();
  if (const auto* line = qobject_cast<const QLineEdit*>(box)) return line->text();
  return qobject_cast<const QAbstractSpinBox*>(box)->text();
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

/// Whether the user could type into it now.
inline bool IsOpen(const Stage& stage, const QString& name) {
  if (!ScreenDriver::IsShown(stage.Window)) return false;
  auto* box = ScreenDriver(stage.Window).Control<QWidget>(name);
  ShowPageOf(box);
  return IsTypedInto(box) && box->isVisible() && box->isEnabled();
}

/// A comma in these moves what follows it into the next row of a partial invoice, which is meant and tested there.
inline bool IsSplitByCommas(const QString& box) {
  return box == u"txtReference"_s || box == u"txtShipto_6"_s;
}

inline QString Readable(const QString& text) {
  return text.size() > 40 ? text.left(5) + u"... (%1)"_s.arg(text.size()) : text;
}

/// A second customer, whom no stage touches.
inline QByteArray Bystander() {
  RecordText customer;
  customer.AcctNo = "1900";
  customer.AcctName = "Zoo Supplies";
  customer.AcctType = "Business";
  return customer.Bytes();
}

inline void Begin(ProgramFixture& program, const Stage& stage) {
  const auto files = OneDay::Files();
  for (auto it = files.cbegin(); it != files.cend(); ++it) program.Tree.Write(it.key(), it.value());
  program.Tree.Write(u"/CustomerData.txt"_s, files.value(u"/CustomerData.txt"_s) + Bystander());
  program.Tree.Remove(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s);
  if (stage.Stock) stage.Stock(program.Tree);
}

/// What was tried of one stage.
struct Tried {
  QMap<QString, int> Texts;     ///< By box.
  QMap<QString, int> Received;  ///< By box: those that changed what it shows.
  QMap<QString, int> Pressed;   ///< By button.
};

/// At the box, by the way from the menu where it isn't open any more, and where what was saved has closed it (a date
/// that purges what there is to show, an address style), from the tree that the stage begins with.
inline bool ComeTo(ProgramFixture& program, const Stage& stage, const QString& name) {
  if (IsOpen(stage, name)) return true;
  if (!ScreenDriver::IsShown(u"frmStartup"_s) && !program.StartAtMenu()) return false;
  stage.Open();
  if (IsOpen(stage, name)) return true;
  Begin(program, stage);
  if (!program.StartAtMenu()) return false;
  stage.Open();
  return IsOpen(stage, name);
}

/// Into the box in place of what it holds: a date is typed part by part, anything else pasted.
inline void Put(const ScreenDriver& screen, QWidget* box, const QString& text) {
  box->setFocus(Qt::TabFocusReason);
  ScreenDriver::ProcessEvents();
  screen.PressKey(Qt::Key_A, Qt::ControlModifier);
  if (qobject_cast<QAbstractSpinBox*>(box) != nullptr && text.contains(u'/')) {
    screen.Type(text);
    return;
  }
  screen.PressKey(Qt::Key_Delete);
  screen.Paste(text);
}

inline void PressSaves(const Stage& stage, Tried& tried) {
  for (const QString& save : stage.Saves) {
    if (!ScreenDriver::IsShown(stage.Window)) break;
    auto* button = ScreenDriver(stage.Window).Control<QAbstractButton>(save);
    ShowPageOf(button);
    if (!button->isVisible() || !button->isEnabled()) continue;
    ScreenDriver(stage.Window).Click(save);
    ++tried.Pressed[save];
  }
}

/// The text into the box, the box left, and what saves pressed.
inline void TryText(ProgramFixture& program, const Stage& stage, const QString& name, const QString& text,
                    Tried& tried) {
  AnyAnswer answers(program.Answers);
  QVERIFY2(ComeTo(program, stage, name), qPrintable(u"%1 isn't open for %2"_s.arg(name, Readable(text))));
  const ScreenDriver screen(stage.Window);
  auto* box = screen.Control<QWidget>(name);
  const QString before = TextIn(box);
  Put(screen, box, text);
  if (TextIn(box) != before) ++tried.Received[name];
  screen.PressKey(Qt::Key_Tab);
  PressSaves(stage, tried);
  const QString where = u"%1 with %2: %3"_s.arg(name, Readable(text), answers.Said.join(u" | "_s));
  QVERIFY2(!program.Running().HasEnded(), qPrintable(where));
  ++tried.Texts[name];
  if (qEnvironmentVariableIsSet("KARVEX_TELL")) qInfo() << where;
}

/// Whether one of the records begins with these bytes.
inline bool HasRecord(const QByteArray& content, int length, const QByteArray& begin) {
  for (qsizetype at = 0; at < content.size(); at += length) {
    if (content.sliced(at).startsWith(begin)) return true;
  }
  return false;
}

/// Every record is whole. What is only appended to begins as it began; in the lists, what no stage touches still
/// stands, the inventory's units aside.
inline void CheckRecords(const ProgramFixture& program, const Stage& stage) {
  ProgramFixture first;
  Begin(first, stage);
  for (const auto& [name, length, kept] : {std::tuple{u"/CustomerData.txt"_s, 328, 328},
                                           {u"/Services.txt"_s, 72, 72},
                                           {u"/KVInventoriedItems.txt"_s, 104, 86},
                                           {u"/CustomItems.txt"_s, 70, 70},
                                           {u"/SoldItems.txt"_s, 90, 0},
                                           {u"/InvoiceSalesJournal.txt"_s, 125, 0},
                                           {u"/TaxRecords.txt"_s, 75, 0},
                                           {u"/KVActiveAccounts/1001.txt"_s, 155, 0}}) {
    const QByteArray content = program.Tree.Bytes(name), old = first.Tree.Bytes(name);
    QVERIFY2(content.size() >= old.size() && content.size() % length == 0, qPrintable(name));
    const bool stands = kept > 0 ? HasRecord(content, length, old.last(length).first(kept)) : content.startsWith(old);
    QVERIFY2(stands, qPrintable(name));
  }
}

/// The next start reads everything, the screen opens again, and each partial invoice is recalled, all without a word.
inline void CheckWhatWasSaved(ProgramFixture& program, const Stage& stage) {
  CheckRecords(program, stage);
  if (QTest::currentTestFailed()) return;
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

/// That nothing was passed over: each box had each text and took some of them, each button was pressed.
inline void CheckTried(const Stage& stage, const Tried& tried) {
  for (const QString& box : stage.Boxes) {
    const auto split = [](const QString& text) { return text.contains(u','); };
    const qsizetype left = IsSplitByCommas(box) ? std::count_if(Texts().begin(), Texts().end(), split) : 0;
    QVERIFY2(tried.Texts.value(box) == Texts().size() - left, qPrintable(box));
    QVERIFY2(tried.Received.value(box) > 0, qPrintable(box + u" took nothing"_s));
  }
  for (const QString& save : stage.Saves) {
    QVERIFY2(tried.Pressed.value(save) > 0, qPrintable(save + u" was never pressed"_s));
  }
}

/// Every box of the stage with every text, a fresh program for each box.
inline void SweepBoxes(const Stage& here) {
  Tried tried;
  for (const QString& box : here.Boxes) {
    ProgramFixture program;
    Begin(program, here);
    QVERIFY(program.StartAtMenu());
    for (const QString& text : Texts()) {
      if (IsSplitByCommas(box) && text.contains(u',')) continue;
      TryText(program, here, box, text, tried);
      if (QTest::currentTestFailed()) return;
    }
    CheckWhatWasSaved(program, here);
    if (QTest::currentTestFailed()) {
      qWarning() << "after" << box;
      return;
    }
  }
  CheckTried(here, tried);
}

}  // namespace TextSweep
