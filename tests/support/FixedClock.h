/// A clock that stands where the test puts it.
#pragma once

#include "runtime/Clock.h"

class FixedClock final : public Clock {
 public:
  explicit FixedClock(QDate today = QDate(2026, 3, 7)) : m_today(today) {}
  QDate Today() const override { return m_today; }
  void Set(QDate today) { m_today = today; }

 private:
  QDate m_today;
};
