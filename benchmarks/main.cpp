// Each operation's time beside its floor. Ratios are shown, never asserted.

#include <cstdio>
#include <QApplication>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"

int main(int argc, char* argv[]) {
  const int started = RunAsStarter(argc, argv);
  if (started >= 0) return started;
  QApplication application(argc, argv);
  ReportHeading();
  MeasureStart(QApplication::applicationFilePath());
  MeasureDataTree();
  MeasureCustomers();
  MeasureCommit();
  MeasurePage();
  return 0;
}
