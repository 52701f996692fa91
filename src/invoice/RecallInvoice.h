/// The recall of a partial invoice: its image becomes the invoice in the making again.
#pragma once

#include <QString>

class Clock;
class CommonDiskRoutines;
struct WorkingInvoice;

/// Reads the partial image of `invoiceNo` into the invoice, which counts as recalled from then on and bears the date
/// that the partial list shows, `lastModified`. Charges and discount aren't in the image and show $0.00; nor is the
/// memo, which is the default one. The file stays.
///
/// A number that can't name a file, a file that isn't there, and an image or a date that can't be read (62 where the
/// file ends too early, 13 where the count of lines or the date isn't one, 9 for a count that no invoice holds) throw
/// RuntimeErrors of the event; the invoice is then as it was.
void LoadIncomplete(WorkingInvoice& invoice, CommonDiskRoutines& disk, const Clock& clock, const QString& invoiceNo,
                    const QString& lastModified);
