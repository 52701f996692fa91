/// The grid on a screen: a table view over one TextMatrix. The matrix's current row is the view's; a wheel notch moves
/// the top row by one; a right press makes the pressed row current first.
#pragma once

#include <QTableView>
#include <functional>

#include "runtime/TextMatrix.h"

class GridView : public QTableView {
 public:
  explicit GridView(QWidget* parent = nullptr);
  /// The matrix must outlive the view. Widths follow the format string's, and the widest column takes what is left.
  void SetMatrix(TextMatrix* matrix);
  TextMatrix* Matrix() const { return m_matrix; }
  int TopRow() const;
  void SetTopRow(int row);

  std::function<void()> Click;                 ///< Left click on a cell; the matrix's row and column are set.
  std::function<void()> DoubleClick;
  std::function<void(const QPoint& globalPosition)> RightPress;
  std::function<void(int key)> KeyPress;       ///< Character codes; Backspace is 8.
  std::function<void(int key)> KeyUp;          ///< Enter is 13.

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  TextMatrix* m_matrix = nullptr;
  int m_wheel = 0;
};
