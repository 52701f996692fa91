// Every reader of a file against bytes that nobody wrote: whatever stands in a file, its load goes through, or is
// refused by an error that names the file; it ends soon, and changes nothing.
//
// The changes at random are the same at each run. KARVEX_FUZZ_SEED sets another seed, KARVEX_FUZZ_RUNS another number
// of runs for each reader; with KARVEX_FUZZ_EVERY_VALUE each byte of a text is changed to all values too, and not only
// to those that mean something in one. The long form, with sanitizers and led by coverage, is ./fuzz.

#include <ctime>
#include <QLoggingCategory>
#include <QtTest>

#include "fuzz/Corpus.h"
#include "fuzz/Mutator.h"
#include "fuzz/PictureReader.h"
#include "fuzz/ReaderDesk.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// In processor time: what else the machine does meanwhile doesn't count.
constexpr std::clock_t LongestLoad = 5 * CLOCKS_PER_SEC;

quint64 FromEnvironment(const char* name, quint64 otherwise) {
  return qEnvironmentVariableIsSet(name) ? qEnvironmentVariable(name).toULongLong() : otherwise;
}

QByteArray Whole(const QByteArray& reader) {
  return CorpusOf(reader).value(u"whole"_s);
}

/// What the user would have to send us: the input itself.
QByteArray Described(const QByteArray& wrong, const QByteArray& input, const QByteArray& origin) {
  return wrong + " (" + origin + "), input in hexadecimal: " + input.toHex();
}

/// The values that a byte is changed to. Any byte may stand in a record; in a text all letters are alike to a reader,
/// but those of an exponent and a switch.
QByteArray ValuesFor(const ReaderTarget& target) {
  if (target.RecordLength == 0 && !qEnvironmentVariableIsSet("KARVEX_FUZZ_EVERY_VALUE")) {
    return QByteArrayLiteral("\0\t\n\r\x1a \"#$%(),+-./\\0159:AEFHTet\x7f\x80\x81\xa0\xff");
  }
  QByteArray values;
  for (int value = 0; value < 256; ++value) values.append(static_cast<char>(value));
  return values;
}

/// Those of the rules, and the one that decodes pictures.
std::vector<ReaderTarget> AllReaders() {
  std::vector<ReaderTarget> all = ReaderTargets();
  all.push_back(PictureReader());
  return all;
}

ReaderTarget TargetOf(const QByteArray& name) {
  for (const ReaderTarget& target : AllReaders()) {
    if (target.Name == name) return target;
  }
  return {};
}

}  // namespace

class Fuzz : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// The decoder's words on thousands of pictures that are none.
  void initTestCase() { QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s); }
  void whatAReaderMayNotDoIsSeen();
  void aFileAsTheProgramWritesItLoads_data() { EachReader(); }
  void aFileAsTheProgramWritesItLoads();
  void aFileCutShortAnywhereLoadsOrIsRefused_data() { EachReader(); }
  void aFileCutShortAnywhereLoadsOrIsRefused();
  void aFileWithAnyByteChangedToAnyValueLoadsOrIsRefused_data() { EachReader(); }
  void aFileWithAnyByteChangedToAnyValueLoadsOrIsRefused();
  void aFileChangedAtRandomLoadsOrIsRefused_data() { EachReader(); }
  void aFileChangedAtRandomLoadsOrIsRefused();
  void aLargeTextOfAnyShapeIsReadAtOnce_data() { EachReader(); }
  void aLargeTextOfAnyShapeIsReadAtOnce();

 private:
  static void EachReader() {
    QTest::addColumn<QByteArray>("reader");
    for (const ReaderTarget& target : AllReaders()) QTest::newRow(target.Name.constData()) << target.Name;
  }
  ReaderDesk m_desk;
};

void Fuzz::whatAReaderMayNotDoIsSeen() {
  const QString file = u"/Phone.txt"_s;
  const auto said = [&](const std::function<void(ReaderDesk&)>& load) {
    return m_desk.Run({"one", file, load}, "#TRUE#\r\n1\r\n");
  };
  QCOMPARE(said([](ReaderDesk&) {}), QByteArray());
  QCOMPARE(said([&](ReaderDesk&) { throw RuntimeError(ErrorNumber::TypeMismatch, file); }), QByteArray());
  QVERIFY(said([](ReaderDesk&) {
            throw RuntimeError(ErrorNumber::TypeMismatch, u"/Labor.txt"_s);
          }).contains("doesn't name the file"));
  QVERIFY(said([&](ReaderDesk&) {
            throw RuntimeError(ErrorNumber::TypeMismatch, file, QString());
          }).contains("without a text"));
  QVERIFY(said([](ReaderDesk&) { throw std::length_error("too long"); }).contains("too long"));
  QVERIFY(said([&](ReaderDesk& desk) { desk.Disk().KillDataFile(file); }).contains("it changed "));
  QVERIFY(said([&](ReaderDesk& desk) { desk.Disk().ReplaceTextFile(file, u"x"_s); }).contains("it changed "));
  QVERIFY(said([&](ReaderDesk& desk) {
            desk.Disk().Store().MakeFolder(u"/karvex-elsewhere"_s);
          }).contains("it would change /karvex-elsewhere"));
}

