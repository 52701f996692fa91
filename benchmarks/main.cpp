// Each operation's time beside its floor. Ratios are shown, never asserted; that the work was done is. Words on the
// command line choose the parts to measure; without any all are.

#include <cstdio>
#include <functional>
#include <QApplication>
#include <QTemporaryDir>
#include <vector>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "runtime/RuntimeError.h"

namespace {

struct Part {
  const char* Name;
  /// On a tree that is filled to the system's limits.
  std::function<void(const QString& fullTree)> Measure;
};

std::vector<Part> AllParts() {
  return {{"start", [](const QString& full) { MeasureStart(QApplication::applicationFilePath(), full); }},
          {"ports", [](const QString&) { MeasureAbsentPorts(); }},
          {"folders", [](const QString& full) { MeasureDataTree(full); }},
          {"customers", [](const QString& full) { MeasureCustomers(full); }},
          {"search", [](const QString& full) { MeasureSearch(full); }},
          {"commit", [](const QString&) { MeasureCommit(); }},
          {"sales", [](const QString&) { MeasureItemSales(); }},
          {"page", [](const QString&) { MeasurePage(); }},
          {"completed", [](const QString&) { MeasureCompleted(); }}};
}

/// Tells of a word that names none of `parts`, and of those that there are.
bool AreParts(const QStringList& words, const std::vector<Part>& parts) {
  QStringList names;
  for (const Part& part : parts) names << QLatin1String(part.Name);
  for (const QString& word : words) {
    if (names.contains(word)) continue;
    std::fprintf(stderr, "There is no part \"%s\". The parts are: %s.\n", qPrintable(word),
                 qPrintable(names.join(QStringLiteral(", "))));
    return false;
  }
  return true;
}

void MeasureParts(const QStringList& chosen, const std::vector<Part>& parts) {
  std::puts("Filling a tree to the system's limits ...");
  const QTemporaryDir full;
  FillTree(full.path(), Limit::Customers, Limit::Catalogue, Limit::Records);
  ReportHeading();
  for (const Part& part : parts) {
    if (chosen.isEmpty() || chosen.contains(QLatin1String(part.Name))) part.Measure(full.path());
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const int started = RunAsStarter(argc, argv);
  if (started >= 0) return started;
  QApplication application(argc, argv);
  const QStringList chosen = QApplication::arguments().mid(1);
  const std::vector<Part> parts = AllParts();
  if (!AreParts(chosen, parts)) return 2;
  try {
    MeasureParts(chosen, parts);
    return 0;
  } catch (const RuntimeError& error) {
    std::printf("FAILED: %s: %s\n", qPrintable(error.Subject()), qPrintable(error.Text()));
  } catch (const Failure& failure) {
    std::printf("FAILED: %s\n", failure.what());
  }
  return 1;
}
