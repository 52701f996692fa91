/// A rectangular matrix of texts with row 0 as headings and data from row 1: the grid behind every list.
#pragma once

#include <functional>
#include <QAbstractTableModel>
#include <QPointer>
#include <QStringList>
#include <vector>

/// Rows and columns are addressed from 0, with row 0 the header. A cell, row or column that isn't
/// there throws RuntimeError 9. To Qt's views it is a table of `Rows() - 1` rows whose header is row 0.
class TextMatrix : public QAbstractTableModel {
 public:
  /// Columns are given by a format string: headings separated by `|`, each with an alignment mark `<`, `^` or `>`
  /// before it; the blanks around a heading only measure its width and aren't part of the cell text.
  explicit TextMatrix(const QString& format, int rows = 1);

  int Rows() const { return m_rows; }
  int Cols() const { return m_cols; }
  void SetRows(int rows);  ///< New rows are blank. The current row stays inside.
  /// All data rows at once, so that the views follow once however many there are. The first becomes the current row.
  void AssignRows(std::vector<QStringList> rows);
  const QString& Text(int row, int col) const;
  void SetText(int row, int col, const QString& text);
  int Row() const { return m_row; }  ///< The current row; 0 is none.
  void SetRow(int row);
  int Col() const { return m_col; }
  void SetCol(int col);
  QStringList RemoveItem(int row);  ///< The texts that it had.
  /// Before that row, or behind the last. The current row keeps its number, as with a row that goes.
  void InsertItem(int row, const QStringList& texts);
  /// Swaps the texts of two rows, columns 0 to `columnCount` - 1.
  void SwapRows(int a, int b, int columnCount);
  void Clear();  ///< Blanks every data cell.
  /// Reorders the data rows, stably, by `less` on row texts.
  void SortRows(const std::function<bool(const QStringList&, const QStringList&)>& less);
  /// Generic ascending order of one column: as numbers where both cells are numeric, else as text by character code.
  void SortGenericAscending(int col);
  /// The same the other way round; rows that are alike keep their order here too.
  void SortGenericDescending(int col);
  /// Text order ignoring case.
  void SortTextIgnoringCase(int col);
  /// `told` whenever the current row changes, by code or by hand, as long as `context` lives; in the order in which
  /// they asked to be told. It is a plain call, so it may throw; the ones after it aren't told then.
  void OnRowChanged(QObject* context, std::function<void(int row)> told);
  /// Nothing is told to what came with `context` any more.
  void ForgetRowChanged(const QObject* context);

  Qt::Alignment Alignment(int col) const;
  /// How many characters the format string gave the column, its blanks counted: a measure for its width.
  int FormatWidth(int col) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// To the views: what isn't there is an empty value, never an error, since none may cross the toolkit.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Listener {
    QPointer<QObject> Context;
    std::function<void(int)> Told;
  };

  void Require(int row, int col) const;
  void SortGeneric(int col, bool descending);
  void Reorder(const std::vector<int>& order);  ///< Of the data rows, counted from 0.
  int m_rows;
  int m_cols;
  int m_row = 0;
  int m_col = 0;
  std::vector<QStringList> m_cells;
  std::vector<Qt::Alignment> m_alignments;
  std::vector<int> m_formatWidths;
  std::vector<Listener> m_listeners;
};
