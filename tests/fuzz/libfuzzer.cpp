// The long form: the same readers and the same judgement, driven by coverage, on a tree in the process's own memory.
// KARVEX_FUZZ_READER names the reader.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>

#include "fuzz/Corpus.h"
#include "fuzz/MemoryTree.h"
#include "fuzz/PictureReader.h"
#include "fuzz/ReaderDesk.h"

namespace {

struct Fuzzer {
  Fuzzer() {
    std::vector<ReaderTarget> all = ReaderTargets();
    all.push_back(PictureReader());
    const QByteArray wanted = qgetenv("KARVEX_FUZZ_READER");
    const auto chosen = std::find_if(all.begin(), all.end(), [&](const auto& each) { return each.Name == wanted; });
    if (chosen == all.end()) qFatal("KARVEX_FUZZ_READER names no reader: \"%s\"", wanted.constData());
    Reader = *chosen;
    MemoryTree::KeepHere(Desk.Root());
    // A call that the tree in memory doesn't know would have every load refused, and nothing found.
    const QByteArray wrong = Desk.Run(Reader, CorpusOf(wanted).value(QStringLiteral("whole")));
    if (Desk.Refused() > 0 || !wrong.isEmpty()) qFatal("%s doesn't load a whole file", wanted.constData());
  }

  ReaderTarget Reader;
  ReaderDesk Desk;
};

void Drop(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  // The picture formats are found beside the program's own library paths.
  [[maybe_unused]] static QCoreApplication application(*argc, *argv);
  // Not a word about each of a million pictures that can't be read.
  qInstallMessageHandler(Drop);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static Fuzzer fuzzer;
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QByteArray wrong = fuzzer.Desk.Run(fuzzer.Reader, bytes);
  if (!wrong.isEmpty()) {
    std::fprintf(stderr, "%s\n", wrong.constData());
    std::abort();
  }
  return 0;
}