void Fuzz::aFileAsTheProgramWritesItLoads() {
  QFETCH(QByteArray, reader);
  const ReaderTarget target = TargetOf(reader);
  const QMap<QString, QByteArray> corpus = CorpusOf(reader);
  QVERIFY(corpus.contains(u"whole"_s));
  if (target.RecordLength > 0) QCOMPARE(corpus.value(u"whole"_s).size(), target.RecordLength);
  const int refused = m_desk.Refused();
  QCOMPARE(m_desk.Run(target, corpus.value(u"whole"_s)), QByteArray());
  QCOMPARE(m_desk.Refused(), refused);
  for (const QByteArray& input : corpus) QCOMPARE(m_desk.Run(target, input), QByteArray());
}

void Fuzz::aFileCutShortAnywhereLoadsOrIsRefused() {
  QFETCH(QByteArray, reader);
  const ReaderTarget target = TargetOf(reader);
  const QByteArray whole = Whole(reader);
  for (qsizetype size = 0; size < whole.size(); ++size) {
    const QByteArray wrong = m_desk.Run(target, whole.first(size));
    QVERIFY2(wrong.isEmpty(), Described(wrong, whole.first(size), "cut short").constData());
  }
}

void Fuzz::aFileWithAnyByteChangedToAnyValueLoadsOrIsRefused() {
  QFETCH(QByteArray, reader);
  const ReaderTarget target = TargetOf(reader);
  const QByteArray whole = Whole(reader);
  const QByteArray values = ValuesFor(target);
  for (qsizetype at = 0; at < whole.size(); ++at) {
    QByteArray changed = whole;
    for (const char value : values) {
      changed[at] = value;
      const QByteArray wrong = m_desk.Run(target, changed);
      QVERIFY2(wrong.isEmpty(), Described(wrong, changed, "byte " + QByteArray::number(at)).constData());
    }
  }
}

void Fuzz::aFileChangedAtRandomLoadsOrIsRefused() {
  QFETCH(QByteArray, reader);
  const ReaderTarget target = TargetOf(reader);
  const QList<QByteArray> corpus = CorpusOf(reader).values();
  const std::vector<QByteArray> inputs(corpus.begin(), corpus.end());
  const quint64 seed = FromEnvironment("KARVEX_FUZZ_SEED", 20260307);
  const quint64 runs = FromEnvironment("KARVEX_FUZZ_RUNS", 1000);
  Mutator mutator(seed);
  for (quint64 run = 0; run < runs; ++run) {
    const QByteArray input = mutator.Next(inputs, 8192);
    const std::clock_t before = std::clock();
    const QByteArray wrong = m_desk.Run(target, input);
    const QByteArray origin = "seed " + QByteArray::number(seed) + ", run " + QByteArray::number(run);
    QVERIFY2(wrong.isEmpty(), Described(wrong, input, origin).constData());
    QVERIFY2(std::clock() - before < LongestLoad, Described("it took too long", input, origin).constData());
  }
}

void Fuzz::aLargeTextOfAnyShapeIsReadAtOnce() {
  QFETCH(QByteArray, reader);
  const ReaderTarget target = TargetOf(reader);
  constexpr qsizetype size = 1'000'000;
  for (const QByteArray piece : {",", " ", "\"", "\r", "\n", "\r\n", "1", "\"a\",", "a b ", "\x80"}) {
    const QByteArray large = piece.repeated(size / piece.size());
    const std::clock_t before = std::clock();
    const QByteArray wrong = m_desk.Run(target, large);
    QVERIFY2(wrong.isEmpty(), (wrong + " on a million bytes of " + piece.toHex()).constData());
    const std::clock_t used = std::clock() - before;
    QVERIFY2(used < LongestLoad, ("too long for a million bytes of " + piece.toHex()).constData());
  }
}

QTEST_GUILESS_MAIN(Fuzz)
#include "tst_fuzz.moc"
