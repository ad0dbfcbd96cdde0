#include "tools/dates/DateCalculatorViewController.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/machine/Clock.h"
#include "platform/text/Log.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::array kMonthNames{"January", "February", "March",     "April",   "May",      "June",
                                 "July",    "August",   "September", "October", "November", "December"};
constexpr std::array kWeekdayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                   "Thursday", "Friday", "Saturday"};

const char* monthName(std::chrono::month month) { return kMonthNames[unsigned(month) - 1]; }

int lastDayOfMonth(CalendarDate date) {
    return static_cast<int>(
        unsigned(std::chrono::year_month_day_last(date.year(), date.month() / std::chrono::last).day()));
}

bool isOnWheels(CalendarDate date) {
    return date.ok() && int(date.year()) >= DateCalculatorViewController::kFirstYear &&
           int(date.year()) <= DateCalculatorViewController::kLastYear;
}

CalendarDate today() {
    const CalendarTime now = currentClock().now();
    return CalendarDate(std::chrono::year(now.year), std::chrono::month(unsigned(now.month)),
                        std::chrono::day(unsigned(now.day)));
}

/// What a machine shows whose clock tells no date of the wheels.
constexpr CalendarDate kDateOfAWrongClock(std::chrono::year(2000), std::chrono::January, std::chrono::day(1));

DateCalculatorViewController::Figure figure(int number, const std::string& unit) {
    return {number, std::to_string(number) + " " + unit + (number == 1 ? "" : "s")};
}

} // namespace

DateCalculatorViewController::DateCalculatorViewController() {
    setTitle("Dates");
    m_dates.fill(isOnWheels(today()) ? today() : kDateOfAWrongClock);
}

void DateCalculatorViewController::setDate(int index, CalendarDate date) {
    if (index >= 0 && index < kDateCount && isOnWheels(date)) {
        m_dates[static_cast<std::size_t>(index)] = date;
        m_updated.emit();
    }
}

void DateCalculatorViewController::setToday(int index) { setDate(index, today()); }

std::string DateCalculatorViewController::dateText(int index) const {
    const CalendarDate shown = date(index);
    const std::chrono::weekday weekday{std::chrono::sys_days(shown)};
    return std::string(kWeekdayNames[weekday.c_encoding()]) + ", " + std::to_string(unsigned(shown.day())) +
           " " + monthName(shown.month()) + " " + std::to_string(int(shown.year()));
}

int DateCalculatorViewController::numberOfRows(int index, Wheel wheel) const {
    switch (wheel) {
    case Wheel::Day:
        return lastDayOfMonth(date(index));
    case Wheel::Month:
        return static_cast<int>(kMonthNames.size());
    case Wheel::Year:
        return kLastYear - kFirstYear + 1;
    }
    return 0;
}

std::string DateCalculatorViewController::titleForRow(int index, Wheel wheel, int row) const {
    if (row < 0 || row >= numberOfRows(index, wheel)) {
        return {};
    }
    return wheel == Wheel::Month ? kMonthNames[static_cast<std::size_t>(row)] : std::to_string(row + 1);
}

int DateCalculatorViewController::selectedRow(int index, Wheel wheel) const {
    const CalendarDate shown = date(index);
    switch (wheel) {
    case Wheel::Day:
        return static_cast<int>(unsigned(shown.day())) - 1;
    case Wheel::Month:
        return static_cast<int>(unsigned(shown.month())) - 1;
    case Wheel::Year:
        return int(shown.year()) - kFirstYear;
    }
    return 0;
}

void DateCalculatorViewController::didSelectRow(int index, Wheel wheel, int row) {
    if (index < 0 || index >= kDateCount || row < 0 || row >= numberOfRows(index, wheel)) {
        return;
    }
    const CalendarDate former = date(index);
    const auto one = static_cast<unsigned>(row) + 1;
    CalendarDate chosen = former;
    switch (wheel) {
    case Wheel::Day:
        chosen = former.year() / former.month() / std::chrono::day(one);
        break;
    case Wheel::Month:
        chosen = former.year() / std::chrono::month(one) / former.day();
        break;
    case Wheel::Year:
        chosen = std::chrono::year(row + kFirstYear) / former.month() / former.day();
        break;
    }
    setDate(index, chosen.ok() ? chosen : monthsLater(chosen, 0));
}

void DateCalculatorViewController::setCountsLastDay(bool counts) {
    m_lastDay = counts ? LastDay::Counted : LastDay::NotCounted;
    m_updated.emit();
}

std::vector<DateCalculatorViewController::Row> DateCalculatorViewController::rows() const {
    const DateDifference difference = dateDifference(date(0), date(1), m_lastDay);
    const auto& weeks = difference.weeksAndDays;
    const auto& months = difference.monthsAndDays;
    const auto& years = difference.yearsMonthsAndDays;
    return {
        {"Days", {figure(difference.days, "day")}},
        {"Weeks", {figure(weeks.weeks, "week"), figure(weeks.days, "day")}},
        {"Months", {figure(months.months, "month"), figure(months.days, "day")}},
        {"Years", {figure(years.years, "year"), figure(years.months, "month"), figure(years.days, "day")}},
        {"Monday to Friday", {figure(difference.workingDays, "working day")}}};
}

std::string DateCalculatorViewController::orderText() const {
    return date(0) > date(1) ? "Counted from the second date, which is the earlier one." : "";
}

void DateCalculatorViewController::tapFigure(std::size_t row, std::size_t figure) {
    const std::vector<Row> all = rows();
    if (row >= all.size() || figure >= all[row].figures.size()) {
        return;
    }
    const int number = all[row].figures[figure].number;
    if (!returnToCalculator(navigationController(), [number](KeyboardViewController& calculator) {
            calculator.numberEntered(static_cast<double>(number));
        })) {
        log("no calculator line for a number of days");
    }
}

bool DateCalculatorViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
