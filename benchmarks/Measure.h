/// Times and their presentation.
#pragma once

#include <functional>
#include <QString>
#include <stdexcept>
#include <vector>

/// Milliseconds of one run.
double TimeOf(const std::function<void()>& work);
double MedianOf(std::vector<double> times);
/// The median of `runs` runs, in milliseconds; `prepare` runs before each and isn't timed.
double MedianOf(int runs, const std::function<void()>& work, const std::function<void()>& prepare = {});
/// Medians of two works whose runs alternate, so that a busy machine slows both alike.
struct Pair {
  double Work;
  double Floor;
};
Pair MediansOf(int runs, const std::function<void()>& work, const std::function<void()>& floor);

/// What a work was measured for didn't happen.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};
/// Throws `Failure` where the work hasn't done `what`: the time of a failure isn't to be reported. Asked after the
/// runs, before `Report`.
void MustHold(bool held, const QString& what);

/// One row: the operation, its time, its floor's time, their ratio, and the ratio that we aim at, 0 for none.
void Report(const QString& operation, Pair milliseconds, double aim);
void ReportHeading();
