#include "reliability/RandomInvoice.h"

#include <algorithm>
#include <array>

#include "invoice/ChargeBoxes.h"
#include "invoice/ClearInvoice.h"
#include "invoice/LaborEntry.h"
#include "reliability/MoneyOracle.h"

using namespace Qt::StringLiterals;

namespace {

const std::array<RandomInvoice::Rate, 8> Rates{{{u"4.0"_s, 4000},
                                                {u"6.0"_s, 6000},
                                                {u"8.25"_s, 8250},
                                                {u"6.875"_s, 6875},
                                                {u"7,5"_s, 7000},
                                                {u"0.5%"_s, 500},
                                                {u"none"_s, 0},
                                                {u"20"_s, 20000}}};

}  // namespace

void RandomInvoice::Compose() {
  Begin();
  ChooseSettings();
  FillCatalogue();
  // Now and then more than one page takes.
  for (qint64 line = Upto(Chance(4) ? 60 : 12); line > 0; --line) PostAnyLine();
  AddCharges();
  AddDiscount();
}

/// A new invoice as the screen has it.
void RandomInvoice::Begin() {
  Expected = {};
  Desk.emplace();
  Desk->Device.SkipFlushes();
  Desk->Customer = {.txtCustomer0 = Oracle::Account, .txtCustomer1 = Oracle::Customer};
  WorkingInvoice& invoice = Invoice();
  ClearAddOns(invoice);
  invoice.txtInvoiceNo = Oracle::Number;
  invoice.InvoiceNo = 7;
  invoice.lblAcct = invoice.lblAcctNo = Oracle::Account;
  const std::array<QString, 6> customer{Oracle::Customer, u"2 Lime Street"_s, u""_s, u"Orlando"_s, u"FL"_s, u"32801"_s};
  std::copy(customer.begin(), customer.end(), invoice.lblCustomer.begin() + 6);
  invoice.txtReference = u"PO 5"_s;
  invoice.txtShipto[6] = u"Ann"_s;
  invoice.cboShipping = u"None"_s;
}

void RandomInvoice::FillCatalogue() {
  CatalogueLists& lists = Desk->Lists;
  lists.Entries[0] = {{u"Survey"_s, 0, Oracle::Text(Upto(9999999))}};
  const qint64 item = Upto(99999) * 100;
  const qint64 custom = Upto(99999) * 100;
  lists.Entries[1] = {{Oracle::StockedItem, 0, Oracle::Text(item)}};
  lists.Entries[2] = {{Oracle::CustomItem, 0, Oracle::Text(custom)}};
  lists.ItemBreaks = {{}, {Currency::FromUnits(Upto(999999)), static_cast<qint32>(m_random.bounded(20))}};
  lists.CustomBreaks = {{}, {Currency::FromUnits(Upto(999999)), static_cast<qint32>(m_random.bounded(20))}};
  m_laborRate = Upto(20000) * 100;
  Desk->Prices.Labor = {{u"Rigger"_s, u""_s, u""_s}, {Oracle::Text(m_laborRate), u"$0.00"_s, u"$0.00"_s}};
  LoadLaborRates(Invoice(), Desk->Prices.Labor);
  Expected.OnHand = m_random.bounded(100);
  Desk->Write(u"/KVInventoriedItems.txt"_s, Oracle::Inventory(Expected.OnHand));
  Desk->SalesItems.Items = {{Oracle::StockedItem}};
  Expected.CustomIsListed = Chance(50);
  if (Expected.CustomIsListed) Desk->SalesItems.Items.push_back({Oracle::CustomItem});
}

void RandomInvoice::ChooseSettings() {
  TaxConfiguration& tax = Desk->Tax;
  const auto any = [this] { return Rates.at(static_cast<size_t>(m_random.bounded(int(Rates.size())))); };
  Setup = {.First = any(), .Second = any(), .Discount = any(), .Limit = Upto(300000) * 100, .Surcharge = Upto(9999)};
  tax.cboTaxHeading1 = Oracle::TaxHeadings[0];
  tax.cboTaxHeading2 = Oracle::TaxHeadings[1];
  tax.cboRate1 = Setup.First.Text;
  tax.cboRate2 = Setup.Second.Text;
  tax.ckApplyGraduated = Chance(30);
  tax.txtGradulated = {Oracle::Text(Setup.Limit), Oracle::Typed(Setup.Surcharge, 4)};
  tax.ckServices = Chance(50);
  tax.ckSalesItems = Chance(80);
  tax.ckCustom = Chance(50);
  tax.ckLabor = Chance(50);
  Desk->Settings.cboDiscount = Setup.Discount.Text;
  Invoice().ckExempt = Chance(10);
  Invoice().ck2ndTax = Chance(50);
  Invoice().ckApplyVolumeDiscount = Chance(50);
  Invoice().ckPrepaid = Expected.Prepaid = Chance(30);
}

void RandomInvoice::Expect(const Oracle::Line& line) {
  Expected.Lines.append(line);
  Expected.SubTotal += line.Extension;
  if (line.Taxed && !Invoice().ckExempt) Expected.Taxable += line.Extension;
}

