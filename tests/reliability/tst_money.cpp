// Random invoices, posted, totalled, printed and recorded: the grid, the held amounts, the page and every store say
// what exact whole-number arithmetic says. KARVEX_INVOICES sets how many; the default keeps the suite quick.
#include <QRandomGenerator>
#include <QtTest>

#include "customers/CommonAccountRoutines.h"
#include "invoice/ChargeBoxes.h"
#include "invoice/CommitRecords.h"
#include "invoice/InvoiceImage.h"
#include "invoice/InvoiceOnPaper.h"
#include "invoice/LaborEntry.h"
#include "invoice/Totals.h"
#include "reliability/MoneyOracle.h"
#include "support/InvoiceFixture.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QDate Today(2026, 3, 7);

struct Rate {
  QString Text;
  qint64 Thousandths;
};
const std::array<Rate, 8> Rates{{{u"4.0"_s, 4000},
                                 {u"6.0"_s, 6000},
                                 {u"8.25"_s, 8250},
                                 {u"6.875"_s, 6875},
                                 {u"7,5"_s, 7000},
                                 {u"0.5%"_s, 500},
                                 {u"none"_s, 0},
                                 {u"20"_s, 20000}}};

/// What the invoice in hand must come to; lines carry their own expectation.
struct Expected {
  qint64 SubTotal = 0;
  qint64 Taxable = 0;
  qint64 Ship = 0;
  qint64 Misc = 0;
  qint64 Flat = 0;
  Rate First, Second, Discount;
  qint64 Limit = 0;
  qint64 Surcharge = 0;
};

}  // namespace

class Money : public QObject {
  Q_OBJECT

  std::optional<InvoiceFixture> m_desk;
  std::optional<PageFixture> m_paper;
  QRandomGenerator m_random{20260307};
  Expected m_expected;
  QStringList m_wrong;

  WorkingInvoice& Invoice() { return m_desk->Invoice; }
  bool Chance(int percent) { return m_random.bounded(100) < percent; }
  qint64 Upto(int most) { return m_random.bounded(most) + 1; }
  void Same(const QString& what, const auto& actual, const auto& expected) {
    if (actual != expected) m_wrong.append(u"%1: %2, not %3"_s.arg(what).arg(actual).arg(expected));
  }

  void FillCatalogue();
  void ChooseSettings();
  void PostAnyLine();
  void PostFromList(int kind, const QuantityBreak& quantityBreak, qint64 price);
  void PostManualLine();
  void PostLaborLine();
  void Expect(qint64 extension, qint64 price, bool taxed);
  void AddCharges();
  void CheckTotals();
  void CheckDiscounts();
  void CheckPage();
  void CheckStores();

 private Q_SLOTS:
  void allOfItAgreesToTheCent();
};

void Money::FillCatalogue() {
  CatalogueLists& lists = m_desk->Lists;
  lists.Entries[0] = {{u"Survey"_s, 0, Oracle::Text(Upto(9999999))}};
  const qint64 item = Upto(99999) * 100;
  const qint64 custom = Upto(99999) * 100;
  lists.Entries[1] = {{u"Rope"_s, 0, Oracle::Text(item)}};
  lists.Entries[2] = {{u"Sail"_s, 0, Oracle::Text(custom)}};
  lists.ItemBreaks = {{}, {Currency::FromUnits(Upto(999999)), static_cast<qint32>(m_random.bounded(20))}};
  lists.CustomBreaks = {{}, {Currency::FromUnits(Upto(999999)), static_cast<qint32>(m_random.bounded(20))}};
  m_desk->Prices.Labor = {{u"Rigger"_s, u""_s, u""_s}, {Oracle::Text(Upto(20000) * 100), u"$0.00"_s, u"$0.00"_s}};
  LoadLaborRates(Invoice(), m_desk->Prices.Labor);
}

void Money::ChooseSettings() {
  TaxConfiguration& tax = m_desk->Tax;
  const auto any = [this] { return Rates.at(static_cast<size_t>(m_random.bounded(int(Rates.size())))); };
  m_expected = {
      .First = any(), .Second = any(), .Discount = any(), .Limit = Upto(300000) * 100, .Surcharge = Upto(9999)};
  tax.cboRate1 = m_expected.First.Text;
  tax.cboRate2 = m_expected.Second.Text;
  tax.ckApplyGraduated = Chance(30);
  tax.txtGradulated = {Oracle::Text(m_expected.Limit), Oracle::Typed(m_expected.Surcharge, 4)};
  tax.ckServices = Chance(50);
  tax.ckSalesItems = Chance(80);
  tax.ckCustom = Chance(50);
  tax.ckLabor = Chance(50);
  m_desk->Settings.cboDiscount = m_expected.Discount.Text;
  Invoice().ckExempt = Chance(10);
  Invoice().ck2ndTax = Chance(50);
  Invoice().ckApplyVolumeDiscount = Chance(50);
}

