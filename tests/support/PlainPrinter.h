/// A surface without fonts: every character is 120 twips wide, every line 240 high.
#pragma once

#include "runtime/Printer.h"

class PlainPrinter final : public Printer {
 public:
  void ShowPrinter() override {}
  void SetFontName(const QString&) override {}
  void SetFontSize(int points) override { m_size = points; }
  void SetFontBold(bool bold) override { m_bold = bold; }
  void SetFontUnderline(bool) override {}
  void SetForeColor(quint32 color) override { m_color = color; }
  quint32 ForeColor() const override { return m_color; }
  int FontSize() const override { return m_size; }
  bool FontBold() const override { return m_bold; }
  int Page() const override { return m_page; }
  float TextWidth(const QString& text) const override { return 120.0F * static_cast<float>(text.size()); }
  float TextHeight(const QString&) const override { return 240; }
  void PrintLine(const QString&) override {
    ++m_lines;
    CurrentX = 0;
    CurrentY += 240;
  }
  void PrintJoined(const QString& text) override { CurrentX += TextWidth(text); }
  void Line(int, int, int x2, int y2) override {
    CurrentX = static_cast<float>(x2);
    CurrentY = static_cast<float>(y2);
  }
  void Box(int x1, int y1, int x2, int y2) override { Line(x1, y1, x2, y2); }
  void PaintPicture(const QByteArray&, int, int, int, int) override {}
  void NewPage() override {
    ++m_page;
    CurrentX = CurrentY = 0;
  }
  using Printer::EndDoc;
  void EndDoc(const Progress&) override {}
  void KillDoc() override {}
  qsizetype Lines() const { return m_lines; }

 private:
  int m_size = 10;
  bool m_bold = false;
  qsizetype m_lines = 0;
  int m_page = 1;
  quint32 m_color = 0;
};
