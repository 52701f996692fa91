// Commas and quotes as a user types them, through saves, recalls and prints: what they split and cut, and that nothing
// else is lost by it.

#include "records/InvoicingDesk.h"
#include "support/CompletedImages.h"

using namespace Qt::StringLiterals;

namespace {

const QString PartialImage = u"/KarvexInvoicer/IncompleteInvoices/20260017.txt"_s;
const QStringList Hammers{u"2"_s, u"Hammer"_s, u"3/7/2026"_s, u"$12.00"_s, u"$24.00"_s, u"True"_s};

/// Saves two hammers with that reference and attention line.
bool SaveHammers(InvoicingDesk& desk, const QString& reference, const QString& attention) {
  if (!desk.Program.StartAtMenu()) return false;
  desk.BeginInvoice(reference, attention);
  desk.PostHammers(u"2"_s);
  desk.Save();
  return desk.Program.Tree.Exists(PartialImage);
}

/// From the setup view with that reference to the lines, shipping to the sold-to address: the page tells the carrier
/// then.
void ShipToThem(const QString& reference) {
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Click(u"cmdShipToAddress_0"_s);
  invoice.Click(u"ckShipto"_s);
  invoice.Fill(u"txtReference"_s, reference);
  invoice.Fill(u"txtShipto_6"_s, u"Ann"_s);
  invoice.Click(u"cmdInvoice_0"_s);
}

void Finish(InvoicingDesk& desk) {
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  if (invoice.IsVisible(u"cmdInvoice_0"_s)) invoice.Click(u"cmdInvoice_0"_s);
  invoice.Click(u"cmdPrint"_s);
  invoice.Click(u"cmdInvoice_9"_s);
  desk.Commit();
}

}  // namespace

class CommasAndQuotes : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aReferenceThatBeginsWithAQuoteEndsAtTheNext();
  void quotesInsideAReferenceStay();
  void aCommaInTheAttentionLineKeepsTheInvoiceFromBeingRead();
  void aCountBehindTheCommaIsTakenForTheLines();
  void aCommaKeepsACompletedInvoiceFromBeingShown_data();
  void aCommaKeepsACompletedInvoiceFromBeingShown();
  void aCarrierOrReferenceThatBeginsWithAQuoteIsShownAndReprintedUpToTheNext();
  void theOuterBlanksOfAReferenceAreOnTheFirstPrintAlone();
  void aMemoIsSavedAsTypedAndReadInParts();
  void aNarrativeIsPrintedAsTyped();
};

