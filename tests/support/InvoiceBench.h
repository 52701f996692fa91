/// The program at its invoice screen, with a small catalogue and a customer handed over.
#pragma once

#include "support/ProgramFixture.h"

class InvoiceBench : public ProgramFixture {
 public:
  /// Writes the catalogue: services, items in two categories, custom items and two labor rates.
  InvoiceBench();
  /// Starts the program and opens the invoice screen for the customer.
  void Open();
  /// The same, and Continue: the creation view.
  void OpenAtLines();

  /// The invoice screen, once it is open.
  const ScreenDriver& On() const { return *m_screen; }
  QString Cell(int row, int col) const;
  QStringList Row(int row) const;
  /// Posts a manual line through the screen.
  void PostManual(const QString& description, const QString& quantity, const QString& price);
  /// To the print-ready view, and Finalize.
  void Finalize();

  /// Account, then the six lines of the sold-to block and the telephone.
  QStringList Customer{QStringLiteral("1001"),          QStringLiteral("Acme Tools"),
                       QStringLiteral("1 Main Street"), QString(),
                       QStringLiteral("Springfield"),   QStringLiteral("IL"),
                       QStringLiteral("62701"),         QStringLiteral("555-0100")};

 private:
  std::unique_ptr<ScreenDriver> m_screen;
};
