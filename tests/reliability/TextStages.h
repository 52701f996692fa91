/// The stages of the text sweep: every place of the program where something can be typed.
#pragma once

#include "reliability/TextSweep.h"

namespace TextSweep {

QList<Stage> StagesOfSetup();
QList<Stage> StagesOfCatalogue();
QList<Stage> StagesOfCustomers();
QList<Stage> StagesOfRecords();
QList<Stage> StagesOfLines();     ///< The invoice that is being made.
QList<Stage> StagesOfPrinting();  ///< The invoice that is being finished.

/// Boxes that nobody can type into, and why.
QMap<QString, QString> NeverOpen();

/// A completed invoice, of a day that no purge comes to.
void StockCompleted(const TemporaryTree& tree);
/// From the main menu to the customer screen, and the button there.
void OpenCustomersAnd(const QString& button);
/// "txtAux_0", "txtAux_1" ...
QStringList Numbered(const QString& name, int first, int last);

}  // namespace TextSweep