void CommasAndQuotes::aReferenceThatBeginsWithAQuoteEndsAtTheNext() {
  InvoicingDesk desk;
  QVERIFY(SaveHammers(desk, u"\"rush\" PO 5"_s, u"Ann"_s));
  QVERIFY(desk.Program.Tree.Bytes(PartialImage).contains("\r\n20260017\r\n1001\r\n\"rush\" PO 5\r\nAnn\r\n1\r\n"));
  desk.Recall();
  QCOMPARE(InvoicingDesk::Text(u"txtReference"_s), u"rush"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtShipto_6"_s), u"Ann"_s);
  QCOMPARE(InvoicingDesk::Line(1), Hammers);
  Finish(desk);
  const QByteArray image = desk.Program.Tree.Bytes(u"/CompletedInvoices/20260017.txt"_s);
  QVERIFY(image.contains("\r\n20260017\r\n1001\r\nrush\r\nAnn\r\n1\r\n2\r\nHammer\r\n"));
  const QStringList words = desk.Program.Paper.Words(1);
  QVERIFY(words.contains(u"rush"_s));
  QVERIFY(words.filter(u"PO 5"_s).isEmpty());
}

void CommasAndQuotes::quotesInsideAReferenceStay() {
  InvoicingDesk desk;
  QVERIFY(SaveHammers(desk, u"PO \"5\" rush"_s, u"Ann"_s));
  desk.Recall();
  QCOMPARE(InvoicingDesk::Text(u"txtReference"_s), u"PO \"5\" rush"_s);
  QCOMPARE(InvoicingDesk::Line(1), Hammers);
}

void CommasAndQuotes::aCommaInTheAttentionLineKeepsTheInvoiceFromBeingRead() {
  InvoicingDesk desk;
  QVERIFY(SaveHammers(desk, u"PO 5"_s, u"Ann, at the gate"_s));
  const QByteArray saved = desk.Program.Tree.Bytes(PartialImage);
  QVERIFY(saved.contains("\r\nPO 5\r\nAnn, at the gate\r\n1\r\n"));
  const ScreenDriver partials = desk.OpenPartials();
  const auto before = desk.Program.Tree.Everything();
  desk.Program.Answers.Ok();
  partials.Click(u"Command1_1"_s);
  const QString box = desk.Program.Answers.Last().Text;
  QVERIFY2(box.contains(u"/20260017.txt"_s) && box.contains(u"(error 13)"_s), qPrintable(box));
  QVERIFY(ScreenDriver::IsShown(u"frmIncomplete"_s));
  QCOMPARE(desk.Program.Tree.Everything(), before);
  // As the box says: mended by hand, it comes whole.
  QByteArray mended = saved;
  mended.replace("Ann, at", "Ann at");
  desk.Program.Tree.Write(PartialImage, mended);
  desk.Program.Answers.Ok({}, u"Partial Invoice Loaded"_s);
  partials.Click(u"Command1_1"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtShipto_6"_s), u"Ann at the gate"_s);
  QCOMPARE(InvoicingDesk::Line(1), Hammers);
}

void CommasAndQuotes::aCountBehindTheCommaIsTakenForTheLines() {
  InvoicingDesk desk;
  QVERIFY(SaveHammers(desk, u"PO 5"_s, u"Dock, 1"_s));
  const QByteArray saved = desk.Program.Tree.Bytes(PartialImage);
  desk.Recall();
  QCOMPARE(InvoicingDesk::Text(u"txtReference"_s), u"PO 5"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtShipto_6"_s), u"Dock"_s);
  // The count's own row is the first cell, and the last cell isn't reached.
  QCOMPARE(InvoicingDesk::Line(1), (QStringList{u"1"_s, u"2"_s, u"Hammer"_s, u"3/7/2026"_s, u"$12.00"_s, u"$24.00"_s}));
  QCOMPARE(InvoicingDesk::Line(2), QStringList(6, QString()));
  QCOMPARE(desk.Program.Tree.Bytes(PartialImage), saved);
}

void CommasAndQuotes::aCommaKeepsACompletedInvoiceFromBeingShown_data() {
  QTest::addColumn<QByteArray>("carrier");
  QTest::addColumn<QString>("reference");
  QTest::addColumn<QByteArray>("rows");
  QTest::newRow("in the carrier") << QByteArray("Acme, overnight") << u"PO 5"_s
                                  << QByteArray(
                                         "\r\nAcme, overnight\r\n3/7/2026\r\n20260017\r\n1001\r\nPO 5\r\nAnn\r\n1\r\n");
  QTest::newRow("in the reference") << QByteArray("Acme") << u"PO 5, rush"_s
                                    << QByteArray(
                                           "\r\nAcme\r\n3/7/2026\r\n20260017\r\n1001\r\nPO 5, rush\r\nAnn\r\n1\r\n");
}

void CommasAndQuotes::aCommaKeepsACompletedInvoiceFromBeingShown() {
  QFETCH(const QByteArray, carrier);
  QFETCH(const QString, reference);
  QFETCH(const QByteArray, rows);
  const QString name = u"/CompletedInvoices/20260017.txt"_s;
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/ShipVia.txt"_s, carrier + "\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.BeginInvoice(reference, u"Ann"_s);
  desk.PostHammers(u"2"_s);
  Finish(desk);
  const QByteArray image = desk.Program.Tree.Bytes(name);
  QVERIFY2(image.contains(rows), image.constData());
  OpenReprint();
  const ScreenDriver completed(u"frmReprint"_s);
  // What stands behind the comma takes the next place, and a text that of the count.
  desk.Program.Answers.Ok();
  completed.SelectRow(u"fgReceivables"_s, 1);
  const QString box = desk.Program.Answers.Last().Text;
  QVERIFY2(box.contains(name) && box.contains(u"(error 13)"_s), qPrintable(box));
  QVERIFY(completed.IsVisible(u"fgReceivables"_s));
  QCOMPARE(desk.Program.Tree.Bytes(name), image);
  // As the box says: mended by hand, it comes whole.
  desk.Program.Tree.Write(name, QByteArray(image).replace("Acme, ", "Acme ").replace("PO 5, ", "PO 5 "));
  completed.SelectRow(u"fgReceivables"_s, 1);
  QVERIFY(completed.IsVisible(u"fraInvoice"_s));
  QCOMPARE(completed.Text(u"Label1_32"_s), QString::fromLatin1(carrier).remove(u','));
  QCOMPARE(completed.Text(u"Label1_9"_s), QString(reference).remove(u','));
  QCOMPARE(completed.Text(u"txtAttn"_s), u"Ann"_s);
}

void CommasAndQuotes::aCarrierOrReferenceThatBeginsWithAQuoteIsShownAndReprintedUpToTheNext() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/ShipVia.txt"_s, "\"Night\" Freight\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  ShipToThem(u"\"rush\" PO 5"_s);
  desk.PostHammers(u"2"_s);
  Finish(desk);
  const QByteArray image = desk.Program.Tree.Bytes(u"/CompletedInvoices/20260017.txt"_s);
  QVERIFY2(image.contains("\r\n\"Night\" Freight\r\n3/7/2026\r\n20260017\r\n1001\r\n\"rush\" PO 5\r\nAnn\r\n1\r\n"),
           image.constData());
  // It is printed whole; the reference stands on the page twice.
  QCOMPARE(desk.Program.Paper.Find(u"\"Night\" Freight"_s).size(), 1U);
  QCOMPARE(desk.Program.Paper.Find(u"\"rush\" PO 5"_s).size(), 2U);
  OpenReprint();
  const ScreenDriver completed(u"frmReprint"_s);
  completed.SelectRow(u"fgReceivables"_s, 1);
  QCOMPARE(completed.Text(u"Label1_32"_s), u"Night"_s);
  QCOMPARE(completed.Text(u"Label1_9"_s), u"rush"_s);
  QCOMPARE(completed.Text(u"txtAttn"_s), u"Ann"_s);
  completed.Click(u"cmdPrint"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), 2U);
  QCOMPARE(desk.Program.Paper.Find(u"Night"_s).size(), 1U);
  QCOMPARE(desk.Program.Paper.Find(u"rush"_s).size(), 2U);
}

