// Random invoices, posted, totalled, printed and recorded: each cell of the grid, the held amounts, each cell and each
// amount of the page, and the bytes of every file that the commit writes are what exact whole-number arithmetic says.
// KARVEX_INVOICES sets how many; the default keeps the suite quick.
#include <QtTest>

#include "invoice/Commit.h"
#include "invoice/InvoiceOnPaper.h"
#include "invoice/Totals.h"
#include "reliability/MemoryDisk.h"
#include "reliability/MoneyOracle.h"
#include "reliability/MoneyPage.h"
#include "reliability/RandomInvoice.h"
#include "support/PageFixture.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

}  // namespace

class Money : public QObject {
  Q_OBJECT

  RandomInvoice m_random;
  Oracle::Invoice& m_expected = m_random.Expected;
  std::optional<PageFixture> m_paper;
  QStringList m_wrong;

  WorkingInvoice& Invoice() { return m_random.Invoice(); }
  InvoiceFixture& Desk() { return *m_random.Desk; }
  void Same(const QString& what, const auto& actual, const auto& expected) {
    if (actual == expected) return;
    m_wrong.append(what + u": "_s + u"%1"_s.arg(actual) + u", not "_s + u"%1"_s.arg(expected));
  }

  void CheckGrid();
  void CheckTotals();
  void CheckDiscounts();
  void CheckBoxes();
  void Commit();
  void CheckPage();
  void CheckStores();

 private Q_SLOTS:
  void allOfItAgreesToTheCent();
};

void Money::CheckGrid() {
  Same(u"the count of lines"_s, qsizetype{Invoice().LineCount}, m_expected.Lines.size());
  for (int i = 0; i < m_expected.Lines.size(); ++i) {
    Same(u"line %1 of the grid"_s.arg(i + 1), Desk().Row(i + 1).join(u'|'), m_expected.Lines[i].Cells().join(u'|'));
  }
  Same(u"the row behind the last line"_s, Desk().Row(Invoice().LineCount + 1).join(u'|'), u"|||||"_s);
}

/// What of a tax or a discount is an exact half of a ten-thousandth may be rounded either way: from there on the held
/// value is what the boxes, the page and the files must say.
void Money::CheckTotals() {
  const WorkingInvoice& held = Invoice();
  Oracle::Invoice& expected = m_expected;
  Same(u"SubTotal"_s, held.SubTotal.Units(), expected.SubTotal);
  Same(u"TaxableAmount"_s, held.TaxableAmount.Units(), expected.Taxable);
  const bool none = expected.SubTotal <= 0 || expected.Taxable == 0;
  const bool graduated = Desk().Tax.ckApplyGraduated;
  const bool above = graduated && expected.Taxable > m_random.Setup.Limit;
  const qint64 first = none ? 0 : above ? m_random.Setup.Second.Thousandths : m_random.Setup.First.Thousandths;
  expected.Tax1 = held.Tax1.Units();
  expected.Tax2 = held.Tax2.Units();
  if (!Oracle::IsPercentage(expected.Tax1, expected.Taxable, first)) m_wrong.append(u"Tax1"_s);
  if (graduated || none) {
    Same(u"Tax2"_s, expected.Tax2, above && !none ? m_random.Setup.Surcharge : qint64{0});
  } else if (!Oracle::IsPercentage(expected.Tax2, expected.Taxable,
                                   held.ck2ndTax ? m_random.Setup.Second.Thousandths : 0)) {
    m_wrong.append(u"Tax2"_s);
  }
  Same(u"ShipCharge"_s, held.ShipCharge.Units(), expected.Ship);
  Same(u"MiscCharge"_s, held.MiscCharge.Units(), expected.Misc);
  expected.GrandTotal =
      expected.SubTotal + expected.Tax1 + expected.Tax2 + expected.Ship + expected.Misc - expected.Flat;
  Same(u"GrandTotal"_s, held.GrandTotal.Units(), expected.GrandTotal);
}

void Money::CheckDiscounts() {
  const WorkingInvoice& held = Invoice();
  Same(u"FlatDiscount"_s, held.FlatDiscount.Units(), m_expected.Flat);
  const bool offered = held.optDiscount == DiscountOption::Calculated && held.ckDiscount;
  m_expected.Offered = held.CalcDiscount.Units();
  if (!Oracle::IsPercentage(m_expected.Offered, m_expected.SubTotal,
                            offered ? m_random.Setup.Discount.Thousandths : 0)) {
    m_wrong.append(u"CalcDiscount"_s);
  }
}

