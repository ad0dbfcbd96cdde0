#include "tools/dates/DateDifference.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr int kDaysAWeek = 7;
constexpr int kMonthsAYear = 12;
constexpr int kWorkingDaysAWeek = 5;

int wholeMonths(CalendarDate from, CalendarDate to) {
    const int months = static_cast<int>(((to.year() / to.month()) - (from.year() / from.month())).count());
    return monthsLater(from, months) > to ? months - 1 : months;
}

int daysBetween(CalendarDate from, CalendarDate to) {
    return static_cast<int>((std::chrono::sys_days(to) - std::chrono::sys_days(from)).count());
}

/// Of so many days from that one on.
int workingDaysAmong(CalendarDate from, int days) {
    int working = days / kDaysAWeek * kWorkingDaysAWeek;
    std::chrono::weekday weekday{std::chrono::sys_days(from)};
    for (int rest = days % kDaysAWeek; rest > 0; --rest, ++weekday) {
        working += weekday != std::chrono::Saturday && weekday != std::chrono::Sunday ? 1 : 0;
    }
    return working;
}

} // namespace

CalendarDate monthsLater(CalendarDate date, int months) {
    const CalendarDate later = date + std::chrono::months(months);
    return later.ok() ? later : CalendarDate(later.year() / later.month() / std::chrono::last);
}

DateDifference dateDifference(CalendarDate first, CalendarDate second, LastDay lastDay) {
    const CalendarDate from = std::min(first, second);
    CalendarDate to = std::max(first, second);
    if (lastDay == LastDay::Counted) {
        to = CalendarDate(std::chrono::sys_days(to) + std::chrono::days(1));
    }
    DateDifference difference;
    difference.days = daysBetween(from, to);
    difference.workingDays = workingDaysAmong(from, difference.days);
    difference.weeksAndDays = {difference.days / kDaysAWeek, difference.days % kDaysAWeek};
    const int months = wholeMonths(from, to);
    const int daysBeyond = daysBetween(monthsLater(from, months), to);
    difference.monthsAndDays = {months, daysBeyond};
    difference.yearsMonthsAndDays = {months / kMonthsAYear, months % kMonthsAYear, daysBeyond};
    return difference;
}

} // namespace velmora
