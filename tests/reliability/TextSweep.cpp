#include "reliability/TextSweep.h"

#include <QtWidgets>

#include "reliability/AnyAnswer.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;
using TextSweep::Stage;

namespace {

/// Whether it is a box that its user types into, where it is shown and enabled.
bool IsTypedInto(const QWidget* box) {
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

QString TextIn(const QWidget* box) {
  if (const auto* lines = qobject_cast<const QPlainTextEdit*>(box)) return lines->toPlainText();
  if (const auto* combo = qobject_cast<const QComboBox*>(box)) return combo->currentText();
  if (const auto* line = qobject_cast<const QLineEdit*>(box)) return line->text();
  return qobject_cast<const QAbstractSpinBox*>(box)->text();
}

/// Whether the user could type into it now.
bool IsOpen(const Stage& stage, const QString& name) {
  if (!ScreenDriver::IsShown(stage.Window)) return false;
  auto* box = ScreenDriver(stage.Window).Control<QWidget>(name);
  TextSweep::ShowPageOf(box);
  return IsTypedInto(box) && box->isVisible() && box->isEnabled();
}

/// A comma in these moves what follows it into the next row of a partial invoice, which is meant and tested there.
bool IsSplitByCommas(const QString& box) {
  return box == u"txtReference"_s || box == u"txtShipto_6"_s;
}

QString Readable(const QString& text) {
  return text.size() > 40 ? text.left(5) + u"... (%1)"_s.arg(text.size()) : text;
}

/// A second customer, whom no stage touches.
QByteArray Bystander() {
  RecordText customer;
  customer.AcctNo = "1900";
  customer.AcctName = "Zoo Supplies";
  customer.AcctType = "Business";
  return customer.Bytes();
}

/// What was tried of one stage.
struct Tried {
  QMap<QString, int> Texts;     ///< By box.
  QMap<QString, int> Received;  ///< By box: those that changed what it shows.
  QMap<QString, int> Pressed;   ///< By button.
};

/// At the box, by the way from the menu where it isn't open any more, and where what was saved has closed it (a date
/// that purges what there is to show, an address style), from the tree that the stage begins with.
bool ComeTo(ProgramFixture& program, const Stage& stage, const QString& name) {
  if (IsOpen(stage, name)) return true;
  if (!ScreenDriver::IsShown(u"frmStartup"_s) && !program.StartAtMenu()) return false;
  stage.Open();
  if (IsOpen(stage, name)) return true;
  TextSweep::Begin(program, stage);
  if (!program.StartAtMenu()) return false;
  stage.Open();
  return IsOpen(stage, name);
}

/// Into the box in place of what it holds: a date is typed part by part, anything else pasted.
void Put(const ScreenDriver& screen, QWidget* box, const QString& text) {
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

void PressSaves(const Stage& stage, Tried& tried) {
  for (const QString& save : stage.Saves) {
    if (!ScreenDriver::IsShown(stage.Window)) break;
    auto* button = ScreenDriver(stage.Window).Control<QAbstractButton>(save);
    TextSweep::ShowPageOf(button);
    if (!button->isVisible() || !button->isEnabled()) continue;
    ScreenDriver(stage.Window).Click(save);
    ++tried.Pressed[save];
  }
}

/// The text into the box, the box left, and what saves pressed.
void TryText(ProgramFixture& program, const Stage& stage, const QString& name, const QString& text, Tried& tried) {
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

/// That nothing was passed over: each box had each text and took some of them, each button was pressed.
void CheckTried(const Stage& stage, const Tried& tried) {
  for (const QString& box : stage.Boxes) {
    const auto split = [](const QString& text) { return text.contains(u','); };
    const qsizetype left =
        IsSplitByCommas(box) ? std::count_if(TextSweep::Texts().begin(), TextSweep::Texts().end(), split) : 0;
    QVERIFY2(tried.Texts.value(box) == TextSweep::Texts().size() - left, qPrintable(box));
    QVERIFY2(tried.Received.value(box) > 0, qPrintable(box + u" took nothing"_s));
  }
  for (const QString& save : stage.Saves) {
    QVERIFY2(tried.Pressed.value(save) > 0, qPrintable(save + u" was never pressed"_s));
  }
}

}  // namespace

const QStringList& TextSweep::Texts() {
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

QStringList TextSweep::BoxesOf(const QWidget* window) {
  QStringList names;
  for (const QWidget* box : window->findChildren<QWidget*>()) {
    if (IsTypedInto(box)) names.append(box->objectName());
  }
  names.sort();
  return names;
}

void TextSweep::ShowPageOf(QWidget* box) {
  for (QWidget* part = box; part != nullptr; part = part->parentWidget()) {
    for (QWidget* above = part->parentWidget(); above != nullptr; above = above->parentWidget()) {
      if (auto* tabs = qobject_cast<QTabWidget*>(above); tabs != nullptr && tabs->indexOf(part) >= 0) {
        tabs->setCurrentWidget(part);
      }
    }
  }
  ScreenDriver::ProcessEvents();
}

void TextSweep::Begin(ProgramFixture& program, const Stage& stage) {
  const auto files = OneDay::Files();
  for (auto it = files.cbegin(); it != files.cend(); ++it) program.Tree.Write(it.key(), it.value());
  program.Tree.Write(u"/CustomerData.txt"_s, files.value(u"/CustomerData.txt"_s) + Bystander());
  program.Tree.Remove(u"/KarvexInvoicer/IncompleteInvoices/20260002.txt"_s);
  if (stage.Stock) stage.Stock(program.Tree);
}

void TextSweep::SweepBoxes(const Stage& here) {
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