void Money::Expect(qint64 extension, qint64 price, bool taxed) {
  const int row = Invoice().LineCount;
  Same(u"price of line %1"_s.arg(row), Invoice().fgInvoice.Text(row, LineColumn::UnitPrice), Oracle::Text(price));
  Same(u"extension of line %1"_s.arg(row), Invoice().fgInvoice.Text(row, LineColumn::Extension),
       Oracle::Text(extension));
  Same(u"tax of line %1"_s.arg(row), Invoice().fgInvoice.Text(row, LineColumn::ApplyTax),
       taxed ? u"True"_s : u"False"_s);
  m_expected.SubTotal += extension;
  if (taxed && !Invoice().ckExempt) m_expected.Taxable += extension;
}

void Money::PostAnyLine() {
  switch (m_random.bounded(5)) {
    case LineKind::Service: {
      const qint64 price = Upto(9999999);
      SelectDescription(Invoice(), m_desk->Lists, 0, 0);
      TypePrice(Invoice(), 0, Oracle::Typed(price, 4));
      PostLine(m_desk->Entry(), LineKind::Service);
      return Expect(Oracle::DivideAway(price, 100) * 100, price, m_desk->Tax.ckServices);
    }
    case LineKind::Item:
      return PostFromList(LineKind::Item, m_desk->Lists.ItemBreaks[1], 0);
    case LineKind::Custom:
      return PostFromList(LineKind::Custom, m_desk->Lists.CustomBreaks[1], 0);
    case LineKind::Manual:
      return PostManualLine();
    default:
      return PostLaborLine();
  }
}

/// With a price from the list, to which the break may apply, or a typed one, to which none does.
void Money::PostFromList(int kind, const QuantityBreak& quantityBreak, qint64 price) {
  const int element = ElementOf(kind);
  const qint64 quantity = Upto(2500);
  SelectDescription(Invoice(), m_desk->Lists, element, 0);
  const bool typed = Chance(50);
  if (typed) {
    price = Upto(9999999);
    TypePrice(Invoice(), element, Oracle::Typed(price, 4));
  } else {
    const QString text = m_desk->Lists.Entries[static_cast<size_t>(element)][0].Price;
    price = QString(text).remove(u'$').remove(u',').remove(u'.').toLongLong() * 100;
  }
  (kind == LineKind::Item ? Invoice().Entry.txtUnits : Invoice().Entry.txtCUnits) = Oracle::Typed(quantity, 2);
  const bool breaks = !typed && Invoice().ckApplyVolumeDiscount && quantityBreak.Units != 0 &&
                      quantity >= qint64{quantityBreak.Units} * 100;
  if (breaks) price = quantityBreak.DiscountPrice.Units();
  PostLine(m_desk->Entry(), kind);
  Expect(Oracle::Extension(price, quantity), price,
         kind == LineKind::Item ? m_desk->Tax.ckSalesItems : m_desk->Tax.ckCustom);
}

/// Now and then an amount to give back.
void Money::PostManualLine() {
  const qint64 price = Upto(9999999) * (Chance(10) ? -1 : 1);
  const qint64 quantity = Upto(5000);
  Invoice().ckManualTax = Chance(50);
  Invoice().Entry.txtManual = {u"Knots"_s, Oracle::Typed(price, 4), Oracle::Typed(quantity, 2)};
  PostLine(m_desk->Entry(), LineKind::Manual);
  Expect(Oracle::Extension(price, quantity), price, Invoice().ckManualTax);
}

void Money::PostLaborLine() {
  const qint64 hours = Upto(4000);
  const qint64 rate = Invoice().LaborRate[0].Units();
  ClearLabor(Invoice());
  Invoice().Entry.txtHours[0] = Oracle::Typed(hours, 2);
  LeaveHours(Invoice(), 0, m_desk->Boxes);
  PostLabor(Invoice(), m_desk->Prices.Labor, m_desk->Tax);
  Expect(Oracle::Extension(rate, hours), rate, m_desk->Tax.ckLabor);
}

