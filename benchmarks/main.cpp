// Each operation's time beside its floor. Ratios are shown, never asserted.

#include <cstdio>
#include <QApplication>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Trees.h"

int main(int argc, char* argv[]) {
  const int started = RunAsStarter(argc, argv);
  if (started >= 0) return started;
  QApplication application(argc, argv);
  std::puts("Filling a tree to the system's limits ...");
  const QTemporaryDir full;
  FillTree(full.path(), Limit::Customers, Limit::Catalogue, Limit::Records);
  ReportHeading();
  MeasureStart(QApplication::applicationFilePath(), full.path());
  MeasureDataTree(full.path());
  MeasureCustomers(full.path());
  MeasureCommit();
  MeasurePage();
  return 0;
}
