#include "desktop/GridView.h"

#include <algorithm>
#include <numeric>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include "desktop/CharacterCode.h"
#include "desktop/Screen.h"
#include "desktop/Style.h"

using namespace Qt::StringLiterals;

namespace {

// One notch of a plain wheel, in eighths of a degree.
constexpr int Notch = 120;

constexpr int MeasuredTexts = 2000;

// What stays in sight of a column that gives way.
constexpr int LeastCharacters = 12;

/// Also where there is no further row, and the key leads to the one that is current already.
bool LeadsToRow(int key) {
  return key >= Qt::Key_Home && key <= Qt::Key_PageDown;
}

int ReleasedCode(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Escape:
      return 27;
    default:
      return event.key() < 0x100 ? event.key() : 0;
  }
}

}  // namespace

GridView::GridView(QWidget* parent) : QTableView(parent) {
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Spacing::Small);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setMinimumSectionSize(2 * Spacing::Large);
}

GridView::~GridView() {
  if (m_matrix != nullptr) {
    m_matrix->ForgetRowChanged(this);
  }
}

void GridView::SetMatrix(TextMatrix* matrix) {
  if (m_matrix != nullptr) {
    m_matrix->ForgetRowChanged(this);
    disconnect(m_matrix, nullptr, this, nullptr);
  }
  m_matrix = matrix;
  setModel(matrix);
  matrix->OnRowChanged(this, [this](int row) {
    m_byUser = m_takingRow;
    ShowRow();
    if (RowChanged) {
      RowChanged(row);
    }
  });
  for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(matrix, signal, this, [this] {
      ShowRow();
      FitSoon();
    });
  }
  connect(matrix, &QAbstractItemModel::dataChanged, this, [this] { FitSoon(); });
  connect(matrix, &QAbstractItemModel::modelReset, this, [this] {
    ShowRow();
    FitSoon();
  });
  connect(matrix, &QAbstractItemModel::layoutChanged, this, [this] {
    ShowRow();
    FitSoon();
  });
  ShowRow();
  FitColumns();
}

int GridView::TopRow() const {
  return verticalScrollBar()->value() + 1;
}

void GridView::SetTopRow(int row) {
  verticalScrollBar()->setValue(row - 1);
}

void GridView::ClickByKeys() {
  KeyPress = [this](int key) {
    constexpr int enter = 13;
    if (Click && (key == enter || key == ' ')) Click();
  };
}

void GridView::ShowRow() {
  if (m_matrix == nullptr) {
    return;
  }
  const QModelIndex index = m_matrix->index(m_matrix->Row() - 1, std::max(0, m_matrix->Col()));
  if (!index.isValid()) {
    setCurrentIndex({});
    clearSelection();
    return;
  }
  const bool shows = ShowsAsCurrent(index.row() + 1);
  const bool moved = index.row() != currentIndex().row();
  if (!moved && selectionModel()->isRowSelected(index.row()) == shows) {
    return;
  }
  const QItemSelectionModel::SelectionFlags shown = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  selectionModel()->setCurrentIndex(index, shows ? shown : QItemSelectionModel::Clear);
  if (moved || shows) {
    scrollTo(index.siblingAtColumn(columnAt(0)));
  }
}

/// A blank row, such as the one behind the last line, is nothing to point at until the user stands on it.
bool GridView::ShowsAsCurrent(int row) const {
  if (m_awaitsChoice && !m_byUser) {
    return false;
  }
  for (int col = 0; col < m_matrix->Cols(); ++col) {
    if (!m_matrix->Text(row, col).isEmpty()) {
      return true;
    }
  }
  return m_byUser && hasFocus();
}

void GridView::AwaitChoice() {
  m_awaitsChoice = true;
  m_byUser = false;
  ShowRow();
}

void GridView::GoneTo() {
  m_byUser = true;
  TakeRow();
  ShowRow();
}

void GridView::TakeRow() {
  const QModelIndex index = currentIndex();
  if (m_matrix == nullptr || !index.isValid()) {
    return;
  }
  const QScopedValueRollback<bool> taking(m_takingRow, true);
  if (m_matrix->Col() != index.column()) {
    m_matrix->SetCol(index.column());
  }
  if (m_matrix->Row() != index.row() + 1) {
    m_matrix->SetRow(index.row() + 1);
  }
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (m_matrix == nullptr || !index.isValid()) {
    // A press beside the lines leaves the current one alone.
    event->accept();
    return;
  }
  QTableView::mousePressEvent(event);
  if (event->button() == Qt::RightButton) {
    setCurrentIndex(index);
  }
  m_pressed = index;
  const QPoint position = event->globalPosition().toPoint();
  const Qt::MouseButton button = event->button();
  RunInScreen(this, [this, position, button] {
    GoneTo();
    if (button == Qt::RightButton && RightPress) {
      RightPress(position);
    }
  });
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const bool clicked = m_pressed.isValid() && m_pressed == indexAt(event->position().toPoint());
  m_pressed = QModelIndex();
  RunInScreen(this, [this] { TakeRow(); });
  if (clicked && event->button() == Qt::LeftButton) {
    RunInScreen(this, Click);
  }
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The first of the two presses was the click; its row is current.
  if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
    RunInScreen(this, DoubleClick);
  }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid() && RightPress) {
    const QPoint position = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
    RunInScreen(this, [this, position] { RightPress(position); });
  }
  event->accept();
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) {
    m_pressedKey = event->key();
  }
  if (const std::optional<int> code = CharacterCode(*event)) {
    // Letters never search the lines: they are for the cell.
    if (KeyPress) {
      if (*code == 13 || *code == ' ') {
        m_byUser = true;
        ShowRow();
      }
      RunInScreen(this, [this, key = *code] { KeyPress(key); });
    } else {
      event->ignore();
    }
    return;
  }
  // To the one that looks as if it weren't current, not past it.
  const bool arrives = event->key() == Qt::Key_Down && m_awaitsChoice && !m_byUser;
  if (!arrives) QTableView::keyPressEvent(event);
  const bool goes = LeadsToRow(event->key());
  RunInScreen(this, [this, goes] { goes ? GoneTo() : TakeRow(); });
}

