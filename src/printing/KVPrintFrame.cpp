// The page frame: box and rules, title, logo and the sender's block.
#include <array>
#include <cmath>

#include "printing/KVPrint.h"
#include "setup/BusinessProfile.h"
#include "setup/PrintAppearance.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint16 FormLeft = 360;
constexpr qint16 FormRight = 11880;
constexpr qint16 TotalsLeft = 7920;
constexpr qint16 ItemsBottom = 12240;
constexpr qint16 FormBottom = 14400;
constexpr qint16 BodyTop = 5760;
constexpr qint16 LoweredBodyTop = 7200;
constexpr qint16 BandHeight = 360;
constexpr qint16 ColumnsBelowBodyTop = 720;
}  // namespace

void KVPrint::PrintPageFrame(const QString& title, float blockTop, const QString& invoiceNo) {
  m_printer.Width = 12240;
  m_hasNarrative = CanNameAFile(invoiceNo + u".txt"_s) && m_disk.FileExists(NarrativeName(invoiceNo));
  m_routines.SetPrintColor(false);
  DrawHeaderBox();
  DrawBandRules();
  DrawTotalsRules();
  DrawColumnRules();
  m_routines.SetPrintColor(true);
  PrintTitle(title);
  PrintLogo();
  PrintBusinessBlock(0.75F, blockTop, 12);
}

QString KVPrint::NarrativeName(const QString& invoiceNo) {
  return u"/KarvexInvoicer/Narratives/"_s + invoiceNo + u".txt"_s;
}

void KVPrint::DrawHeaderBox() {
  m_printer.DrawWidth = 6;  // For the rest of the job too.
  // Box and rules are black whatever the border colour: meant.
  m_printer.SetForeColor(FixedInk::Black);
  m_ruleX1 = FormLeft;
  m_ruleY1 = 504;
  m_ruleX2 = FormRight;
  m_ruleY2 = 5040;
  m_printer.Box(m_ruleX1, m_ruleY1, m_ruleX2, m_ruleY2);
}

void KVPrint::DrawHorizontalRule(qint16 y) {
  m_ruleY1 = y;
  m_ruleY2 = y;
  m_printer.Line(m_ruleX1, m_ruleY1, m_ruleX2, m_ruleY2);
}

void KVPrint::DrawBandRules() {
  m_ruleX1 = FormLeft;
  m_ruleX2 = FormRight;
  const qint16 top = m_hasNarrative ? LoweredBodyTop : BodyTop;
  for (int band = 0; band < 4; ++band) DrawHorizontalRule(static_cast<qint16>(top + band * BandHeight));
  for (const qint16 y : std::array<qint16, 3>{ItemsBottom, 13680, FormBottom}) DrawHorizontalRule(y);
}

void KVPrint::DrawTotalsRules() {
  m_ruleX1 = TotalsLeft;
  m_ruleX2 = FormRight;
  for (const qint16 y : std::array<qint16, 5>{12600, 12960, 13320, 13680, 14040}) DrawHorizontalRule(y);
}

void KVPrint::DrawColumnRules() {
  const qint16 top = m_hasNarrative ? LoweredBodyTop : BodyTop;
  const auto below = static_cast<qint16>(top + ColumnsBelowBodyTop);
  struct Column {
    qint16 x;
    qint16 from;
    qint16 to;
  };
  for (const Column& column :
       {Column{FormLeft, top, FormBottom}, Column{1800, below, FormBottom}, Column{TotalsLeft, top, FormBottom},
        Column{10080, below, FormBottom}, Column{FormRight, top, FormBottom}, Column{3240, top, ItemsBottom}}) {
    m_ruleX1 = column.x;
    m_ruleX2 = column.x;
    m_ruleY1 = column.from;
    m_ruleY2 = column.to;
    m_printer.Line(m_ruleX1, m_ruleY1, m_ruleX2, m_ruleY2);
  }
}

void KVPrint::PrintTitle(const QString& title) {
  m_routines.SetPrintFont(26, true, false);
  const bool isShort = title == u"Invoice" || title == u"Packing Slip";
  m_routines.PrintAt(isShort ? 5.5F : 5.0F, 0.5F);
  m_printer.PrintLine(title);
  m_routines.SetPrintFont(10, true, false);
}

void KVPrint::PrintLogo() {
  const PrintAppearance& look = m_settings.Appearance;
  if (look.Logo.isEmpty()) return;
  // Centred by its frame and drawn at its own size: meant.
  const double x = (m_printer.Width - look.LogoFrameWidth) / 2.0;
  const auto twips = [](double size) { return static_cast<int>(std::lrint(size)); };
  m_printer.PaintPicture(look.Logo, twips(x), 720, twips(static_cast<double>(look.LogoWidth)),
                         twips(static_cast<double>(look.LogoHeight)));
}

void KVPrint::PrintBusinessBlock(float x, float y, qint16 size) {
  const BusinessProfile& business = m_settings.Business;
  m_routines.PrintAt(x, y);
  m_routines.SetPrintFont(size, true, false);
  if (business.BusinessName.size() > 25) m_routines.SetPrintFont(10, true, false);
  m_printer.PrintLine(business.BusinessName);
  m_routines.SetPrintFont(10, false, false);
  PrintLineAt(x, business.BusinessAddress1);
  PrintIfAny(x, business.BusinessAddress2);
  PrintBusinessCity(x);
  if (!business.BusinessTelephone.isEmpty()) PrintLineAt(x, u"Telephone: "_s + business.BusinessTelephone);
  PrintIfAny(x, business.BusinessContact);
  PrintIfAny(x, business.BusinessTaxID);
  const QString webSite = u"/MyWebSite.txt"_s;
  if (m_disk.FileExists(webSite)) PrintLineAt(x, TextOfFile(webSite, &ListReader::ReadString));
}

void KVPrint::PrintBusinessCity(float x) {
  const BusinessProfile& business = m_settings.Business;
  if (!business.IsUsaStyle()) {
    PrintIfAny(x, business.BusinessCity);
    PrintIfAny(x, business.BusinessState);
    return;
  }
  QString line;
  if (!business.BusinessCity.isEmpty()) line = business.BusinessCity + u", "_s;
  if (!business.BusinessState.isEmpty()) line += business.BusinessState + u". "_s + business.BusinessPostal;
  PrintIfAny(x, line);
}

void KVPrint::PrintLineAt(float x, const QString& text) {
  m_routines.PrintAt(x, 0);
  m_printer.PrintLine(text);
}

void KVPrint::PrintIfAny(float x, const QString& text) {
  if (!text.isEmpty()) PrintLineAt(x, text);
}
