// The upper half of the page: the invoice heading, the memo, the column headings and the two addresses.
#include "printing/KVPrint.h"
#include "printing/MemoFile.h"
#include "runtime/Clock.h"
#include "runtime/Dates.h"
#include "runtime/RuntimeError.h"
#include "setup/PrintAppearance.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {
constexpr float HeadingX = 5.0F;
constexpr float SoldToX = 0.75F;
constexpr float ShipToX = 5.0F;
constexpr float LastMemoY = 13824;

/// A stored ship date that isn't one counts as past.
bool IsLaterThan(QDate today, const QString& dateText) {
  try {
    return ParseShortDate(dateText) > today;
  } catch (const RuntimeError&) {
    return false;
  }
}
}  // namespace

void KVPrint::PrintInvoiceHeading(const PageHeading& heading) {
  m_routines.SetPrintColor(true);
  m_routines.SetPrintFont(10, true, false);
  m_routines.PrintAt(HeadingX, 0.9F);
  m_printer.PrintLine(u"Date "_s + heading.Date);
  PrintLineAt(HeadingX, u"INVOICE NO: "_s + heading.InvoiceNo);
  if (m_settings.Appearance.optReturn) PrintLineAt(HeadingX, u"Amount Enclosed              _______________"_s);
  PrintLineAt(HeadingX, u"Acct: "_s + heading.Acct);
  PrintLineAt(HeadingX, u"Page "_s + QString::number(m_printer.Page()));
  m_routines.PrintAt(0.9F, BodyY(4.05));
  m_printer.PrintLine(u"Reference"_s);
  m_routines.PrintAt(0, BodyY(4.35));
  m_routines.PrintLineCentred(1872, heading.Reference);
  PrintMemo();
  PrintColumnHeadings();
}

void KVPrint::PrintMemo() {
  if (const auto memo = MemoLines(m_disk)) {
    m_printer.SetForeColor(FixedInk::Blue);
    m_routines.PrintAt(1.3F, 8.6F);
    for (const QString& line : *memo) {
      // What doesn't fit is dropped, and the colour stays blue until the next is chosen: meant.
      if (m_printer.CurrentY > LastMemoY) return;
      m_routines.PrintWrapped(1872, m_routines.WholeY(), 5904, line);
    }
    m_disk.CloseAllFiles();
  }
  m_printer.SetForeColor(FixedInk::Black);
}

void KVPrint::PrintColumnHeadings() {
  m_routines.SetPrintColor(true);
  m_routines.PrintAt(0.6F, BodyY(4.55));
  m_printer.PrintJoined(u"QTY"_s);
  m_routines.PrintAt(1.5F, 0);
  m_printer.PrintJoined(u"DATE"_s);
  m_routines.PrintAt(3.1F, 0);
  m_printer.PrintJoined(u"DESCRIPTION"_s);
  m_routines.PrintAt(6.1F, 0);
  m_printer.PrintJoined(u"PRICE"_s);
  m_routines.PrintAt(7.5F, 0);
  m_printer.PrintLine(u"TOTAL"_s);
}

void KVPrint::PrintDetachLine() {
  m_routines.SetPrintFont(6, true, false);
  m_routines.PrintAt(3.0F, 3.6F);
  m_printer.PrintLine(u"Detach Here and Return Top Section"_s);
  m_routines.SetPrintFont(10, false, false);
}

void KVPrint::PrintSoldTo(const PageAddress& address, bool usaAddress) {
  m_routines.SetPrintColor(true);
  m_routines.PrintAt(SoldToX, 1.95F);
  m_printer.PrintLine(u"SOLD TO:"_s);
  PrintAddressBlock(SoldToX, address, usaAddress, u", "_s);
  m_printer.SetForeColor(FixedInk::Black);
}

void KVPrint::PrintShipTo(const PageAddress& address, bool usaAddress, const PageShipping& shipping) {
  if (address.IsEmpty()) return;
  m_routines.SetPrintColor(true);
  m_routines.PrintAt(ShipToX, 1.95F);
  m_printer.PrintLine(u"SHIPPED TO:"_s);
  // No blank behind this comma, unlike the sold-to line: meant.
  PrintAddressBlock(ShipToX, address, usaAddress, u","_s);
  if (shipping.ShipVia != u"None") PrintShipRow(shipping);
  m_printer.SetForeColor(FixedInk::Black);
}

void KVPrint::PrintAddressBlock(float x, const PageAddress& address, bool usaAddress, const QString& afterCity) {
  m_routines.PrintAt(x, 0);
  m_routines.PrintWrappedHere(2520, address.Name);
  PrintLineAt(x, address.Address1);
  PrintIfAny(x, address.Address2);
  if (usaAddress) {
    PrintLineAt(x, address.City + afterCity + address.State + u" "_s + address.Postal);
  } else {
    PrintLineAt(x, address.City);
    PrintLineAt(x, address.Postal);
  }
}

void KVPrint::PrintShipRow(const PageShipping& shipping) {
  const float y = BodyY(4.3);
  // The reference stands on the page a second time, above and left of the centred one: meant.
  m_routines.PrintAt(0.5F, y);
  m_printer.PrintLine(shipping.Reference);
  m_routines.PrintAt(2.8F, y);
  m_printer.PrintLine(shipping.ShipVia);
  const bool later = IsLaterThan(m_clock.Today(), shipping.ShipDate);
  m_routines.PrintAt(later ? 6.5F : 6.4F, y);
  m_printer.PrintLine((later ? u"Sheduled - "_s : u"Shipped On - "_s) + shipping.ShipDate);
}

float KVPrint::BodyY(double inches) const {
  return static_cast<float>(inches + (m_hasNarrative ? 1.0 : 0.0));
}
