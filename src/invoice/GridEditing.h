/// Changing posted lines in the grid itself: keys in Quantity and Unit Price, Enter, the tax flag, moving, deleting.
/// All work on the grid's current row and column; without a current row they do nothing.
#pragma once

#include <QString>

class Dialogs;
struct WorkingInvoice;

/// A key pressed on the grid, by character code (Backspace is 8). A labor row answers with a message. The space bar in
/// Apply Tax does what a click there does, on labor too.
void TypeInGrid(WorkingInvoice& invoice, int key, Dialogs& dialogs);
/// Enter released on the grid: recalculates the Extension from the texts of the row. Rows with an empty Quantity or
/// price, labor rows and a price of just "." are left as they are. Other text that isn't a number throws
/// RuntimeError 13.
void RecalculateRow(WorkingInvoice& invoice);
/// A row became current, by the arrow keys as by a press: makes `UpDown1` live on a row with a Quantity.
void SelectLine(WorkingInvoice& invoice);
/// A click: makes `UpDown1` live on a row with a Quantity, and flips Apply Tax if it was in that column.
void ClickGrid(WorkingInvoice& invoice);
/// `UpDown1`: the down arrow moves the line up and the up arrow down, which is meant.
void MoveLine(WorkingInvoice& invoice, bool downArrow);
/// Whether a right press on the current row pops up the menu: only where there is a description.
bool CanDeleteLine(const WorkingInvoice& invoice);
/// `mnuDeleteItem`: asks, then `DeleteGridLine`.
void DeleteItem(WorkingInvoice& invoice, Dialogs& dialogs);
/// Removes the current row; the grid keeps its 101 rows, and posting is possible again.
void DeleteGridLine(WorkingInvoice& invoice);