void CommasAndQuotes::theOuterBlanksOfAReferenceAreOnTheFirstPrintAlone() {
  InvoicingDesk desk;
  desk.Program.Tree.Write(u"/ShipVia.txt"_s, "Acme\r\n");
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  ShipToThem(u"  PO 5 "_s);
  desk.PostHammers(u"2"_s);
  Finish(desk);
  QVERIFY(desk.Program.Tree.Bytes(u"/CompletedInvoices/20260017.txt"_s).contains("\r\n1001\r\nPO 5\r\nAnn\r\n"));
  QCOMPARE(desk.Program.Paper.Find(u"  PO 5 "_s).size(), 2U);
  OpenReprint();
  const ScreenDriver completed(u"frmReprint"_s);
  completed.SelectRow(u"fgReceivables"_s, 1);
  QCOMPARE(completed.Text(u"Label1_9"_s), u"PO 5"_s);
  completed.Click(u"cmdPrint"_s);
  QCOMPARE(desk.Program.Paper.Jobs.size(), 2U);
  QCOMPARE(desk.Program.Paper.Find(u"PO 5"_s).size(), 2U);
  QCOMPARE(desk.Program.Paper.Find(u"  PO 5 "_s).size(), 0U);
}

void CommasAndQuotes::aMemoIsSavedAsTypedAndReadInParts() {
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, {});
  desk.PostHammers(u"2"_s);
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Trigger(u"mnuMemo"_s);
  invoice.Type(u"Thanks, \"friends\" of ours"_s);
  invoice.PressKey(Qt::Key_Return);
  invoice.Type(u"\"Open, mostly\" on Sunday"_s);
  invoice.PressKey(Qt::Key_Return);
  invoice.Type(u"5\" nails"_s);
  invoice.Click(u"cmdInvoiceMemo_2"_s);
  QCOMPARE(desk.Program.Tree.Bytes(u"/InvoiceMemo.txt"_s),
           "Thanks, \"friends\" of ours\r\n\"Open, mostly\" on Sunday\r\n5\" nails\r\n");
  invoice.Click(u"cmdInvoiceMemo_1"_s);
  // A comma ends a line, and so does a closing quote: what follows it up to the line's end is dropped.
  const QStringList parts{u"Thanks"_s, u"friends"_s, u"Open, mostly"_s, u"5\" nails"_s};
  QCOMPARE(invoice.Text(u"txtMemo"_s), parts.join(u'\n') + u'\n');
  Finish(desk);
  const QStringList words = desk.Program.Paper.Words(1);
  QCOMPARE(words.mid(words.indexOf(u"Thanks"_s), 4), parts);
  // The file stays as it was typed, and so it is after the next start.
  desk.Program.End();
  QVERIFY(desk.Program.StartAtMenu());
  desk.OpenInvoice();
  InvoicingDesk::Invoice().Click(u"cmdInvoice_0"_s);
  InvoicingDesk::Invoice().Trigger(u"mnuMemo"_s);
  QCOMPARE(InvoicingDesk::Text(u"txtMemo"_s), parts.join(u'\n') + u'\n');
}

void CommasAndQuotes::aNarrativeIsPrintedAsTyped() {
  const QString text = u"Cut, \"planed\", oiled; 5\" wide"_s;
  InvoicingDesk desk;
  QVERIFY(desk.Program.StartAtMenu());
  desk.BeginInvoice(u"PO 5"_s, {});
  desk.PostHammers(u"2"_s);
  const ScreenDriver invoice = InvoicingDesk::Invoice();
  invoice.Trigger(u"mnuNarrative"_s);
  invoice.Type(text);
  invoice.Click(u"cmdNarrative_0"_s);
  Finish(desk);
  QCOMPARE(desk.Program.Paper.Find(text).size(), 1U);
}

QTEST_MAIN(CommasAndQuotes)
#include "tst_commasAndQuotes.moc"