void GridView::keyReleaseEvent(QKeyEvent* event) {
  QTableView::keyReleaseEvent(event);
  if (event->isAutoRepeat() || event->key() != m_pressedKey) {
    return;
  }
  m_pressedKey = 0;
  if (KeyUp) {
    RunInScreen(this, [this, key = ReleasedCode(*event)] { KeyUp(key); });
  }
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  // The toolkit makes the first cell current on its own; the matrix knows better.
  ShowRow();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  ShowRow();
}

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    if (IsCut(index)) {
      QToolTip::showText(help->globalPos(), u"<p>%1</p>"_s.arg(index.data().toString().toHtmlEscaped()), viewport(),
                         visualRect(index));
      return true;
    }
  }
  return QTableView::viewportEvent(event);
}

bool GridView::event(QEvent* event) {
  // A key that opened a box, or that closed one, isn't a key pressed and released here.
  if (event->type() == QEvent::FocusOut || event->type() == QEvent::WindowBlocked) {
    m_pressedKey = 0;
  }
  return QTableView::event(event);
}

void GridView::wheelEvent(QWheelEvent* event) {
  const QPoint delta = event->angleDelta();
  if (std::abs(delta.x()) > std::abs(delta.y())) {
    QTableView::wheelEvent(event);
    return;
  }
  // Fine wheels and touch pads send parts of a notch.
  m_wheel += delta.y();
  const int rows = m_wheel / Notch;
  m_wheel -= rows * Notch;
  SetTopRow(TopRow() - rows);
  event->accept();
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Spacing::Small);
    FitSoon();
  }
}

void GridView::FitSoon() {
  // A list that is being filled changes a thousand times; its columns are measured once after that.
  if (!m_fitting) {
    m_fitting = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
          m_fitting = false;
          ShowRow();
          FitColumns();
        },
        Qt::QueuedConnection);
  }
}

int GridView::TextsWidth(int col) const {
  qsizetype longest = 0;
  for (int row = 1; row < m_matrix->Rows(); ++row) {
    longest = std::max(longest, m_matrix->Text(row, col).size());
  }
  // Of a long list only the longest texts can be the widest, and enough of them tell.
  int width = 0;
  int measured = 0;
  for (int row = 1; row < m_matrix->Rows() && measured < MeasuredTexts; ++row) {
    const QString& text = m_matrix->Text(row, col);
    if (!text.isEmpty() && text.size() * 2 >= longest) {
      width = std::max(width, fontMetrics().horizontalAdvance(text));
      ++measured;
    }
  }
  return width;
}

int GridView::CellMargins() const {
  return 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
}

bool GridView::IsCut(const QModelIndex& index) const {
  return index.isValid() &&
         fontMetrics().horizontalAdvance(index.data().toString()) + CellMargins() > columnWidth(index.column());
}

int GridView::NeededWidth(int col) const {
  const int margins = CellMargins() + Spacing::Small / 2;
  const int format = fontMetrics().averageCharWidth() * m_matrix->FormatWidth(col);
  const int header = horizontalHeader()->sectionSizeHint(col);
  return std::max(std::max(format, TextsWidth(col)) + margins, header);
}

int GridView::LeastWidth(int col) const {
  const int characters = LeastCharacters * fontMetrics().averageCharWidth() + CellMargins();
  return std::max(characters, horizontalHeader()->sectionSizeHint(col));
}

void GridView::GiveWay(std::vector<int>& widths) const {
  const int room = viewport()->width();
  std::vector<int> least = widths;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const int col = static_cast<int>(i);
    if (!isColumnHidden(col) && m_matrix->Alignment(col).testFlag(Qt::AlignLeft)) {
      least[i] = std::min(widths[i], LeastWidth(col));
      widths[i] = std::max(least[i], std::min(widths[i], room));
    }
  }
  for (int over = std::accumulate(widths.begin(), widths.end(), -room); over > 0; --over) {
    std::size_t widest = widths.size();
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (widths[i] > least[i] && (widest == widths.size() || widths[i] > widths[widest])) widest = i;
    }
    if (widest == widths.size()) {
      return;
    }
    --widths[widest];
  }
}

void GridView::FitColumns() {
  if (m_matrix == nullptr || m_matrix->Cols() == 0) {
    return;
  }
  std::vector<int> widths;
  for (int col = 0; col < m_matrix->Cols(); ++col) {
    widths.push_back(isColumnHidden(col) ? 0 : NeededWidth(col));
  }
  GiveWay(widths);
  const int used = std::accumulate(widths.begin(), widths.end(), 0);
  const auto widest = std::max_element(widths.begin(), widths.end());
  *widest += std::max(0, viewport()->width() - used);
  for (int col = 0; col < m_matrix->Cols(); ++col) {
    if (!isColumnHidden(col)) {
      setColumnWidth(col, widths[static_cast<std::size_t>(col)]);
    }
  }
}
