#include "invoice/GridEditing.h"

#include "invoice/WorkingInvoice.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/FlexGrid.h"
#include "shell/VerifyDataRoutines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Backspace = 8;
constexpr int Space = u' ';
constexpr int Point = u'.';

bool IsLaborRow(const TextMatrix& grid, int row) {
  return grid.Text(row, LineColumn::Quantity).contains(u"Hrs");
}

void AppendKey(TextMatrix& grid, int row, int column, int key) {
  grid.SetText(row, column, grid.Text(row, column) + QChar(static_cast<char16_t>(key)));
}

void TypeInPrice(TextMatrix& grid, int row, int key) {
  if (key == Backspace) {
    grid.SetText(row, LineColumn::UnitPrice, ZeroCurrencyText());
    grid.SetText(row, LineColumn::Extension, ZeroCurrencyText());
    return;
  }
  // A key that is refused below has blanked the zero all the same, which is meant.
  if (grid.Text(row, LineColumn::UnitPrice) == ZeroCurrencyText()) grid.SetText(row, LineColumn::UnitPrice, {});
  const bool fits =
      key == Point ? !grid.Text(row, LineColumn::UnitPrice).contains(QChar(Point)) : VerifyDigitKey(key) != 0;
  if (fits) AppendKey(grid, row, LineColumn::UnitPrice, key);
}

void TypeInQuantity(TextMatrix& grid, int row, int key) {
  if (key == Backspace) {
    grid.SetText(row, LineColumn::Quantity, {});
    grid.SetText(row, LineColumn::Extension, ZeroCurrencyText());
  } else if (VerifyDigitKey(key) != 0) {
    AppendKey(grid, row, LineColumn::Quantity, key);
  }
}

}  // namespace

void TypeInGrid(WorkingInvoice& invoice, int key, Dialogs& dialogs) {
  TextMatrix& grid = invoice.fgInvoice;
  const int row = grid.Row();
  if (row == 0) return;
  if (key == Space && grid.Col() == LineColumn::ApplyTax) {
    ClickGrid(invoice);
    return;
  }
  if (IsLaborRow(grid, row)) {
    Tell(
        invoice, dialogs,
        u"Labor cannot be changed inside the Invoice Body\r\nDelete the Labor Item and Re-enter from the labor Grid)"_s);
    return;
  }
  if (grid.Col() == LineColumn::UnitPrice) TypeInPrice(grid, row, key);
  if (grid.Col() == LineColumn::Quantity) TypeInQuantity(grid, row, key);
}

void RecalculateRow(WorkingInvoice& invoice) {
  TextMatrix& grid = invoice.fgInvoice;
  const int row = grid.Row();
  if (row == 0 || IsLaborRow(grid, row)) return;
  const QString price = grid.Text(row, LineColumn::UnitPrice);
  const QString quantity = grid.Text(row, LineColumn::Quantity);
  if (quantity.isEmpty() || price.isEmpty() || price == QChar(Point)) return;
  const double unitPrice = ToNumber(price, u"Unit Price"_s);
  const double units = ToNumber(quantity, u"Quantity"_s);
  // The extension is taken from the price as it now reads, rounded to cents.
  const QString shownPrice = CurrencyText(unitPrice);
  grid.SetText(row, LineColumn::Extension, ExtensionText(Currency::FromText(shownPrice), units));
  grid.SetText(row, LineColumn::UnitPrice, shownPrice);
}

void SelectLine(WorkingInvoice& invoice) {
  const TextMatrix& grid = invoice.fgInvoice;
  if (grid.Row() == 0) return;
  // A service line has no quantity: it isn't moved.
  invoice.Controls.Enabled.UpDown1 = !grid.Text(grid.Row(), LineColumn::Quantity).isEmpty();
}

void ClickGrid(WorkingInvoice& invoice) {
  TextMatrix& grid = invoice.fgInvoice;
  const int row = grid.Row();
  if (row == 0) return;
  SelectLine(invoice);
  // Nor can the tax flag of a service line be flipped.
  if (grid.Text(row, LineColumn::Quantity).isEmpty() || grid.Col() != LineColumn::ApplyTax) return;
  const bool applies = grid.Text(row, LineColumn::ApplyTax) == u"True";
  grid.SetText(row, LineColumn::ApplyTax, applies ? u"False"_s : u"True"_s);
}

void MoveLine(WorkingInvoice& invoice, bool downArrow) {
  SwapGridRows(invoice.fgInvoice, downArrow, LineColumn::Count);
}

bool CanDeleteLine(const WorkingInvoice& invoice) {
  const int row = invoice.fgInvoice.Row();
  return row != 0 && !invoice.fgInvoice.Text(row, LineColumn::Description).isEmpty();
}

void DeleteItem(WorkingInvoice& invoice, Dialogs& dialogs) {
  if (!CanDeleteLine(invoice)) return;
  const QString& description = invoice.fgInvoice.Text(invoice.fgInvoice.Row(), LineColumn::Description);
  if (Ask(invoice, dialogs, u"Delete item "_s + description + u" from Invoice?"_s, u"Item Deletion"_s)) {
    DeleteGridLine(invoice);
  }
}

void DeleteGridLine(WorkingInvoice& invoice) {
  const int row = invoice.fgInvoice.Row();
  if (row == 0) return;
  invoice.fgInvoice.RemoveItem(row);
  invoice.fgInvoice.SetRows(MaximumLines + 1);
  if (invoice.LineCount > 0) --invoice.LineCount;
  invoice.Controls.Enabled.cmdPost.fill(true);
}
