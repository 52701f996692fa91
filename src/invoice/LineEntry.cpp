#include "invoice/LineEntry.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueLists.h"
#include "invoice/WorkingInvoice.h"
#include "runtime/Dates.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "setup/TaxConfiguration.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ItemElement = ElementOf(CatalogueList::Items);
constexpr int CustomElement = ElementOf(CatalogueList::Custom);

/// A line that its boxes passed, not yet in the grid.
struct DraftLine {
  QString Quantity;
  QString Description;
  QString ServiceDate;
  Currency Price;
  QString Extension;
};

QString ElementName(QLatin1StringView box, int element) {
  return u"%1_%2"_s.arg(box).arg(element);
}

std::optional<DraftLine> Refuse(const LineEntryDesk& desk, const QString& box) {
  desk.Boxes.Beep();
  desk.Invoice.Controls.Focus = box;
  return std::nullopt;
}

/// The price by the quantity break of the picked price, if there is one and `units` reach it.
std::optional<Currency> BreakPrice(const std::vector<QuantityBreak>& breaks, int priceIndex, double units) {
  const auto place = static_cast<size_t>(priceIndex + 1);
  if (priceIndex < 0 || place >= breaks.size()) return std::nullopt;
  const QuantityBreak& found = breaks[place];
  if (found.Units == 0 || units < found.Units) return std::nullopt;
  return found.DiscountPrice;
}

/// Quantity, price by quantity break, and extension of an item or a custom line.
std::optional<DraftLine> WithUnits(const LineEntryDesk& desk, int kind, DraftLine line) {
  WorkingInvoice& invoice = desk.Invoice;
  const bool isItem = kind == LineKind::Item;
  if (isItem) invoice.Controls.Visible.Label4_42 = false;
  const QString box = isItem ? u"txtUnits"_s : u"txtCUnits"_s;
  line.Quantity = isItem ? invoice.Entry.txtUnits : invoice.Entry.txtCUnits;
  if (line.Quantity.isEmpty()) return Refuse(desk, box);
  const double units = ToNumber(line.Quantity, box);
  if (invoice.ckApplyVolumeDiscount) {
    const auto element = static_cast<size_t>(ElementOf(kind));
    const auto breakPrice = BreakPrice(isItem ? desk.Lists.ItemBreaks : desk.Lists.CustomBreaks,
                                       invoice.Entry.cboPrice[element].ListIndex, units);
    if (breakPrice) line.Price = *breakPrice;
    if (breakPrice && isItem) invoice.Controls.Visible.Label4_42 = true;
  }
  line.Extension = ExtensionText(line.Price, units);
  return line;
}

std::optional<DraftLine> DraftFromLists(const LineEntryDesk& desk, int kind) {
  const int element = ElementOf(kind);
  const LineEntryBoxes& entry = desk.Invoice.Entry;
  const QString& priceText = entry.cboPrice[static_cast<size_t>(element)].Text;
  if (!IsNumeric(priceText)) return Refuse(desk, ElementName("cboPrice"_L1, element));
  DraftLine line;
  line.Price = Currency::FromText(priceText, ElementName("cboPrice"_L1, element));
  line.Description = entry.cboDescription[static_cast<size_t>(element)].Text;
  if (line.Description.isEmpty()) return Refuse(desk, ElementName("cboDescription"_L1, element));
  if (kind != LineKind::Service) return WithUnits(desk, kind, line);
  line.ServiceDate = ShortDateText(desk.Invoice.DTPicker1);
  line.Extension = CurrencyText(line.Price);
  return line;
}

std::optional<DraftLine> DraftManual(const LineEntryDesk& desk) {
  auto& [description, price, quantity] = desk.Invoice.Entry.txtManual;
  if (price == ZeroCurrencyText() || price.isEmpty()) return Refuse(desk, u"txtManual_1"_s);
  if (quantity.isEmpty()) quantity = u"1"_s;
  if (description.isEmpty()) {
    desk.Invoice.Controls.Focus = u"txtManual_0"_s;
    return std::nullopt;
  }
  if (!IsNumeric(price)) {
    price = u"0"_s;
    desk.Invoice.Controls.Focus = u"txtManual_1"_s;
    return std::nullopt;
  }
  if (!IsNumeric(quantity)) quantity = u"1"_s;
  DraftLine line;
  line.Quantity = quantity;
  line.Description = description;
  line.Price = Currency::FromText(price, u"txtManual_1"_s);
  line.Extension = ExtensionText(line.Price, ParseLeadingNumber(quantity));
  return line;
}

/// Into the row after the last line. A service has no quantity and leaves that cell as it is.
void WriteRow(WorkingInvoice& invoice, int kind, const DraftLine& line) {
  RequireRoom(invoice);
  TextMatrix& grid = invoice.fgInvoice;
  const int row = invoice.LineCount + 1;
  grid.SetText(row, LineColumn::Description, line.Description);
  grid.SetText(row, LineColumn::UnitPrice, CurrencyText(line.Price));
  if (kind == LineKind::Service) {
    grid.SetText(row, LineColumn::ServiceDate, line.ServiceDate);
  } else {
    grid.SetText(row, LineColumn::Quantity, line.Quantity);
  }
  grid.SetText(row, LineColumn::Extension, line.Extension);
}

}  // namespace

