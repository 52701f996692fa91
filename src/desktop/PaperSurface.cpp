#include "desktop/PaperSurface.h"

#include <algorithm>
#include <utility>

int PaperSurface::Page() const {
  return std::max(1, static_cast<int>(m_job.Pages.size()));
}

float PaperSurface::TextWidth(const QString& text) const {
  return static_cast<float>(m_fonts.Get(m_font).Metrics.horizontalAdvance(text));
}

float PaperSurface::TextHeight(const QString& /*text*/) const {
  const QFontMetricsF& metrics = m_fonts.Get(m_font).Metrics;
  return static_cast<float>(metrics.ascent() + metrics.descent());
}

void PaperSurface::PrintLine(const QString& text) {
  PlaceText(text);
  CurrentX = 0;
  CurrentY += TextHeight(text);
}

void PaperSurface::PrintJoined(const QString& text) {
  PlaceText(text);
  CurrentX += TextWidth(text);
}

void PaperSurface::PaintPicture(const QByteArray& picture, int x, int y, int width, int height) {
  CurrentPage().emplace_back(PaperPicture{picture, QRect(x, y, width, height)});
}

void PaperSurface::NewPage() {
  CurrentPage();
  m_job.Pages.emplace_back();
  CurrentX = 0;
  CurrentY = 0;
}

void PaperSurface::EndDoc(const Progress& progress) {
  PaperJob job = std::exchange(m_job, {});
  job.Title = Title;
  StartAfresh();
  if (!job.Pages.empty()) SendJob(job, progress);
}

void PaperSurface::KillDoc() {
  StartAfresh();
}

PaperPage& PaperSurface::CurrentPage() {
  if (m_job.Pages.empty()) m_job.Pages.emplace_back();
  return m_job.Pages.back();
}

void PaperSurface::PlaceText(const QString& text) {
  PaperPage& page = CurrentPage();
  if (!text.isEmpty()) page.emplace_back(PaperText{CurrentX, CurrentY, text, m_font, m_foreColor});
}

void PaperSurface::DrawRule(const PaperRule& rule) {
  CurrentPage().emplace_back(rule);
  CurrentX = static_cast<float>(rule.X2);
  CurrentY = static_cast<float>(rule.Y2);
}

void PaperSurface::StartAfresh() {
  m_job = {};
  CurrentX = 0;
  CurrentY = 0;
}
