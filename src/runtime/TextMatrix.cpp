#include "runtime/TextMatrix.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

RuntimeError NoSuch(const QString& what, int number) {
  return RuntimeError(ErrorNumber::OutOfRange, u"the grid, %1 %2"_s.arg(what).arg(number));
}

/// A stable order of 0 to `count` - 1 by merging. Unlike the library's sorts it ends well with a comparison that
/// isn't consistent, such as the generic one: "2" before "10", "10" before "1a", "1a" before "2".
std::vector<int> StableOrder(int count, const std::function<bool(int, int)>& less) {
  const auto size = static_cast<size_t>(count);
  std::vector<int> order(size), merged(size);
  std::iota(order.begin(), order.end(), 0);
  for (size_t width = 1; width < size; width *= 2) {
    for (size_t begin = 0; begin < size; begin += 2 * width) {
      size_t left = begin, right = std::min(begin + width, size);
      const size_t leftEnd = right, rightEnd = std::min(begin + 2 * width, size);
      for (size_t i = begin; i < rightEnd; ++i) {
        const bool takeRight = left == leftEnd || (right < rightEnd && less(order[right], order[left]));
        merged[i] = order[takeRight ? right++ : left++];
      }
    }
    order.swap(merged);
  }
  return order;
}

/// What isn't a number, or is beyond any, compares as text.
double NumberOrNaN(const QString& text) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  if (!IsNumeric(text)) return none;
  try {
    return ToNumber(text);
  } catch (const RuntimeError&) {
    return none;
  }
}

