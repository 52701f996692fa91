#include "desktop/ListCombo.h"

#include <algorithm>
#include <numeric>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "desktop/EntryModel.h"
#include "desktop/Screen.h"
#include "desktop/Style.h"

namespace {

// As wide as a list is worth to be shown, whatever its entries.
constexpr int WidestPopup = 900;

bool Before(const QString& a, const QString& b) {
  return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}

}  // namespace

ListCombo::ListCombo(QWidget* parent) : QComboBox(parent), m_entries(new EntryModel(this)) {
  setModel(m_entries);
  setInsertPolicy(NoInsert);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(8);
  setMaxVisibleItems(16);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QComboBox::activated, this, [this] { RunInScreen(this, Click); });
}

void ListCombo::TakeOverLine() {
  if (lineEdit() == m_line) {
    return;
  }
  m_line = lineEdit();
  if (m_line == nullptr) {
    return;
  }
  // The toolkit's own completer, and its habit of selecting an entry when the box is left, are not wanted.
  setCompleter(nullptr);
  disconnect(m_line, &QLineEdit::editingFinished, this, nullptr);
  m_heard = m_line->text();
  connect(m_line, &QLineEdit::textEdited, this, [this](const QString& text) { Edited(text); });
  // What this box does to its own line, it does with its signals blocked.
  connect(m_line, &QLineEdit::textChanged, this, [this] {
    if (!signalsBlocked()) {
      Replaced();
    }
  });
}

bool ListCombo::event(QEvent* event) {
  // The form makes the box editable after its construction; nothing is typed before one of these.
  if (event->type() == QEvent::Polish || event->type() == QEvent::Show || event->type() == QEvent::FocusIn) {
    TakeOverLine();
  }
  return QComboBox::event(event);
}

void ListCombo::Place(int index, const QString& text) {
  TakeOverLine();
  const QSignalBlocker quiet(this);
  setCurrentIndex(index);
  if (m_line != nullptr && m_line->text() != text) {
    const QSignalBlocker quietLine(m_line);
    m_line->setText(text);
  }
  m_heard = text;
  update();
}

void ListCombo::SetSorted(bool sorted) {
  m_sorted = sorted;
  if (sorted && count() > 0) {
    QList<int> words;
    for (int i = 0; i < count(); ++i) {
      words.append(EntryData(i));
    }
    SetEntries(m_entries->Texts(), words);
  }
}

void ListCombo::ClearList() {
  SetEntries({}, {});
}

void ListCombo::AddEntry(const QString& text, int word) {
  const int selected = currentIndex();
  const QString shown = currentText();
  const QStringList& texts = m_entries->Texts();
  int row = count();
  if (m_sorted) {
    row = static_cast<int>(std::upper_bound(texts.begin(), texts.end(), text, Before) - texts.begin());
  }
  {
    const QSignalBlocker quiet(this);
    m_entries->Insert(row, text, word);
  }
  const int now = selected >= row ? selected + 1 : selected;
  if (currentIndex() != now || currentText() != shown) {
    Place(now, shown);
  }
}

void ListCombo::SetEntries(const QStringList& texts, const QList<int>& words) {
  QStringList orderedTexts = texts;
  QList<int> orderedData = words;
  orderedData.resize(texts.size());
  if (m_sorted && !std::is_sorted(texts.begin(), texts.end(), Before)) {
    std::vector<qsizetype> order(static_cast<std::size_t>(texts.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) { return Before(texts[a], texts[b]); });
    for (qsizetype i = 0; i < texts.size(); ++i) {
      const qsizetype from = order[static_cast<std::size_t>(i)];
      orderedTexts[i] = texts[from];
      orderedData[i] = words.value(from, 0);
    }
  }
  {
    const QSignalBlocker quiet(this);
    m_entries->Assign(std::move(orderedTexts), std::move(orderedData));
  }
  Place(-1, QString());
}

