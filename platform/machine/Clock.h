#pragma once

#include "platform/machine/InstallScope.h"

namespace velmora {

/// A date and a time of day in the user's time zone, Gregorian calendar. Months and days count from 1.
struct CalendarTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    bool operator==(const CalendarTime&) const = default;
};

/// Tells the time.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since some fixed moment; never goes back.
    virtual double monotonicSeconds() const = 0;
    virtual CalendarTime now() const = 0;
};

/// A clock that stands still until it is moved.
class ManualClock final : public Clock {
public:
    double monotonicSeconds() const override { return m_seconds; }
    CalendarTime now() const override { return m_now; }

    /// Moves the seconds on; the calendar stays. A negative or undefined amount is ignored.
    void advance(double seconds) { m_seconds += seconds > 0 ? seconds : 0; }
    void setNow(const CalendarTime& now) { m_now = now; }

private:
    double m_seconds = 0;
    CalendarTime m_now;
};

using ClockScope = InstallScope<Clock>;

/// The clock in force; the machine's while none is installed.
const Clock& currentClock();

inline double monotonicSeconds() { return currentClock().monotonicSeconds(); }

} // namespace velmora
