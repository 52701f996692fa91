/// A surface that keeps a job's marks until the job ends: cursor, fonts, measures and pages. What becomes of the
/// finished job is the derived surface's affair, so that paper and tests have the same positions.
#pragma once

#include "desktop/PaperFonts.h"
#include "desktop/PaperJob.h"
#include "runtime/Printer.h"

class PaperSurface : public Printer {
 public:
  void SetFontName(const QString& name) override { m_font.Name = name; }
  void SetFontSize(int points) override { m_font.Size = points; }
  void SetFontBold(bool bold) override { m_font.Bold = bold; }
  void SetFontUnderline(bool underline) override { m_font.Underline = underline; }
  void SetForeColor(quint32 packedBgr) override { m_foreColor = packedBgr; }
  quint32 ForeColor() const override { return m_foreColor; }
  int FontSize() const override { return m_font.Size; }
  bool FontBold() const override { return m_font.Bold; }

  int Page() const override;
  float TextWidth(const QString& text) const override;
  float TextHeight(const QString& text) const override;

  void PrintLine(const QString& text) override;
  void PrintJoined(const QString& text) override;
  void Line(int x1, int y1, int x2, int y2) override { DrawRule({x1, y1, x2, y2, false, DrawWidth, m_foreColor}); }
  void Box(int x1, int y1, int x2, int y2) override { DrawRule({x1, y1, x2, y2, true, DrawWidth, m_foreColor}); }
  void PaintPicture(const QByteArray& picture, int x, int y, int width, int height) override;
  void NewPage() override;
  using Printer::EndDoc;
  void EndDoc(const Progress& progress) override;
  void KillDoc() override;

 protected:
  /// Sends the finished job, which has at least one page. Throws as `EndDoc`.
  virtual void SendJob(const PaperJob& job, const Progress& progress) = 0;
  PaperFonts& Fonts() const { return m_fonts; }

 private:
  PaperPage& CurrentPage();
  void PlaceText(const QString& text);
  void DrawRule(const PaperRule& rule);
  void StartAfresh();

  PaperFont m_font{QStringLiteral("Arial")};
  quint32 m_foreColor = 0;
  PaperJob m_job;
  mutable PaperFonts m_fonts;
};
