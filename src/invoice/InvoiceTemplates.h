/// Templates: saved sets of invoice lines, records of 70 bytes.
///
/// The names under which a template is saved, listed, counted and opened differ, and are meant as they are: a saved
/// one stands beside the folder whose files the list shows, and a listed one is opened under a folder that nothing
/// makes.
#pragma once

#include <QString>

class Clock;
class CommonDiskRoutines;
class Dialogs;
struct WorkingInvoice;

/// What the templates work on.
struct TemplateDesk {
  WorkingInvoice& Invoice;
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  const Clock& Today;
};

/// The folder that the list shows and deletes in.
QString TemplateFolder();

/// Clears the invoice and shows the lines of the listed file. Without a name, as nothing is selected, the user is told
/// so, nothing is cleared, and the answer is false. Throws RuntimeError 76 where the folder that it is opened under
/// isn't there, 13 or 6 for a price that isn't a number or is too large, 9 for more lines than the grid holds, and the
/// disk's errors; the invoice is empty then, and the error's advice says so.
bool LoadTemplate(const TemplateDesk& desk, const QString& fileName);

/// Asks for a name and writes the lines that have a quantity above 0. False where nothing was written: no name, one
/// that would leave the folder, or a template of that name that is to stay. Records behind the last line written stay
/// as they were.
bool SaveAsTemplate(const TemplateDesk& desk);

/// Asks, and deletes the listed file: false where it stays, or where none is named, which is told. Throws RuntimeError
/// 53 where it isn't there.
bool DeleteTemplate(const TemplateDesk& desk, const QString& fileName);
