/// The drawing surface of every print job: a letter portrait sheet addressed in twips (1440 to the inch), origin at
/// the top left. The cursor (`CurrentX`, `CurrentY`) is a field of the surface.
#pragma once

#include <QByteArray>
#include <QString>

#include "runtime/Progress.h"

class Printer {
 public:
  virtual ~Printer() = default;

  /// The printer dialog. Throws RuntimeError 32755 when the user cancels, 482 when there is nothing to print on.
  virtual void ShowPrinter() = 0;

  /// What is printed: the dialog, the queue and the file tell it. Empty, the program's own name stands there.
  QString Title;
  int ColorMode = 2;    ///< 2 colour, 1 monochrome: a value that the device ignores.
  int PaperSize = 1;    ///< 1 is letter.
  int Orientation = 1;  ///< 1 portrait, 2 landscape.
  int ScaleMode = 1;    ///< 1 is twips.
  float CurrentX = 0;
  float CurrentY = 0;
  int DrawWidth = 1;  ///< In twips.

  virtual void SetFontName(const QString& name) = 0;
  virtual void SetFontSize(int points) = 0;
  virtual void SetFontBold(bool bold) = 0;
  virtual void SetFontUnderline(bool underline) = 0;
  virtual void SetForeColor(quint32 packedBgr) = 0;
  virtual quint32 ForeColor() const = 0;
  virtual int FontSize() const = 0;
  virtual bool FontBold() const = 0;

  int Width = 12240;
  int Height = 15840;
  virtual int Page() const = 0;  ///< From 1; the first page begins with the first output of a job.
  virtual float TextWidth(const QString& text) const = 0;
  virtual float TextHeight(const QString& text) const = 0;  ///< Ascent plus descent, whatever the text.

  /// Prints at the cursor and moves it: one text line down and to the left edge.
  virtual void PrintLine(const QString& text) = 0;
  /// Prints at the cursor and leaves it behind the text on the same line (a joined print).
  virtual void PrintJoined(const QString& text) = 0;
  /// From one point to the other in the current colour and width; the cursor goes to the second.
  virtual void Line(int x1, int y1, int x2, int y2) = 0;
  /// The outline rectangle of the two corners, unfilled.
  virtual void Box(int x1, int y1, int x2, int y2) = 0;
  /// Scales a picture (the bytes of a picture file) into a rectangle; the cursor stays.
  virtual void PaintPicture(const QByteArray& picture, int x, int y, int width, int height) = 0;
  virtual void NewPage() = 0;  ///< Ends a page; font, weight and colour persist. The cursor goes to the top left.
  /// Finishes the job and sends it. Throws RuntimeError 482 if that fails. Tells `progress` each page that is drawn;
  /// told to stop while that can still be done, it leaves no file and nothing on paper, RuntimeError 32755.
  virtual void EndDoc(const Progress& progress) = 0;
  void EndDoc() { EndDoc(Progress()); }
  virtual void KillDoc() = 0;  ///< Drops a begun job, so that the next starts afresh. Never throws.
};
