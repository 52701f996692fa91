/// The grid on a screen: a table view over one TextMatrix. The matrix's current row is the view's; a wheel notch moves
/// the top row by one; a right press makes the pressed row current first. A current row that is blank shows as such
/// only while the user is there.
#pragma once

#include <functional>
#include <QPointer>
#include <QTableView>
#include <vector>

#include "runtime/TextMatrix.h"

class GridView : public QTableView {
 public:
  explicit GridView(QWidget* parent = nullptr);
  ~GridView() override;
  /// Columns are at least as wide as the format string says and as their texts, and the widest takes what is left.
  /// Where the room doesn't hold them all, those of plain texts give way, the widest first: figures and dates stay in
  /// sight, and a text that is cut is told in full by a tool tip. Several views may follow one matrix; views and matrix
  /// go in any order, and a view whose matrix went is empty. Who wants to be told when this one has followed sets its
  /// `RowChanged`.
  void SetMatrix(TextMatrix* matrix);
  TextMatrix* Matrix() const { return m_matrix; }  ///< nullptr before there is one, and when it went.
  /// No row shows as current until the user goes to one: where the screen offers nothing for a row before that. The
  /// first Down key goes to the one that is current then, from which it would lead on.
  void AwaitChoice();
  int TopRow() const;
  /// Bounded by the first row and by the last one that can stand on top.
  void SetTopRow(int row);
  /// Enter and the space bar click the row that the arrow keys reached. Takes the place of a `KeyPress`.
  void ClickByKeys();

  // Errors of these go to the screen's guard.
  std::function<void()> Click;  ///< Left click on a cell; the matrix's row and column are set.
  std::function<void()> DoubleClick;
  /// On a cell, or the menu key on the current one.
  std::function<void(const QPoint& globalPosition)> RightPress;
  std::function<void(int key)> KeyPress;  ///< Character codes; Backspace is 8, Enter 13.
  std::function<void(int key)> KeyUp;     ///< Enter is 13. Only where the grid saw the press as well.
  /// The current row changed, by code or by hand; it may throw where code changed it.
  std::function<void(int row)> RowChanged;

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ShowRow();  ///< The view follows the matrix.
  void TakeRow();  ///< The matrix follows the view.
  void GoneTo();   ///< The user came to the current row.
  bool ShowsAsCurrent(int row) const;
  bool IsCut(const QModelIndex& index) const;
  void FitSoon();
  void FitColumns();
  int CellMargins() const;
  int TextsWidth(int col) const;
  int NeededWidth(int col) const;
  int LeastWidth(int col) const;
  void GiveWay(std::vector<int>& widths) const;

  QPointer<TextMatrix> m_matrix;
  QPersistentModelIndex m_pressed;
  int m_pressedKey = 0;
  int m_wheel = 0;
  bool m_fitting = false;
  bool m_awaitsChoice = false;
  bool m_takingRow = false;
  bool m_byUser = false;  ///< The user went to the current row himself.
};
