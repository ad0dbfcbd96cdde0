#pragma once

#include <chrono>

namespace velmora {

/// A day of the Gregorian calendar, which is also used for the years before it was introduced.
using CalendarDate = std::chrono::year_month_day;

/// The same day of the month so many months later (earlier for a negative number); where that month is too
/// short, its last day. So a month after 31 January is 28 or 29 February.
CalendarDate monthsLater(CalendarDate date, int months);

/// The time from one date to a later one, in the ways in which people count it. Whole months and years
/// are taken as far as they reach, then the days that remain; see monthsLater for the ends of months.
struct DateDifference {
    int days = 0;
    int workingDays = 0; ///< of the days, those from Monday to Friday

    struct {
        int weeks = 0;
        int days = 0;
    } weeksAndDays;
    struct {
        int months = 0;
        int days = 0;
    } monthsAndDays;
    struct {
        int years = 0;
        int months = 0;
        int days = 0;
    } yearsMonthsAndDays;
};

enum class LastDay { NotCounted, Counted };

/// From the earlier of two valid dates to the later one, whichever comes first. The first day counts; the
/// last one only if asked for, so that by default a day's difference to itself is 0.
DateDifference dateDifference(CalendarDate first, CalendarDate second, LastDay lastDay);

} // namespace velmora
