/// Puts a job on a device of Qt's: a printer or a PDF file, both letter sheets whose unit is the twip.
#pragma once

#include <QByteArray>

#include "desktop/PaperJob.h"
#include "runtime/Progress.h"

class PaperFonts;
class QPdfWriter;
class QPagedPaintDevice;
class QPrinter;

inline constexpr int TwipsPerPoint = 20;

/// Full letter pages, upright or lying, at 1440 units to the inch.
void PrepareSheet(QPdfWriter& device, bool portrait);
void PrepareSheet(QPrinter& device, bool portrait);

/// Draws all pages. Throws RuntimeError 482 where the device refuses, or, before anything is sent, where a picture
/// can't be read. Tells each page that is drawn; told to stop, RuntimeError 32755.
void DrawJob(const PaperJob& job, QPagedPaintDevice& device, PaperFonts& fonts, const Progress& progress = {});

/// The job as the content of a PDF file.
QByteArray PdfOf(const PaperJob& job, bool portrait, PaperFonts& fonts, const Progress& progress = {});

/// Sends the job to a printer of the system. Told to stop while the pages are drawn for the first time, RuntimeError
/// 32755, and the printer gets nothing; once they are sent, all of them come.
void PrintJob(const PaperJob& job, QPrinter& device, bool portrait, PaperFonts& fonts, const Progress& progress);