void Money::AddCharges() {
  if (Chance(60)) {
    m_expected.Ship = Upto(9999) * 100;
    Invoice().txtShip = Oracle::Typed(m_expected.Ship, 4);
    LeaveShip(Invoice(), m_desk->Boxes);
  }
  if (Chance(60)) {
    m_expected.Misc = Upto(9999) * 100;
    Invoice().txtMisc = Oracle::Typed(m_expected.Misc, 4);
    LeaveMisc(Invoice(), m_desk->Boxes);
  }
  Invoice().optDiscount = m_random.bounded(3);
  Invoice().ckDiscount = Chance(50);
  if (Invoice().optDiscount != DiscountOption::Flat) return;
  m_expected.Flat = Upto(99999) * 100;
  Invoice().txtFlatDiscount = Oracle::Typed(m_expected.Flat, 4);
  DeductDiscount(Invoice(), m_desk->Tax, m_desk->Boxes);
  const qint64 before =
      m_expected.SubTotal + Invoice().Tax1.Units() + Invoice().Tax2.Units() + m_expected.Ship + m_expected.Misc;
  if (m_expected.Flat >= before) m_expected.Flat = 0;
}

void Money::CheckTotals() {
  const WorkingInvoice& held = Invoice();
  Same(u"SubTotal"_s, held.SubTotal.Units(), m_expected.SubTotal);
  Same(u"TaxableAmount"_s, held.TaxableAmount.Units(), m_expected.Taxable);
  const bool none = m_expected.SubTotal <= 0 || m_expected.Taxable == 0;
  const bool graduated = m_desk->Tax.ckApplyGraduated;
  const bool above = graduated && m_expected.Taxable > m_expected.Limit;
  const qint64 first = none ? 0 : above ? m_expected.Second.Thousandths : m_expected.First.Thousandths;
  if (!Oracle::IsPercentage(held.Tax1.Units(), m_expected.Taxable, first)) m_wrong.append(u"Tax1"_s);
  if (graduated || none) {
    Same(u"Tax2"_s, held.Tax2.Units(), above && !none ? m_expected.Surcharge : qint64{0});
  } else if (!Oracle::IsPercentage(held.Tax2.Units(), m_expected.Taxable,
                                   held.ck2ndTax ? m_expected.Second.Thousandths : 0)) {
    m_wrong.append(u"Tax2"_s);
  }
  Same(u"GrandTotal"_s, held.GrandTotal.Units(),
       m_expected.SubTotal + held.Tax1.Units() + held.Tax2.Units() + m_expected.Ship + m_expected.Misc -
           m_expected.Flat);
  Same(u"txtTotal"_s, held.txtTotal, Oracle::Text(m_expected.SubTotal));
  Same(u"txtTax"_s, held.txtTax, Oracle::Text(held.Tax1.Units()));
  Same(u"txtTax2"_s, held.txtTax2, Oracle::Text(held.Tax2.Units()));
  Same(u"txtGrandTotal"_s, held.txtGrandTotal, Oracle::Text(held.GrandTotal.Units()));
}

void Money::CheckDiscounts() {
  const WorkingInvoice& held = Invoice();
  Same(u"FlatDiscount"_s, held.FlatDiscount.Units(), m_expected.Flat);
  const bool offered = held.optDiscount == DiscountOption::Calculated && held.ckDiscount;
  if (!Oracle::IsPercentage(held.CalcDiscount.Units(), m_expected.SubTotal,
                            offered ? m_expected.Discount.Thousandths : 0)) {
    m_wrong.append(u"CalcDiscount"_s);
  }
  if (offered) Same(u"txtDiscount"_s, held.txtDiscount, Oracle::Text(held.CalcDiscount.Units()));
  if (m_expected.Flat != 0) Same(u"txtDiscount"_s, held.txtDiscount, Oracle::Text(m_expected.Flat));
}

