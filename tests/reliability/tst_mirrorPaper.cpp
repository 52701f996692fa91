// The files that a finished invoice is shown and printed from again, and can come back from the Backup folder then:
// with the file and its copy each missing, empty, cut short, damaged, older or good. What is listed from its folder is
// never missed; an image that goes behind its list is.

#include <QtWidgets>

#include "reliability/MemoryDisk.h"
#include "reliability/TwoCopies.h"
#include "support/CompletedImages.h"

using namespace Qt::StringLiterals;

namespace {

[[maybe_unused]] const MemoryDisk Quick;

void Select(ProgramFixture&) {
  ScreenDriver(u"frmReprint"_s).SelectRow(u"fgReceivables"_s, 1);
}

void Reprint(ProgramFixture& program) {
  OpenReprint();
  Select(program);
  ScreenDriver(u"frmReprint"_s).Click(u"cmdPrint"_s);
}

/// The one of these texts that was printed.
auto Printed(const QStringList& texts) {
  return [texts](const ProgramFixture& program) {
    for (const QString& text : texts) {
      if (!program.Paper.Find(text).empty()) return text;
    }
    return QString();
  };
}

ReadLater WebSite() {
  return {.File = u"/MyWebSite.txt"_s,
          .Then = ReadLater::Unreadable::FailsThePrint,
          .Go = &Reprint,
          .See = Printed({u"grove.example"_s, u"orchard.example"_s, u"Grove.example"_s, u"gro"_s}),
          .States = {{"good", "\"grove.example\"\r\n", true, u"grove.example"_s},
                     {"older", "\"orchard.example\"\r\n", true, u"orchard.example"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", false, {}},
                     {"cut", "\"gro", true, u"gro"_s},
                     {"text", "\"Grove.example\"\r\n", true, u"Grove.example"_s}}};
}

ReadLater NarrativeOfAnInvoice() {
  return {.File = u"/KarvexInvoicer/Narratives/20260001.txt"_s,
          .Then = ReadLater::Unreadable::FailsThePrint,
          .Go = &Reprint,
          .See = Printed({u"felled"_s, u"Felled"_s, u"pruned"_s, u"fel"_s}),
          .States = {{"good", "felled\r\n", true, u"felled"_s},
                     {"older", "pruned\r\n", true, u"pruned"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     {"cut", "fel", true, u"fel"_s},
                     {"text", "Felled\r\n", true, u"Felled"_s}}};
}

ReadLater Terms() {
  return {.File = u"/StatementTerms.txt"_s,
          .Then = ReadLater::Unreadable::FailsThePrint,
          .Go = &Reprint,
          .See = Printed({u"Payment due at once"_s, u"payment due at once"_s, u"Cash, on delivery"_s, u"Paym"_s}),
          .States = {{"good", "Payment due at once\r\n", true, u"Payment due at once"_s},
                     {"older", "Cash, on delivery\r\n", true, u"Cash, on delivery"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", false, {}},
                     {"cut", "Paym", true, u"Paym"_s},
                     {"text", "payment due at once\r\n", true, u"payment due at once"_s}}};
}

/// It stands beside the invoice, and goes with it onto the paper.
ReadLater Memo() {
  return {.File = u"/InvoiceMemo.txt"_s,
          .Before = &OpenReprint,
          .Go = &Select,
          .See = [](const ProgramFixture&) { return ScreenDriver(u"frmReprint"_s).Text(u"txtMemo"_s); },
          .States = {{"good", "Thank you\r\n", true, u"Thank you\n"_s},
                     {"older", "Thanks\r\n", true, u"Thanks\n"_s},
                     {"missing", {}, true, u""_s},
                     {"empty", "", true, u""_s},
                     {"cut", "Tha", true, u"Tha\n"_s},
                     {"text", "thank you\r\n", true, u"thank you\n"_s}}};
}

ReadLater ImageBehindItsList() {
  const QByteArray good = Image("20260001", "Acme Tools", "3/7/2026", "$25.00");
  const QString file = u"/CompletedInvoices/20260001.txt"_s;
  return {.File = file,
          .Then = ReadLater::Unreadable::IsTold,
          .Before = &OpenReprint,
          .Go = &Select,
          .See = [](const ProgramFixture&) { return ScreenDriver(u"frmReprint"_s).Text(u"Label1_32"_s); },
          .States = {{"good", good, true, u"UPS Ground"_s},
                     {"older", QByteArray(good).replace("UPS", "Rail"), true, u"Rail Ground"_s},
                     {"missing", {}, false, u"An Image does not exist for this Transaction"_s},
                     {"empty", "", false, {}},
                     {"cut", good.left(good.size() / 2), false, {}},
                     {"text", Flipped(good, "UPS", 0x20), true, u"uPS Ground"_s},
                     {"number", Flipped(good, "2\r\n2\r\nHammer", 0x40), false, {}}}};
}

QList<ReadLater> Subjects() {
  return {WebSite(), NarrativeOfAnInvoice(), Terms(), Memo(), ImageBehindItsList()};
}

}  // namespace

class MirrorPaper : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsToldHappensInEveryState_data() { AddPairs(Subjects()); }
  void whatIsToldHappensInEveryState();
};

void MirrorPaper::whatIsToldHappensInEveryState() {
  QFETCH(const int, subject);
  QFETCH(const int, live);
  QFETCH(const int, copy);
  const ReadLater about = Subjects()[subject];
  CheckReadLater(about, about.States[live], about.States[copy]);
}

QTEST_MAIN(MirrorPaper)
#include "tst_mirrorPaper.moc"
