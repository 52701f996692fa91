// The long form: the same readers and the same judgement, driven by coverage. KARVEX_FUZZ_READER names the reader;
// without it the first byte of the input chooses one.

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>

#include "fuzz/PictureReader.h"
#include "fuzz/ReaderDesk.h"

namespace {

struct Fuzzer {
  Fuzzer() {
    Targets.push_back(PictureReader());
    const QByteArray wanted = qgetenv("KARVEX_FUZZ_READER");
    for (const ReaderTarget& target : Targets) {
      if (target.Name == wanted) Chosen = &target;
    }
    if (!wanted.isEmpty() && Chosen == nullptr) qFatal("there is no reader %s", wanted.constData());
  }

  std::vector<ReaderTarget> Targets = ReaderTargets();
  const ReaderTarget* Chosen = nullptr;
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
  QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const ReaderTarget* target = fuzzer.Chosen;
  if (target == nullptr) {
    if (bytes.isEmpty()) return 0;
    target = &fuzzer.Targets[static_cast<unsigned char>(bytes[0]) % fuzzer.Targets.size()];
    bytes.remove(0, 1);
  }
  const QByteArray wrong = fuzzer.Desk.Run(*target, bytes);
  if (!wrong.isEmpty()) {
    std::fprintf(stderr, "%s\n", wrong.constData());
    std::abort();
  }
  return 0;
}
