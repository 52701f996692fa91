/// "Today" comes from here and from nowhere else.
#pragma once

#include <QDate>

class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDate Today() const = 0;
};

class SystemClock final : public Clock {
 public:
  QDate Today() const override { return QDate::currentDate(); }
};
