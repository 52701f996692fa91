/// A small service on a grid: moving the current line.
#pragma once

#include "runtime/TextMatrix.h"

/// Swaps the current row with its neighbour above (`moveUp`) or below and makes the neighbour current. Does nothing
/// when column 0 of either row is empty, at row 1 going upward, or at the last row going downward.
void SwapGridRows(TextMatrix& grid, bool moveUp, int columnCount);