void RandomInvoice::PostAnyLine() {
  switch (m_random.bounded(5)) {
    case LineKind::Service: {
      const qint64 price = Upto(9999999);
      SelectDescription(Invoice(), Desk->Lists, 0, 0);
      TypePrice(Invoice(), 0, Oracle::Typed(price, 4));
      PostLine(Desk->Entry(), LineKind::Service);
      return Expect({.Description = u"Survey"_s,
                     .Date = Oracle::Today,
                     .Price = price,
                     .Extension = Oracle::DivideAway(price, 100) * 100,
                     .Taxed = Desk->Tax.ckServices});
    }
    case LineKind::Item:
      return PostFromList(LineKind::Item, Desk->Lists.ItemBreaks[1]);
    case LineKind::Custom:
      return PostFromList(LineKind::Custom, Desk->Lists.CustomBreaks[1]);
    case LineKind::Manual:
      return PostManualLine();
    default:
      return PostLaborLine();
  }
}

/// With a price from the list, to which the break may apply, or a typed one, to which none does.
void RandomInvoice::PostFromList(int kind, const QuantityBreak& quantityBreak) {
  const int element = ElementOf(kind);
  const qint64 quantity = Upto(2500);
  qint64 price = 0;
  SelectDescription(Invoice(), Desk->Lists, element, 0);
  const bool typed = Chance(50);
  if (typed) {
    price = Upto(9999999);
    TypePrice(Invoice(), element, Oracle::Typed(price, 4));
  } else {
    const QString text = Desk->Lists.Entries[static_cast<size_t>(element)][0].Price;
    price = QString(text).remove(u'$').remove(u',').remove(u'.').toLongLong() * 100;
  }
  (kind == LineKind::Item ? Invoice().Entry.txtUnits : Invoice().Entry.txtCUnits) = Oracle::Typed(quantity, 2);
  const bool breaks = !typed && Invoice().ckApplyVolumeDiscount && quantityBreak.Units != 0 &&
                      quantity >= qint64{quantityBreak.Units} * 100;
  if (breaks) price = quantityBreak.DiscountPrice.Units();
  PostLine(Desk->Entry(), kind);
  Expect({.Quantity = Oracle::Typed(quantity, 2),
          .Description = kind == LineKind::Item ? Oracle::StockedItem : Oracle::CustomItem,
          .Price = price,
          .Extension = Oracle::Extension(price, quantity),
          .Taxed = kind == LineKind::Item ? Desk->Tax.ckSalesItems : Desk->Tax.ckCustom,
          .Hundredths = quantity});
}

/// Now and then an amount to give back.
void RandomInvoice::PostManualLine() {
  const qint64 price = Upto(9999999) * (Chance(10) ? -1 : 1);
  const qint64 quantity = Upto(5000);
  Invoice().ckManualTax = Chance(50);
  const QString description = u"Knots %1"_s.arg(m_random.bounded(1000));
  Invoice().Entry.txtManual = {description, Oracle::Typed(price, 4), Oracle::Typed(quantity, 2)};
  PostLine(Desk->Entry(), LineKind::Manual);
  Expect({.Quantity = Oracle::Typed(quantity, 2),
          .Description = description,
          .Price = price,
          .Extension = Oracle::Extension(price, quantity),
          .Taxed = Invoice().ckManualTax});
}

void RandomInvoice::PostLaborLine() {
  const qint64 hours = Upto(4000);
  const qint64 rate = m_laborRate;
  ClearLabor(Invoice());
  Invoice().Entry.txtHours[0] = Oracle::Typed(hours, 2);
  LeaveHours(Invoice(), 0, Desk->Boxes);
  PostLabor(Invoice(), Desk->Prices.Labor, Desk->Tax);
  Expect({.Quantity = Oracle::Typed(hours, 2) + u" Hrs"_s,
          .Description = u"Rigger"_s,
          .Price = rate,
          .Extension = Oracle::Extension(rate, hours),
          .Taxed = Desk->Tax.ckLabor});
}

void RandomInvoice::AddCharges() {
  if (Chance(60)) {
    Expected.Ship = Upto(9999) * 100;
    Invoice().txtShip = Oracle::Typed(Expected.Ship, 4);
    LeaveShip(Invoice(), Desk->Boxes);
  }
  if (Chance(60)) {
    Expected.Misc = Upto(9999) * 100;
    Invoice().txtMisc = Oracle::Typed(Expected.Misc, 4);
    LeaveMisc(Invoice(), Desk->Boxes);
  }
}

void RandomInvoice::AddDiscount() {
  Invoice().optDiscount = m_random.bounded(3);
  Invoice().ckDiscount = Chance(50);
  if (Invoice().optDiscount != DiscountOption::Flat) return;
  Expected.Flat = Upto(99999) * 100;
  Invoice().txtFlatDiscount = Oracle::Typed(Expected.Flat, 4);
  LeaveFlatDiscount(Invoice());
  DeductDiscount(Invoice(), Desk->Tax, Desk->Boxes);
  const qint64 before =
      Expected.SubTotal + Invoice().Tax1.Units() + Invoice().Tax2.Units() + Expected.Ship + Expected.Misc;
  if (Expected.Flat >= before) Expected.Flat = 0;
}
