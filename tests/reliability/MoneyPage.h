/// What stands where on the pages of a printed invoice.
#pragma once

#include <QStringList>

class RecordingPrinter;

/// The rows between the column headings and the summary, on all pages of the last job: each quantity, description,
/// date, price and total, by the column that the text stands in.
QList<QStringList> LinesOnPaper(const RecordingPrinter& paper);
/// The rows of the summary: the label and what stands to its right.
QStringList SummaryOnPaper(const RecordingPrinter& paper);