/// Every amount stands on a page of the job, the last of them at its end.
void Money::CheckPage() {
  const InvoicePage page = PageOf(Invoice(), true, Today);
  bool draft = false;
  m_paper->Routines.BeginPrintJob({});
  m_paper->Pages.PrintInvoice(page, draft);
  QStringList words;
  for (size_t i = 1; i <= m_paper->Paper.Jobs.back().Pages.size(); ++i) words += m_paper->Paper.Words(i);
  for (int row = 1; row <= Invoice().LineCount; ++row) {
    const QString extension = Invoice().fgInvoice.Text(row, LineColumn::Extension);
    if (!words.contains(extension)) m_wrong.append(u"the page lacks "_s + extension);
  }
  for (const qint64 amount : {m_expected.SubTotal, Invoice().Tax1.Units(), Invoice().GrandTotal.Units()}) {
    if (!words.contains(Oracle::Text(amount))) m_wrong.append(u"the page lacks "_s + Oracle::Text(amount));
  }
  m_paper->Paper.Jobs.clear();
}

void Money::CheckStores() {
  const WorkingInvoice& held = Invoice();
  SaveCompletedInvoice(Invoice(), m_desk->Disk, Today);
  WriteSalesJournal(held, m_desk->Disk, Today);
  CommonAccountRoutines accounts(m_desk->Disk, m_desk->Now);
  WriteReceivable(held, m_desk->Customer, accounts, Today);
  WriteTaxRecords(held, u"Tax"_s, u"Tax"_s, m_desk->Disk, Today);
  const auto box = [](const QString& text) { return text.isEmpty() ? u"$0.00"_s : text; };
  const QString last = u"\"%1\",\"%2\",\"%3\",\"%4\",\"%5\",\"%6\",\"%7\"\r\n"_s.arg(
      Oracle::Text(m_expected.SubTotal), Oracle::Text(held.Tax1.Units()), Oracle::Text(held.Tax2.Units()),
      Oracle::Text(held.GrandTotal.Units()), Oracle::Text(m_expected.Ship), Oracle::Text(m_expected.Misc),
      box(held.txtDiscount));
  if (!m_desk->Read(u"/CompletedInvoices/7.txt"_s).endsWith(last.toLatin1())) m_wrong.append(u"the image: "_s + last);
  QByteArray amounts;
  for (const qint64 amount : {m_expected.SubTotal, held.Tax1.Units() + held.Tax2.Units(), held.CalcDiscount.Units(),
                              held.GrandTotal.Units()}) {
    for (int byte = 0; byte < 8; ++byte) amounts += static_cast<char>(static_cast<quint64>(amount) >> (8 * byte));
  }
  if (m_desk->Read(u"/InvoiceSalesJournal.txt"_s).sliced(93) != amounts) m_wrong.append(u"the journal"_s);
  const QByteArray ledger = m_desk->Read(u"/KVActiveAccounts/1001.txt"_s).last(10);
  Same(u"the ledger"_s, QString::fromLatin1(ledger),
       Oracle::Plain(held.GrandTotal.Units()).left(10).leftJustified(10, u' '));
  QByteArray taxes;
  for (const qint64 amount : {held.Tax1.Units(), held.Tax2.Units()}) {
    if (amount > 0) taxes += Oracle::Plain(amount).left(10).leftJustified(10, u' ').toLatin1();
  }
  QByteArray stored;
  if (m_desk->Exists(u"/TaxRecords.txt"_s)) {
    const QByteArray file = m_desk->Read(u"/TaxRecords.txt"_s);
    for (qsizetype at = 0; at < file.size(); at += 75) stored += file.sliced(at + 65, 10);
  }
  if (stored != taxes) m_wrong.append(u"the tax records"_s);
}

void Money::allOfItAgreesToTheCent() {
  const int invoices = qEnvironmentVariableIntValue("KARVEX_INVOICES");
  m_paper.emplace();
  for (int i = 0; i < (invoices > 0 ? invoices : 300); ++i) {
    m_desk.emplace();
    m_desk->Device.SkipFlushes();
    m_desk->Customer = {.txtCustomer0 = u"1001"_s, .txtCustomer1 = u"Bay Farm"_s};
    Invoice().txtInvoiceNo = u"7"_s;
    Invoice().txtDiscount = ZeroCurrencyText();
    ChooseSettings();
    FillCatalogue();
    for (qint64 line = Upto(12); line > 0; --line) PostAnyLine();
    AddCharges();
    FinalizeInvoice(Invoice(), m_desk->Tax, m_desk->Settings);
    CheckTotals();
    CheckDiscounts();
    CheckPage();
    CheckStores();
    QVERIFY2(m_wrong.isEmpty(), qPrintable(u"invoice %1: %2"_s.arg(i).arg(m_wrong.join(u"; "_s))));
  }
}

QTEST_MAIN(Money)
#include "tst_money.moc"
