/// The head of an invoice beside number, terms and memo: customer, ship-to, reference, dates and carrier.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

class Clock;
class CommonDiskRoutines;
class Dialogs;
struct SoldTo;
struct WorkingInvoice;

/// Takes over the customer whom a customer route hands in.
void TakeSoldTo(WorkingInvoice& invoice, const SoldTo& customer);
/// `ClearCustomer`, then account and sold-to block from what was handed in; the focus goes to the attention line.
void ShowCustomer(WorkingInvoice& invoice);
/// Empties the account labels, both sold-to blocks, and the ship-to block with its attention line.
void ClearCustomer(WorkingInvoice& invoice);
/// "Same as Sold to"; the focus goes to the first ship-to box.
void CopySoldToIntoShipTo(WorkingInvoice& invoice);
/// "Clear Ship To": the six boxes of the block.
void ClearShipTo(WorkingInvoice& invoice);

/// An empty reference becomes "Prepared " and today's date: on Continue, and when the box is left.
void FillReference(WorkingInvoice& invoice, const Clock& clock);

/// The service date was picked. The next service bears it. Into the current row it is written if the row's Quantity is
/// numeric; a date later than today only beeps and leaves the row alone.
void PickServiceDate(WorkingInvoice& invoice, QDate date, const Clock& clock, Dialogs& dialogs);
/// `cmdResetDate`: blanks the Service Date of the current row, if there is one.
void ResetServiceDate(WorkingInvoice& invoice);

/// The screen starts a new invoice (number, today's dates, everything cleared) or adds to a recalled one (its date, its
/// number locked). The screen sets captions and the template frame by itself.
void SetInvoiceMode(WorkingInvoice& invoice, bool recalled, CommonDiskRoutines& disk, const Clock& clock);

/// The ten carriers of `cboShipping`; the last is "None".
QStringList CarrierList();
/// Shows the default carrier, or "None" where none was saved. An empty file throws RuntimeError 62.
void LoadShipVia(WorkingInvoice& invoice, CommonDiskRoutines& disk);
/// "Save as Shipping Default Carrier".
void SaveShipVia(const WorkingInvoice& invoice, CommonDiskRoutines& disk);

/// The entries of `cboPrepaid`, `cboDiscount` and `cboDays`.
QStringList PrepaidList();
QStringList DiscountList();
QStringList DaysList();
