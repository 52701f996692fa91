// Each operation's time beside its floor. Ratios are shown, never asserted; that the work was done is. Words on the
// command line choose the parts to measure; without any all are.

#include <cstdio>
#include <functional>
#include <QApplication>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"
#include "runtime/RuntimeError.h"

namespace {

void MeasureAll() {
  std::puts("Filling a tree to the system's limits ...");
  const QTemporaryDir full;
  FillTree(full.path(), Limit::Customers, Limit::Catalogue, Limit::Records);
  ReportHeading();
  const QStringList chosen = QApplication::arguments().mid(1);
  const auto measure = [&](const char* part, const std::function<void()>& work) {
    if (chosen.isEmpty() || chosen.contains(QLatin1String(part))) work();
  };
  measure("start", [&] { MeasureStart(QApplication::applicationFilePath(), full.path()); });
  measure("ports", [] { MeasureAbsentPorts(); });
  measure("folders", [&] { MeasureDataTree(full.path()); });
  measure("customers", [&] { MeasureCustomers(full.path()); });
  measure("search", [&] { MeasureSearch(full.path()); });
  measure("commit", [] { MeasureCommit(); });
  measure("sales", [] { MeasureItemSales(); });
  measure("page", [] { MeasurePage(); });
  measure("completed", [] { MeasureCompleted(); });
}

}  // namespace

int main(int argc, char* argv[]) {
  const int started = RunAsStarter(argc, argv);
  if (started >= 0) return started;
  QApplication application(argc, argv);
  try {
    MeasureAll();
    return 0;
  } catch (const RuntimeError& error) {
    std::printf("FAILED: %s: %s\n", qPrintable(error.Subject()), qPrintable(error.Text()));
  } catch (const Failure& failure) {
    std::printf("FAILED: %s\n", failure.what());
  }
  return 1;
}
