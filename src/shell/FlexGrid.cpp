#include "shell/FlexGrid.h"

void SwapGridRows(TextMatrix& grid, bool moveUp, int columnCount) {
  const int current = grid.Row();
  const int neighbour = moveUp ? current - 1 : current + 1;
  if (current < 1 || neighbour < 1 || neighbour >= grid.Rows()) return;
  if (grid.Text(current, 0).isEmpty() || grid.Text(neighbour, 0).isEmpty()) return;
  grid.SwapRows(current, neighbour, columnCount);
  grid.SetRow(neighbour);
}