int ListCombo::EntryData(int index) const {
  return m_entries->Data(index);
}

void ListCombo::SelectEntry(int index) {
  const bool entry = index >= 0 && index < count();
  Place(entry ? index : -1, entry ? Entry(index) : QString());
  if (entry && Click) {
    Click();
  }
}

void ListCombo::SetText(const QString& text) {
  Place(-1, text);
  m_skipAutoComplete = false;
  if (Change) {
    Change();
  }
}

void ListCombo::ShowText(const QString& text) {
  Place(static_cast<int>(m_entries->Texts().indexOf(text)), text);
}

int ListCombo::FindPrefix(const QString& text) const {
  if (text.isEmpty()) {
    return -1;
  }
  const QStringList& texts = m_entries->Texts();
  const auto found = std::find_if(texts.begin(), texts.end(),
                                  [&](const QString& entry) { return entry.startsWith(text, Qt::CaseInsensitive); });
  return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

void ListCombo::SetAutoComplete(bool on, WhenWhole whole) {
  m_autoComplete = on;
  m_whole = whole;
}

void ListCombo::Edited(const QString& text) {
  const int cursor = m_line->cursorPosition();
  Place(-1, text);
  m_line->setCursorPosition(cursor);
  if (m_autoComplete && m_skipAutoComplete) {
    m_skipAutoComplete = false;
    RunInScreen(this, ChangeUntold);
    return;
  }
  RunInScreen(this, [this] {
    if (Change) {
      Change();
    }
    if (m_autoComplete) {
      Complete(Text());
    }
  });
}

/// An assistive program puts a whole text into the line without a key; a pick shows its entry there.
void ListCombo::Replaced() {
  const QString text = m_line->text();
  if (text == m_heard) {
    return;
  }
  m_heard = text;
  if (ListIndex() < 0 || text != Entry(ListIndex())) {
    RunInScreen(this, [this, text] { SetText(text); });
  }
}

void ListCombo::Complete(const QString& typed) {
  const int found = FindPrefix(typed);
  if (found < 0) {
    return;
  }
  const QString entry = Entry(found);
  if (entry.size() > typed.size()) {
    // The letters typed stay as they are; the rest of the entry follows, selected, so that typing goes on over it.
    Place(-1, typed + entry.mid(typed.size()));
    m_line->setSelection(static_cast<int>(typed.size()), static_cast<int>(entry.size() - typed.size()));
    if (ChangeUntold) {
      ChangeUntold();
    }
  } else if (m_whole == WhenWhole::Select) {
    SelectEntry(found);
  }
}

int ListCombo::EntryInSight() const {
  return m_autoComplete && ListIndex() < 0 ? FindPrefix(Text()) : -1;
}

void ListCombo::showPopup() {
  auto* list = qobject_cast<QListView*>(view());
  if (list != nullptr) {
    list->setUniformItemSizes(true);
    const QStringList& texts = m_entries->Texts();
    const auto longest = std::max_element(texts.begin(), texts.end(),
                                          [](const QString& a, const QString& b) { return a.size() < b.size(); });
    const int wanted = longest == texts.end() ? 0 : fontMetrics().horizontalAdvance(*longest) + 4 * Spacing::Large;
    list->setMinimumWidth(std::clamp(wanted, width(), std::max(width(), WidestPopup)));
  }
  QComboBox::showPopup();
  if (const int found = EntryInSight(); found >= 0) {
    view()->setCurrentIndex(m_entries->index(found, 0));
  }
}

void ListCombo::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete) {
    m_skipAutoComplete = true;
  }
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
    if (const int found = EntryInSight(); found >= 0) {
      RunInScreen(this, [this, found] { SelectEntry(found); });
      return;
    }
  }
  QComboBox::keyPressEvent(event);
}

void ListCombo::wheelEvent(QWheelEvent* event) {
  // A wheel that merely passes over the box must not change what it holds.
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}
