/// The printed invoice: a fixed letter form drawn from nothing, on plain paper or on perforated paper whose top part is
/// torn off as a remittance slip. Its frame also carries packing slips, blank invoices and the sample.
///
/// One object per Program; a job runs to its end before another begins. Every routine throws what the surface or a
/// file throws; optional files that are absent omit their output.
#pragma once

#include <QString>

#include "printing/InvoicePage.h"
#include "printing/PrinterRoutines.h"

class Clock;
class CommonDiskRoutines;
class Dialogs;
class ListReader;
class Printer;
struct BusinessProfile;
struct PrintAppearance;
struct TaxConfiguration;

class KVPrint {
 public:
  /// The settings that the pages read live.
  struct Settings {
    const BusinessProfile& Business;
    const PrintAppearance& Appearance;
    const TaxConfiguration& Tax;
  };

  KVPrint(PrinterRoutines& routines, CommonDiskRoutines& disk, Dialogs& dialogs, const Clock& clock,
          const Settings& settings);

  // Whole jobs, from the first mark to `EndDoc`. The caller chooses and sets up the printer before
  // (`PrinterRoutines::BeginPrintJob`); a draft and the sample skip that. An error drops what was drawn and is thrown
  // on.

  /// The live invoice. A draft has its own title on the first page and no totals. `draft` is cleared when the page is
  /// complete, before it is sent.
  void PrintInvoice(const InvoicePage& page, bool& draft);
  /// A stored invoice once more: never a draft, no detach line, the ship-to block whenever it holds an address.
  void PrintReprint(const InvoicePage& page);
  /// The frame alone, with the invoice number 12345.
  void PrintSample();

  // The parts of the page, in the order in which a page uses them.

  /// The form with title, logo and business block. Looks for the narrative of `invoiceNo`, which lowers the body.
  void PrintPageFrame(const QString& title, float blockTop, const QString& invoiceNo);
  /// The sender's lines from (x, y) inches downward; a name longer than 25 characters is printed at 10 points.
  void PrintBusinessBlock(float x, float y, qint16 size);
  /// Date, number, account, page and the band rows; the memo and the column headings with them.
  void PrintInvoiceHeading(const PageHeading& heading);
  void PrintDetachLine();  ///< For perforated paper only.
  void PrintSoldTo(const PageAddress& address, bool usaAddress);
  /// Nothing at all, ship via included, where the address is empty.
  void PrintShipTo(const PageAddress& address, bool usaAddress, const PageShipping& shipping);
  void PrintLineItems(const InvoicePage& page);
  void PrintTotals(const PageTotals& totals);

  /// Whether the page in hand has a narrative; set afresh by each `PrintPageFrame`.
  bool HasNarrative() const { return m_hasNarrative; }

  /// Root-relative name of the file of an invoice's narrative.
  static QString NarrativeName(const QString& invoiceNo);

 private:
  void DrawHeaderBox();
  void DrawBandRules();
  void DrawTotalsRules();
  void DrawColumnRules();
  void DrawHorizontalRule(qint16 y);
  void PrintTitle(const QString& title);
  void PrintLogo();
  void PrintBusinessCity(float x);
  void PrintMemo();
  void PrintColumnHeadings();
  void PrintAddressBlock(float x, const PageAddress& address, bool usaAddress, const QString& afterCity);
  void PrintShipRow(const PageShipping& shipping);
  void PrintNarrative(const QString& invoiceNo);
  void StartItems();
  void PrintRow(const InvoicePage& page);
  void PrintContinuationPage(const InvoicePage& page);
  void PrintTerms();
  /// The text of a file that is there. One that can't be read fails the job, and its copy outlasts the end of the
  /// program.
  QString TextOfFile(const QString& name, QString (ListReader::*read)());
  void PrintLineAt(float x, const QString& text);  ///< On the next line, `x` inches from the left.
  void PrintIfAny(float x, const QString& text);
  /// A height in inches above the first item, lowered by a narrative.
  float BodyY(double inches) const;

  PrinterRoutines& m_routines;
  Printer& m_printer;
  CommonDiskRoutines& m_disk;
  Dialogs& m_dialogs;
  const Clock& m_clock;
  Settings m_settings;

  // The state of the job in hand, shared by its routines.
  qint16 m_ruleX1 = 0;
  qint16 m_ruleY1 = 0;
  qint16 m_ruleX2 = 0;
  qint16 m_ruleY2 = 0;
  qint16 m_currentLine = 0;
  float m_pageBottom = 0;
  bool m_hasNarrative = false;
};