Qt::Alignment AlignmentOf(QChar mark) {
  if (mark == u'^') return Qt::AlignHCenter | Qt::AlignVCenter;
  if (mark == u'>') return Qt::AlignRight | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

TextMatrix::TextMatrix(const QString& format, int rows) : m_rows(rows), m_cols(0) {
  if (rows < 1) throw NoSuch(u"row"_s, rows);
  QStringList headings;
  for (QStringView column : QStringView(format).split(u'|')) {
    const bool marked = column.startsWith(u'<') || column.startsWith(u'^') || column.startsWith(u'>');
    m_alignments.push_back(AlignmentOf(marked ? column.front() : QChar(u'<')));
    if (marked) column = column.sliced(1);
    m_formatWidths.push_back(static_cast<int>(column.size()));
    headings.append(TrimBlanks(column));
  }
  m_cols = static_cast<int>(headings.size());
  m_cells.assign(static_cast<size_t>(rows), QStringList(m_cols, QString()));
  m_cells[0] = headings;
}

void TextMatrix::Require(int row, int col) const {
  if (row < 0 || row >= m_rows) throw NoSuch(u"row"_s, row);
  if (col < 0 || col >= m_cols) throw NoSuch(u"column"_s, col);
}

void TextMatrix::SetRows(int rows) {
  if (rows < 1) throw NoSuch(u"row"_s, rows);
  if (rows == m_rows) return;
  const auto size = static_cast<size_t>(rows);
  if (rows > m_rows) {
    beginInsertRows({}, m_rows - 1, rows - 2);
    m_cells.resize(size, QStringList(m_cols, QString()));
    m_rows = rows;
    endInsertRows();
    return;
  }
  beginRemoveRows({}, rows - 1, m_rows - 2);
  m_cells.resize(size);
  m_rows = rows;
  endRemoveRows();
  if (m_row >= m_rows) SetRow(m_rows - 1);
}

void TextMatrix::AssignRows(std::vector<QStringList> rows) {
  for (const QStringList& row : rows) {
    if (row.size() != m_cols) throw NoSuch(u"column"_s, static_cast<int>(row.size()));
  }
  beginResetModel();
  rows.insert(rows.begin(), m_cells[0]);
  m_cells = std::move(rows);
  m_rows = static_cast<int>(m_cells.size());
  m_row = 0;
  endResetModel();
  if (m_rows > 1) SetRow(1);
}

const QString& TextMatrix::Text(int row, int col) const {
  Require(row, col);
  return m_cells[static_cast<size_t>(row)][col];
}

void TextMatrix::SetText(int row, int col, const QString& text) {
  Require(row, col);
  QString& cell = m_cells[static_cast<size_t>(row)][col];
  if (cell == text) return;
  cell = text;
  if (row == 0) {
    Q_EMIT headerDataChanged(Qt::Horizontal, col, col);
  } else {
    Q_EMIT dataChanged(index(row - 1, col), index(row - 1, col));
  }
}

void TextMatrix::SetRow(int row) {
  Require(row, 0);
  if (row == m_row) return;
  m_row = row;
  // A copy: whoever is told may ask for more, or take a listener with it.
  for (const Listener& listener : std::vector<Listener>(m_listeners)) {
    if (listener.Context != nullptr) listener.Told(row);
  }
}

void TextMatrix::OnRowChanged(QObject* context, std::function<void(int)> told) {
  std::erase_if(m_listeners, [](const Listener& listener) { return listener.Context == nullptr; });
  m_listeners.push_back({context, std::move(told)});
}

void TextMatrix::ForgetRowChanged(const QObject* context) {
  std::erase_if(m_listeners, [context](const Listener& listener) { return listener.Context == context; });
}

void TextMatrix::SetCol(int col) {
  Require(0, col);
  m_col = col;
}

QStringList TextMatrix::RemoveItem(int row) {
  Require(row, 0);
  if (row == 0) throw NoSuch(u"row"_s, row);
  beginRemoveRows({}, row - 1, row - 1);
  const QStringList texts = std::move(m_cells[static_cast<size_t>(row)]);
  m_cells.erase(m_cells.begin() + row);
  --m_rows;
  endRemoveRows();
  if (m_row >= m_rows) SetRow(m_rows - 1);
  return texts;
}

void TextMatrix::InsertItem(int row, const QStringList& texts) {
  if (row < 1 || row > m_rows) throw NoSuch(u"row"_s, row);
  if (texts.size() != m_cols) throw NoSuch(u"column"_s, static_cast<int>(texts.size()));
  beginInsertRows({}, row - 1, row - 1);
  m_cells.insert(m_cells.begin() + row, texts);
  ++m_rows;
  endInsertRows();
}

void TextMatrix::SwapRows(int a, int b, int columnCount) {
  Require(a, columnCount - 1);
  Require(b, columnCount - 1);
  for (int col = 0; col < columnCount; ++col) {
    const QString held = Text(a, col);
    SetText(a, col, Text(b, col));
    SetText(b, col, held);
  }
}

void TextMatrix::Clear() {
  if (m_rows == 1) return;
  std::fill(m_cells.begin() + 1, m_cells.end(), QStringList(m_cols, QString()));
  Q_EMIT dataChanged(index(0, 0), index(m_rows - 2, m_cols - 1));
}

void TextMatrix::Reorder(const std::vector<int>& order) {
  // Selections stay on their row numbers, as the current row does.
  Q_EMIT layoutAboutToBeChanged();
  std::vector<QStringList> sorted;
  sorted.reserve(m_cells.size());
  sorted.push_back(std::move(m_cells[0]));
  for (int row : order) sorted.push_back(std::move(m_cells[static_cast<size_t>(row) + 1]));
  m_cells = std::move(sorted);
  Q_EMIT layoutChanged();
}

void TextMatrix::SortRows(const std::function<bool(const QStringList&, const QStringList&)>& less) {
  const auto cells = [this](int row) -> const QStringList& { return m_cells[static_cast<size_t>(row) + 1]; };
  Reorder(StableOrder(m_rows - 1, [&](int a, int b) { return less(cells(a), cells(b)); }));
}

void TextMatrix::SortGenericAscending(int col) {
  SortGeneric(col, false);
}

void TextMatrix::SortGenericDescending(int col) {
  SortGeneric(col, true);
}

void TextMatrix::SortGeneric(int col, bool descending) {
  Require(0, col);
  std::vector<double> numbers;
  numbers.reserve(m_cells.size());
  for (int row = 1; row < m_rows; ++row) numbers.push_back(NumberOrNaN(Text(row, col)));
  const auto less = [&](int a, int b) {
    const double x = numbers[static_cast<size_t>(a)], y = numbers[static_cast<size_t>(b)];
    if (!std::isnan(x) && !std::isnan(y)) return x < y;
    return Text(a + 1, col) < Text(b + 1, col);
  };
  Reorder(StableOrder(m_rows - 1, [&](int a, int b) { return descending ? less(b, a) : less(a, b); }));
}

void TextMatrix::SortTextIgnoringCase(int col) {
  Require(0, col);
  SortRows(
      [col](const QStringList& a, const QStringList& b) { return a[col].compare(b[col], Qt::CaseInsensitive) < 0; });
}

Qt::Alignment TextMatrix::Alignment(int col) const {
  Require(0, col);
  return m_alignments[static_cast<size_t>(col)];
}

int TextMatrix::FormatWidth(int col) const {
  Require(0, col);
  return m_formatWidths[static_cast<size_t>(col)];
}

int TextMatrix::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_rows - 1;
}

int TextMatrix::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_cols;
}

QVariant TextMatrix::data(const QModelIndex& index, int role) const {
  // A view may ask for what it saw before the last change.
  if (!index.isValid() || index.row() >= m_rows - 1 || index.column() >= m_cols) return {};
  if (role == Qt::DisplayRole || role == Qt::EditRole) return Text(index.row() + 1, index.column());
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Alignment(index.column()));
  return {};
}

QVariant TextMatrix::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= m_cols) return {};
  if (role == Qt::DisplayRole) return Text(0, section);
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Alignment(section));
  return {};
}
