/// An invoice posted at random on a desk of its own, by the routines that the screen calls, and beside it what it must
/// come to.
#pragma once

#include <optional>
#include <QRandomGenerator>

#include "reliability/MoneyInvoice.h"
#include "support/InvoiceFixture.h"

class RandomInvoice {
 public:
  struct Rate {
    QString Text;  ///< As it stands in the box.
    qint64 Thousandths;
  };
  /// What Setup says for the invoice in hand.
  struct Settings {
    Rate First, Second, Discount;
    qint64 Limit = 0;
    qint64 Surcharge = 0;
  };

  /// A new one, with lines, charges and discount, ready for Finalize. All but taxes, discount offered and grand total
  /// is expected then. The sequence of invoices is the same in each run.
  void Compose();

  WorkingInvoice& Invoice() { return Desk->Invoice; }

  std::optional<InvoiceFixture> Desk;
  Settings Setup;
  Oracle::Invoice Expected;

 private:
  bool Chance(int percent) { return m_random.bounded(100) < percent; }
  qint64 Upto(int most) { return m_random.bounded(most) + 1; }
  void Begin();
  void ChooseSettings();
  void FillCatalogue();
  void PostAnyLine();
  void PostFromList(int kind, const QuantityBreak& quantityBreak);
  void PostManualLine();
  void PostLaborLine();
  void Expect(const Oracle::Line& line);
  void AddCharges();
  void AddDiscount();

  QRandomGenerator m_random{20260307};
  qint64 m_laborRate = 0;
};
