/// The fonts of the paper and their metrics in twips, made once each.
#pragma once

#include <memory>
#include <QFont>
#include <QFontMetricsF>
#include <vector>

#include "desktop/PaperJob.h"

class QPdfWriter;

class PaperFonts {
 public:
  struct Face {
    QFont Font;
    QFontMetricsF Metrics;
  };

  PaperFonts();
  ~PaperFonts();
  PaperFonts(const PaperFonts&) = delete;
  PaperFonts& operator=(const PaperFonts&) = delete;

  /// Valid until the next call.
  const Face& Get(const PaperFont& font);

 private:
  struct Entry {
    PaperFont Key;
    Face Value;
  };
  std::unique_ptr<QPdfWriter> m_sheet;  ///< Never written to: the device whose metrics hold.
  std::vector<Entry> m_faces;
  std::size_t m_last = 0;
};
