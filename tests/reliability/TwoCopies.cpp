#include "reliability/TwoCopies.h"

#include <QtTest>

#include "support/CompletedImages.h"
#include "support/OneDay.h"

using namespace Qt::StringLiterals;

namespace {

/// Another file, whose copy tells whether the exit backup ran.
const QString Witness = u"/Services.txt"_s;
const QByteArray WitnessCopy = "an older copy of another file";

/// The words of the box.
QString WordsOf(const ReadLater& about, const CopyState& read) {
  if (!read.Seen.isEmpty()) return read.Seen;
  return about.Then == ReadLater::Unreadable::FailsThePrint ? u"A Print Error has occurred"_s : about.File;
}

/// The end by the user. A file that couldn't be read isn't copied over its good copy, and no other file after an end
/// that the program took by itself.
void CheckEnd(ProgramFixture& program, const ReadLater& about, const CopyState& read,
              const std::optional<QByteArray>& copyBefore) {
  const bool ended = program.Running().HasEnded();
  std::optional<QByteArray> copy = copyBefore;
  if (!ended) {
    const auto left = Held(program.Tree, about.File);
    if (IsCopiedAtExit(about.File) && left && read.Loads) copy = left;
    program.End();
  }
  QCOMPARE(Held(program.Tree, CopyOf(about.File)), copy);
  QCOMPARE(program.Tree.Bytes(CopyOf(Witness)), ended ? WitnessCopy : program.Tree.Bytes(Witness));
}

}  // namespace

QByteArray Flipped(QByteArray bytes, const char* before, char mask) {
  const qsizetype at = bytes.indexOf(before);
  if (at < 0) qFatal("the byte to be changed isn't there");
  bytes[at] = static_cast<char>(bytes[at] ^ mask);
  return bytes;
}

QString CopyOf(const QString& file) {
  return u"/Backup"_s + file;
}

void Put(const TemporaryTree& tree, const QString& name, const std::optional<QByteArray>& bytes) {
  if (bytes) {
    tree.Write(name, *bytes);
  } else if (tree.Exists(name)) {
    tree.Remove(name);
  }
}

std::optional<QByteArray> Held(const TemporaryTree& tree, const QString& name) {
  return tree.Exists(name) ? std::optional(tree.Bytes(name)) : std::nullopt;
}

bool IsCopiedAtExit(const QString& file) {
  static const QStringList copied{u"/KarvexInvoicerSettings.txt"_s,
                                  u"/KVInvoiceNo.txt"_s,
                                  u"/KVInventoriedItems.txt"_s,
                                  u"/CompanyLogo.txt"_s,
                                  u"/CustomerData.txt"_s,
                                  u"/CustomItems.txt"_s,
                                  u"/InvoiceMemo.txt"_s,
                                  u"/InvoiceSalesJournal.txt"_s,
                                  u"/Labor.txt"_s,
                                  u"/LogoSettings.txt"_s,
                                  u"/MyBusinessData.txt"_s,
                                  u"/MyWebSite.txt"_s,
                                  u"/Narrative.txt"_s,
                                  u"/PrintColors.txt"_s,
                                  u"/Services.txt"_s,
                                  u"/SoldItems.txt"_s,
                                  u"/StatementTerms.txt"_s,
                                  u"/TaxRecords.txt"_s};
  return copied.contains(file);
}

void AddPairColumns() {
  QTest::addColumn<int>("subject");
  QTest::addColumn<int>("live");
  QTest::addColumn<int>("copy");
}

void AddPairRows(int subject, const QString& file, const QList<CopyState>& states) {
  for (int live = 0; live < states.size(); ++live) {
    for (int copy = 0; copy < states.size(); ++copy) {
      QTest::addRow("%d %s %s, copy %s", subject, qPrintable(file), states[live].Name, states[copy].Name)
          << subject << live << copy;
    }
  }
}

void CheckReadLater(const ReadLater& about, const CopyState& live, const CopyState& copy) {
  ProgramFixture program;
  OneDay::Stock(program.Tree);
  program.Tree.Write(CopyOf(Witness), WitnessCopy);
  program.Tree.Write(u"/CompletedInvoices/20260001.txt"_s, Image("20260001", "Acme Tools", "3/7/2026", "$25.00"));
  const auto put = [&] {
    Put(program.Tree, about.File, live.Bytes);
    Put(program.Tree, CopyOf(about.File), copy.Bytes);
  };
  if (!about.Before) put();
  QVERIFY(program.StartAtMenu());
  if (about.Before) {
    about.Before();
    put();
  }

  const CopyState& read = ReadOf(live, copy);
  if (!read.Loads) program.Answers.Ok();
  about.Go(program);
  QCOMPARE(Held(program.Tree, about.File), read.Left ? read.Left : read.Bytes);
  if (read.Loads) {
    QCOMPARE(about.See(program), read.Seen);
  } else {
    const QString text = program.Answers.Last().Text;
    QVERIFY2(text.contains(WordsOf(about, read)), qPrintable(text));
  }
  const bool ends = !read.Loads && about.Then == ReadLater::Unreadable::EndsIt;
  QCOMPARE(program.Running().HasEnded(), ends);
  QCOMPARE(program.Running().HasFailed(), ends);
  const bool dropped = read.Loads && about.Kind == ReadLater::Copy::Dropped;
  const auto kept = dropped ? std::nullopt : copy.Bytes;
  QCOMPARE(Held(program.Tree, CopyOf(about.File)), kept);
  CheckEnd(program, about, read, kept);
}
