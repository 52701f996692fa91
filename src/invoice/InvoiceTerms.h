/// Payment terms and the kind of discount, which the program keeps in step with each other: picking terms sets the
/// discount, and picking a discount that the terms contradict resets the terms with a message.
#pragma once

#include <QString>
#include <QStringList>

class CommonDiskRoutines;
class Dialogs;
struct InvoicerSettings;
struct WorkingInvoice;

/// The eleven entries of `cboTerms`.
QStringList TermsList();

/// What both dialogues work on.
struct TermsDesk {
  WorkingInvoice& Invoice;
  InvoicerSettings& Settings;
  Dialogs& Boxes;
};

/// The screen starts with 2.0 per cent in 10 days; the settings file, loaded afterwards, has the last word.
void LoadInvoiceLists(InvoicerSettings& settings);

/// Refills the list, which deselects.
void FillTermsList(WorkingInvoice& invoice);
/// The default terms: the entry that equals the saved line is picked; a line that the list lacks is shown and nothing
/// else happens. Without a file the first entry is picked. An empty file throws RuntimeError 62.
void LoadDefaultTerms(const TermsDesk& desk, CommonDiskRoutines& disk);
/// `FillTermsList`, `LoadDefaultTerms`.
void LoadTerms(const TermsDesk& desk, CommonDiskRoutines& disk);
/// "Save as Invoice Default Terms".
void SaveDefaultTerms(const WorkingInvoice& invoice, CommonDiskRoutines& disk);

/// Selects an entry of `cboTerms`, by the user's hand or by code, and runs its click: the terms' discount setting.
void SelectTerms(const TermsDesk& desk, int index);
/// Terms typed by hand, which are no entry.
void TypeTerms(WorkingInvoice& invoice, const QString& text);

/// Selects an element of `optDiscount` and runs its dialogue; nothing happens for the one that is selected already.
void SelectDiscountOption(const TermsDesk& desk, int option);
/// The user ticked or unticked `ckDiscount`: unticked, percentage and days go to the first entries of their lists.
void ClickDiscountCheck(const TermsDesk& desk, bool ticked);
