/// The memo that prints on every invoice, /InvoiceMemo.txt.
#pragma once

#include <optional>
#include <QStringList>

class CommonDiskRoutines;

/// A line for each field of the file (a comma in it becomes a line break); nothing without a file, which is looked for
/// in /Backup too.
std::optional<QStringList> MemoLines(CommonDiskRoutines& disk);
/// The lines as the text of a box, each ended: a memo that is loaded and saved again grows by a line, which is meant.
QString MemoText(const QStringList& lines);
/// Makes the text the memo that prints, unless it is empty.
void SaveMemo(const QString& memo, CommonDiskRoutines& disk);
/// The file, with its copy in /Backup.
void KillMemo(CommonDiskRoutines& disk);
