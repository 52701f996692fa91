#include "desktop/PaperFonts.h"

#include <algorithm>
#include <QFontDatabase>
#include <QPdfWriter>

#include "desktop/PaperDevice.h"

using namespace Qt::StringLiterals;

namespace {
/// "Arial" is Liberation Sans, which has its metrics, where there is no Arial.
QString FamilyOf(const QString& name) {
  const bool replaced = name.compare(u"Arial", Qt::CaseInsensitive) == 0 && !QFontDatabase::hasFamily(name);
  return replaced ? u"Liberation Sans"_s : name;
}

QFont MakeFont(const PaperFont& font) {
  QFont made(FamilyOf(font.Name));
  made.setStyleHint(QFont::SansSerif);
  made.setPixelSize(font.Size * TwipsPerPoint);
  made.setBold(font.Bold);
  made.setUnderline(font.Underline);
  made.setKerning(false);  // A text is as wide as its characters.
  made.setHintingPreference(QFont::PreferNoHinting);
  return made;
}
}  // namespace

PaperFonts::PaperFonts() = default;
PaperFonts::~PaperFonts() = default;

const PaperFonts::Face& PaperFonts::Get(const PaperFont& font) {
  if (m_last < m_faces.size() && m_faces[m_last].Key == font) return m_faces[m_last].Value;
  const auto found =
      std::find_if(m_faces.begin(), m_faces.end(), [&](const Entry& entry) { return entry.Key == font; });
  m_last = static_cast<std::size_t>(found - m_faces.begin());
  if (found == m_faces.end()) {
    if (!m_sheet) {
      m_sheet = std::make_unique<QPdfWriter>(QString());
      PrepareSheet(*m_sheet, true);
    }
    const QFont made = MakeFont(font);
    m_faces.push_back({font, {made, QFontMetricsF(made, m_sheet.get())}});
  }
  return m_faces[m_last].Value;
}
