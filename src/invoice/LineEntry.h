/// Posting of services, items, manual and custom lines into the grid, and the boxes they are entered in.
#pragma once

#include <QString>
#include <vector>

#include "catalogue/CatalogueLists.h"

class Catalogue;
class Dialogs;
struct TaxConfiguration;
struct WorkingInvoice;

/// Line kinds; 0 to 3 are the indexes of `cmdPost`.
namespace LineKind {
inline constexpr int Service = 0;
inline constexpr int Item = 1;
inline constexpr int Manual = 2;
inline constexpr int Custom = 3;
inline constexpr int Labor = 4;
}  // namespace LineKind

/// Element of `cboDescription` and `cboPrice` that a kind works on, `ElementOf` its list: custom lines on the custom
/// items', the others on their own index.
constexpr int ElementOf(int kind) {
  return kind == LineKind::Custom ? ElementOf(CatalogueList::Custom) : kind;
}

/// What posting reads beside the invoice.
struct LineEntryDesk {
  WorkingInvoice& Invoice;
  const CatalogueLists& Lists;
  const TaxConfiguration& Tax;
  Dialogs& Boxes;
};

/// `cmdPost`: checks the boxes of the kind and writes one row. Where a box isn't fit it beeps, sends the focus there
/// and posts nothing. Quantities that don't convert throw RuntimeError 13, a row beyond the grid 9; then nothing is
/// posted. After a post the boxes are cleared and, if `descriptionShows`, the first entry of the list is picked.
void PostLine(const LineEntryDesk& desk, int kind, bool descriptionShows = true);

/// Throws RuntimeError 9 where the grid has no rows for that many more lines.
void RequireRoom(const WorkingInvoice& invoice, int lines = 1);
/// Writes column 5 of the row after the last line, by the kind's tax switch.
void SetApplyTax(WorkingInvoice& invoice, int kind, const TaxConfiguration& tax);
/// Empties the boxes of a kind after its post.
void ClearLineEntry(WorkingInvoice& invoice, int kind);

/// Places in `CatalogueLists::Entries` in the order in which `cboDescription` shows them: services and items as they
/// stand, custom items alphabetically, ignoring case.
std::vector<int> DescriptionOrder(const CatalogueLists& lists, int element);
/// Picks an entry of `cboDescription`, by the user's hand or by code: text, matching price, focus to the units box. The
/// index counts in the order shown; one without an entry deselects.
void SelectDescription(WorkingInvoice& invoice, const CatalogueLists& lists, int element, int index);
/// The description's text changed by typing; the entry that completes it, if any, is the combo box's own affair, and it
/// picks that through `SelectDescription` when nothing is left to complete.
void TypeDescription(WorkingInvoice& invoice, int element, const QString& text);
/// Picks an entry of `cboPrice`, or takes a price typed by hand, to which no quantity break applies.
void SelectPrice(WorkingInvoice& invoice, const CatalogueLists& lists, int element, int index);
void TypePrice(WorkingInvoice& invoice, int element, const QString& text);
/// Deselects description and price and empties the text of both. A list that was filled anew has nothing selected, so
/// the screen calls this when the catalogue announces a change of the element.
void ClearSelection(WorkingInvoice& invoice, int element);

/// `lstCategories`: "All", the first entry, loads all items again; another narrows the item lists to its category,
/// empties the boxes and gives the focus to the description. An index without an entry does nothing.
void PickCategory(WorkingInvoice& invoice, Catalogue& catalogue, const CatalogueLists& lists, int index);

/// Leaving `txtUnits`: text that isn't a number becomes "0", with a beep and the focus back.
void LeaveUnits(WorkingInvoice& invoice, Dialogs& dialogs);
