/// What one print job puts on its pages, in twips: kept until the job ends, then drawn on whatever device is chosen.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>
#include <variant>
#include <vector>

struct PaperFont {
  QString Name;
  int Size = 10;  ///< In points.
  bool Bold = false;
  bool Underline = false;

  friend bool operator==(const PaperFont&, const PaperFont&) = default;
};

/// A text run. (X, Y) is the top left of its line.
struct PaperText {
  float X = 0;
  float Y = 0;
  QString Text;
  PaperFont Font;
  quint32 Color = 0;  ///< Packed 0x00BBGGRR, here and below.
};

/// A line from one point to the other, or the outline of the rectangle between them.
struct PaperRule {
  int X1 = 0;
  int Y1 = 0;
  int X2 = 0;
  int Y2 = 0;
  bool IsBox = false;
  int DrawWidth = 1;
  quint32 Color = 0;

  friend bool operator==(const PaperRule&, const PaperRule&) = default;
};

struct PaperPicture {
  QByteArray Picture;  ///< The bytes of a picture file.
  QRect Place;
};

using PaperMark = std::variant<PaperText, PaperRule, PaperPicture>;

/// The marks of one page, in the order in which they were made.
using PaperPage = std::vector<PaperMark>;

struct PaperJob {
  std::vector<PaperPage> Pages;  ///< None before the first mark or page end.
  QString Title = {};            ///< What it is called in a queue and in its file.
};