void PostLine(const LineEntryDesk& desk, int kind, bool descriptionShows) {
  WorkingInvoice& invoice = desk.Invoice;
  invoice.Controls.Enabled.cmdPrint = true;
  const auto line = kind == LineKind::Manual ? DraftManual(desk) : DraftFromLists(desk, kind);
  if (!line) return;
  WriteRow(invoice, kind, *line);
  SetApplyTax(invoice, kind, desk.Tax);
  if (++invoice.LineCount == MaximumLines) {
    desk.Boxes.Beep();
    Tell(invoice, desk.Boxes, u"The Invoice is full"_s);
    invoice.Controls.Enabled.cmdPost[static_cast<size_t>(kind)] = false;  // Only this button, which is meant.
  }
  ClearLineEntry(invoice, kind);
  if (kind != LineKind::Manual && descriptionShows) SelectDescription(invoice, desk.Lists, ElementOf(kind), 0);
}

void RequireRoom(const WorkingInvoice& invoice, int lines) {
  if (invoice.LineCount + lines < invoice.fgInvoice.Rows()) return;
  throw RuntimeError(ErrorNumber::OutOfRange, u"fgInvoice"_s,
                     u"The Invoice is full: it has room for %1 lines."_s.arg(MaximumLines));
}

void SetApplyTax(WorkingInvoice& invoice, int kind, const TaxConfiguration& tax) {
  const std::array<bool, 5> applies{tax.ckServices, tax.ckSalesItems, invoice.ckManualTax, tax.ckCustom, tax.ckLabor};
  invoice.fgInvoice.SetText(invoice.LineCount + 1, LineColumn::ApplyTax,
                            applies.at(static_cast<size_t>(kind)) ? u"True"_s : u"False"_s);
}

void ClearLineEntry(WorkingInvoice& invoice, int kind) {
  LineEntryBoxes& entry = invoice.Entry;
  if (kind == LineKind::Manual) {
    entry.txtManual = {QString(), ZeroCurrencyText(), QString()};
    return;
  }
  entry.txtUnits.clear();
  entry.txtCUnits.clear();
  ClearSelection(invoice, ElementOf(kind));
  invoice.Controls.Focus = ElementName("cboDescription"_L1, ElementOf(kind));
}

std::vector<int> DescriptionOrder(const CatalogueLists& lists, int element) {
  const auto& entries = lists.Entries.at(static_cast<size_t>(element));
  std::vector<int> order(entries.size());
  std::iota(order.begin(), order.end(), 0);
  if (element != CustomElement) return order;
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    const QString& first = entries[static_cast<size_t>(a)].Description;
    return first.compare(entries[static_cast<size_t>(b)].Description, Qt::CaseInsensitive) < 0;
  });
  return order;
}

void SelectDescription(WorkingInvoice& invoice, const CatalogueLists& lists, int element, int index) {
  ComboValue& box = invoice.Entry.cboDescription.at(static_cast<size_t>(element));
  const std::vector<int> order = DescriptionOrder(lists, element);
  if (index < 0 || static_cast<size_t>(index) >= order.size()) {
    box = {};
    return;
  }
  const auto place = static_cast<size_t>(order[static_cast<size_t>(index)]);
  const CatalogueEntry& entry = lists.Entries[static_cast<size_t>(element)][place];
  box = {entry.Description, index};
  // The custom list is sorted and its prices are not: there the data word says where the price stands.
  SelectPrice(invoice, lists, element, element == CustomElement ? entry.Data : index);
  if (element == ItemElement) invoice.Controls.Focus = u"txtUnits"_s;
  if (element == CustomElement) invoice.Controls.Focus = u"txtCUnits"_s;
}

void TypeDescription(WorkingInvoice& invoice, int element, const QString& text) {
  invoice.Entry.cboDescription.at(static_cast<size_t>(element)) = {text, -1};
  invoice.Entry.cboPrice.at(static_cast<size_t>(element)) = {};
  invoice.Entry.txtUnits.clear();
  invoice.Entry.txtCUnits.clear();
}

void SelectPrice(WorkingInvoice& invoice, const CatalogueLists& lists, int element, int index) {
  const auto& entries = lists.Entries.at(static_cast<size_t>(element));
  const bool exists = index >= 0 && static_cast<size_t>(index) < entries.size();
  invoice.Entry.cboPrice.at(static_cast<size_t>(element)) =
      exists ? ComboValue{entries[static_cast<size_t>(index)].Price, index} : ComboValue{};
}

void TypePrice(WorkingInvoice& invoice, int element, const QString& text) {
  invoice.Entry.cboPrice.at(static_cast<size_t>(element)) = {text, -1};
}

void ClearSelection(WorkingInvoice& invoice, int element) {
  invoice.Entry.cboDescription.at(static_cast<size_t>(element)) = {};
  invoice.Entry.cboPrice.at(static_cast<size_t>(element)) = {};
}

void PickCategory(WorkingInvoice& invoice, Catalogue& catalogue, const CatalogueLists& lists, int index) {
  if (index < 0 || static_cast<size_t>(index) >= lists.lstCategories.size()) return;
  ClearSelection(invoice, ItemElement);
  if (index == 0) {
    catalogue.LoadAdditionalItems();
    return;
  }
  invoice.Entry.txtUnits.clear();
  catalogue.ListCategory(lists.lstCategories[static_cast<size_t>(index)]);
  invoice.Controls.Focus = u"cboDescription_1"_s;
}

void LeaveUnits(WorkingInvoice& invoice, Dialogs& dialogs) {
  QString& units = invoice.Entry.txtUnits;
  if (units.isEmpty() || IsNumeric(units)) return;
  units = u"0"_s;
  invoice.Controls.Focus = u"txtUnits"_s;
  dialogs.Beep();
}
