/// The primitives that every layout is made of: a position in inches, a font, a colour, a wrapped text, and the ways
/// in which a text is aligned. One object per Program, on its one drawing surface.
#pragma once

#include <functional>
#include <QString>

#include "runtime/Printer.h"

class Dialogs;
struct CommonDialog;
struct PrintAppearance;

inline constexpr float TwipsPerInch = 1440.0F;

/// The printed highlights whose colour doesn't depend on the palette, as packed 0x00BBGGRR values.
namespace FixedInk {
inline constexpr quint32 Black = 0;
inline constexpr quint32 Blue = 0xFF0000;   ///< The memo, always.
inline constexpr quint32 Red = 0x0000FF;    ///< The total, with `ckColor`.
inline constexpr quint32 Green = 0x00FF00;  ///< The statement terms, with `ckColor`.
}  // namespace FixedInk

class PrinterRoutines {
 public:
  PrinterRoutines(Printer& printer, const PrintAppearance& appearance, CommonDialog& dialog);

  Printer& Surface() { return m_printer; }
  /// The last colour chosen by `SetPrintColor`; black when colour is off.
  quint32 InkColor() const { return m_inkColor; }

  /// The printer dialog, which forgets the file that the shared dialog found before. Throws RuntimeError 32755 when
  /// the user cancels.
  void ChoosePrinter();
  /// Letter paper in twips, the document font, black and plain; the font size stays. Any other text than "Portrait" is
  /// landscape.
  void SetupPrinter(const QString& orientation, bool colorValue);
  /// How every job with a dialog begins: `ChoosePrinter`, then `SetupPrinter` for portrait by `ckColor`. The dialog and
  /// the file bear `title`, which says what is printed.
  void BeginPrintJob(const QString& title);
  /// How a job without a dialog begins: the surface stays as it was last set up, and one that never was starts as
  /// after `SetupPrinter`.
  void BeginPrintJobWithoutDialog(const QString& title);

  /// Moves to (x, y) inches; a coordinate of 0 or below leaves that coordinate as it stands.
  void PrintAt(float x, float y);
  /// A size of 0 keeps the size.
  void SetPrintFont(qint16 size, bool bold, bool underline);
  /// True is the data colour, false the border colour; black for both unless `ckColor` is ticked.
  void SetPrintColor(bool dataColor);
  /// Prints `text` from (x, y) twips downward, wrapped between blanks to `width` less an allowance of 20 twips. The
  /// last word never moves to a line of its own, a first word that is too wide stands alone, and empty text is one
  /// blank line.
  void PrintWrapped(qint16 x, qint16 y, qint16 width, const QString& text);
  /// `PrintWrapped` from the cursor, which is rounded to whole twips by that.
  void PrintWrappedHere(qint16 width, const QString& text);

  /// The cursor's height in whole twips, as `PrintWrapped` takes it.
  qint16 WholeY() const;

  /// Joined prints, right-aligned to an edge or centred on a place in twips.
  void PrintJoinedRight(float edge, const QString& text);
  void PrintJoinedCentred(float centre, const QString& text);
  /// The same with the line ended.
  void PrintLineRight(float edge, const QString& text);
  void PrintLineCentred(float centre, const QString& text);

  /// Runs one job under the trap of the print routines: a cancelled dialog ends it silently, any other error with the
  /// box "A Print Error has occurred"; nothing of it stays on the surface. Answers whether it ran to its end.
  bool RunPrintJob(Dialogs& dialogs, const std::function<void()>& job);
  /// A job of `count` rows from the printer dialog on, called `title`: `putRows` puts them on their pages and tells
  /// that, then the pages are drawn.
  void PrintRows(const QString& title, qint64 count, const Progress& progress,
                 const std::function<void(const Progress& rows)>& putRows);
  /// A step of a job of many rows. Where `progress` says to stop, RuntimeError 32755 ends the job silently.
  static void TellStep(const Progress& progress, qint64 done, qint64 total);
  /// Runs the drawing of a job; what an error leaves on the surface is dropped, and the error goes on to the caller.
  void DrawJob(const std::function<void()>& draw);

 private:
  Printer& m_printer;
  const PrintAppearance& m_appearance;
  CommonDialog& m_dialog;
  quint32 m_inkColor = FixedInk::Black;
  bool m_setUp = false;
};