void Money::CheckBoxes() {
  const WorkingInvoice& held = Invoice();
  Same(u"txtTotal"_s, held.txtTotal, Oracle::Text(m_expected.SubTotal));
  Same(u"txtTax"_s, held.txtTax, Oracle::Text(m_expected.Tax1));
  Same(u"txtTax2"_s, held.txtTax2, Oracle::Text(m_expected.Tax2));
  Same(u"txtShip"_s, held.txtShip, Oracle::Text(m_expected.Ship));
  Same(u"txtMisc"_s, held.txtMisc, Oracle::Text(m_expected.Misc));
  Same(u"txtDiscount"_s, held.txtDiscount, m_expected.Discount());
  Same(u"txtFlatDiscount"_s, held.txtFlatDiscount, Oracle::Text(m_expected.Flat));
  Same(u"txtGrandTotal"_s, held.txtGrandTotal, Oracle::Text(m_expected.GrandTotal));
  if (m_expected.Prepaid) Same(u"txtPrepaid"_s, held.txtPrepaid, Oracle::Text(m_expected.GrandTotal));
}

/// Prints, and writes every store.
void Money::Commit() {
  Invoice().cboPrepaid = u"Cash"_s;
  Desk().Boxes.Answers = {true};
  PrintAndCommit(
      {Desk().Invoice, Desk().Disk, Desk().Boxes, Desk().Now, Desk().Tax, Desk().Customer, Desk().SalesItems},
      {.BeginPrintJob = [this] { m_paper->Routines.BeginPrintJob({}); },
       .PrintInvoice =
           [this] {
             bool draft = false;
             m_paper->Pages.PrintInvoice(PageOf(Invoice(), true, Desk().Now.Today()), draft);
           },
       .ReloadItems = [] {},
       .SelectedPartial = [] { return QString(); },
       .ReloadPartials = [] {},
       .PrintPackingSlip = [] {},
       .ToCreationView = [] {},
       .Leave = [] {}});
}

/// Each line's cells in their columns, and each amount of the summary beside its label.
void Money::CheckPage() {
  const QList<QStringList> lines = LinesOnPaper(m_paper->Paper);
  Same(u"the count of lines on the page"_s, lines.size(), m_expected.Lines.size());
  for (qsizetype i = 0; i < std::min(lines.size(), m_expected.Lines.size()); ++i) {
    Same(u"line %1 of the page"_s.arg(i + 1), lines[i].join(u'|'), m_expected.Lines[i].Printed().join(u'|'));
  }
  Same(u"the page's summary"_s, SummaryOnPaper(m_paper->Paper).join(u'|'), m_expected.Summary().join(u'|'));
  m_paper->Paper.Jobs.clear();
}

void Money::CheckStores() {
  const QMap<QString, QByteArray> expected = Oracle::StoresAfter(m_expected);
  const QMap<QString, QByteArray> actual = Desk().Tree();
  Same(u"the files"_s, actual.keys().join(u' '), expected.keys().join(u' '));
  for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
    const auto shown = [](const QByteArray& bytes) { return QString::fromLatin1(bytes.toPercentEncoding(" $,.()\"")); };
    Same(it.key(), shown(actual.value(it.key())), shown(it.value()));
  }
}

void Money::allOfItAgreesToTheCent() {
  const int invoices = qEnvironmentVariableIntValue("KARVEX_INVOICES");
  m_paper.emplace();
  m_paper->Tax.cboTaxHeading1 = Oracle::TaxHeadings[0];
  m_paper->Tax.cboTaxHeading2 = Oracle::TaxHeadings[1];
  for (int i = 0; i < (invoices > 0 ? invoices : 300); ++i) {
    m_random.Compose();
    CheckGrid();
    FinalizeInvoice(Invoice(), Desk().Tax, Desk().Settings);
    CheckTotals();
    CheckDiscounts();
    CheckBoxes();
    Commit();
    CheckPage();
    CheckStores();
    QVERIFY2(m_wrong.isEmpty(), qPrintable(u"invoice %1: %2"_s.arg(i).arg(m_wrong.join(u"; "_s))));
  }
}

QTEST_MAIN(Money)
#include "tst_money.moc"
