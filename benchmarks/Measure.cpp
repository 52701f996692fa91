#include "benchmarks/Measure.h"

#include <algorithm>
#include <cstdio>
#include <QElapsedTimer>

double TimeOf(const std::function<void()>& work) {
  QElapsedTimer timer;
  timer.start();
  work();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double MedianOf(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

double MedianOf(int runs, const std::function<void()>& work, const std::function<void()>& prepare) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    if (prepare) prepare();
    times.push_back(TimeOf(work));
  }
  return MedianOf(times);
}

Pair MediansOf(int runs, const std::function<void()>& work, const std::function<void()>& floor) {
  std::vector<double> works;
  std::vector<double> floors;
  for (int i = 0; i < runs; ++i) {
    floors.push_back(TimeOf(floor));
    works.push_back(TimeOf(work));
  }
  return {MedianOf(works), MedianOf(floors)};
}

void MustHold(bool held, const QString& what) {
  if (!held) throw Failure(what.toStdString());
}

void ReportHeading() {
  std::printf("%-66s %11s %11s %8s %6s\n", "operation", "time", "floor", "ratio", "aim");
}

void Report(const QString& operation, Pair milliseconds, double aim) {
  std::printf("%-66s %8.2f ms %8.2f ms %8.2f", qPrintable(operation), milliseconds.Work, milliseconds.Floor,
              milliseconds.Work / milliseconds.Floor);
  if (aim > 0) std::printf(" %6.1f", aim);
  std::printf("\n");
  std::fflush(stdout);
}
