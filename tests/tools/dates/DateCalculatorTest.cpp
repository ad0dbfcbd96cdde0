#include "tools/dates/DateCalculatorViewController.h"

#include "platform/machine/Clock.h"
#include "tests/calculator/CalculatorFixture.h"
#include "tools/dates/DateDifference.h"

namespace velmora::test {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

CalendarDate date(int year, unsigned month, unsigned day) {
    return CalendarDate(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day));
}

/// "days, weeks+days, months+days, years+months+days, working days".
std::string counted(CalendarDate first, CalendarDate second, LastDay lastDay = LastDay::NotCounted) {
    const DateDifference d = dateDifference(first, second, lastDay);
    std::ostringstream text;
    text << d.days << ", " << d.weeksAndDays.weeks << "+" << d.weeksAndDays.days << ", "
         << d.monthsAndDays.months << "+" << d.monthsAndDays.days << ", " << d.yearsMonthsAndDays.years << "+"
         << d.yearsMonthsAndDays.months << "+" << d.yearsMonthsAndDays.days << ", " << d.workingDays;
    return text.str();
}

TEST(DateDifference, countsAsACalendarIsRead) {
    struct Row {
        CalendarDate first, second;
        const char* counted;
    };
    const Row rows[] = {
        {date(2026, 11, 23), date(2026, 11, 23), "0, 0+0, 0+0, 0+0+0, 0"},
        {date(2024, 1, 31), date(2024, 2, 29), "29, 4+1, 1+0, 0+1+0, 21"}, // the end of a month to the next
        {date(2023, 1, 31), date(2023, 2, 28), "28, 4+0, 1+0, 0+1+0, 20"},
        {date(2023, 1, 31), date(2023, 3, 1), "29, 4+1, 1+1, 0+1+1, 21"},
        {date(2023, 1, 30), date(2023, 2, 27), "28, 4+0, 0+28, 0+0+28, 20"},
        {date(2024, 2, 29), date(2025, 2, 28), "365, 52+1, 12+0, 1+0+0, 261"}, // a birthday on a leap day
        {date(2024, 2, 29), date(2025, 3, 1), "366, 52+2, 12+1, 1+0+1, 262"},
        {date(2024, 2, 29), date(2028, 2, 29), "1461, 208+5, 48+0, 4+0+0, 1043"},
        {date(2023, 12, 31), date(2024, 1, 1), "1, 0+1, 0+1, 0+0+1, 0"}, // a Sunday
        {date(1900, 2, 28), date(1900, 3, 1), "1, 0+1, 0+1, 0+0+1, 1"},  // no leap year
        {date(2000, 2, 28), date(2000, 3, 1), "2, 0+2, 0+2, 0+0+2, 2"},  // one
        // The day numbers of 1 January 2000 (Julian date 2451544.5) and of 20 July 1969 (2440422.5).
        {date(1969, 7, 20), date(2000, 1, 1), "11122, 1588+6, 365+12, 30+5+12, 7945"},
        // 9999 years of 365.2425 days, on a calendar that repeats after 400 years.
        {date(1, 1, 1), date(9999, 12, 31), "3652058, 521722+4, 119987+30, 9998+11+30, 2608614"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(counted(row.first, row.second), row.counted);
        EXPECT_EQ(counted(row.second, row.first), row.counted) << "whichever comes first";
    }
    // A working week, a January, and the last day that there is.
    EXPECT_EQ(counted(date(2026, 11, 23), date(2026, 11, 27), LastDay::Counted), "5, 0+5, 0+5, 0+0+5, 5");
    EXPECT_EQ(counted(date(2026, 1, 1), date(2026, 1, 31), LastDay::Counted), "31, 4+3, 1+0, 0+1+0, 22");
    EXPECT_EQ(counted(date(9999, 12, 31), date(9999, 12, 31), LastDay::Counted), "1, 0+1, 0+1, 0+0+1, 1");
}

TEST(DateDifference, partsAddUpOnEveryPairOfDays) {
    // Four years and a day from every day of a leap year's cycle cover each place of a month's end.
    const sys_days start = date(2023, 1, 1);
    for (int from = 0; from < 1461; from += 3) {
        int formerMonths = 0;
        int workingDays = 0;
        for (int length = 0; length < 800; ++length) {
            const sys_days first = start + days(from);
            const sys_days last = first + days(length);
            const DateDifference d = dateDifference(first, last, LastDay::NotCounted);
            ASSERT_EQ(d.days, length);
            ASSERT_EQ(d.workingDays, workingDays);
            const auto& parts = d.yearsMonthsAndDays;
            ASSERT_EQ(sys_days(monthsLater(first, 12 * parts.years + parts.months)) + days(parts.days), last);
            ASSERT_GE(parts.days, 0);
            ASSERT_LT(parts.days, 31);
            ASSERT_LT(parts.months, 12);
            ASSERT_EQ(d.monthsAndDays.months, 12 * parts.years + parts.months);
            ASSERT_GE(d.monthsAndDays.months, formerMonths) << "a later day is never fewer months away";
            formerMonths = d.monthsAndDays.months;
            workingDays += std::chrono::weekday(last).iso_encoding() <= 5 ? 1 : 0;
        }
    }
}

class DateCalculator : public KeyboardTest {
protected:
    using Wheel = DateCalculatorViewController::Wheel;

    DateCalculator() {
        clock.setNow({.year = 2028, .month = 2, .day = 29, .hour = 23});
        open();
        dates = std::make_shared<DateCalculatorViewController>();
        stack->push(dates);
    }
    void choose(int index, Wheel wheel, const std::string& title) {
        for (int row = 0; row < dates->numberOfRows(index, wheel); ++row) {
            if (dates->titleForRow(index, wheel, row) == title) {
                dates->didSelectRow(index, wheel, row);
                return;
            }
        }
        ADD_FAILURE() << "no row " << title;
    }
    Texts figures() const {
        Texts texts;
        for (const auto& row : dates->rows()) {
            std::string text = row.title + ":";
            for (const auto& figure : row.figures) {
                text += " " + figure.text;
            }
            texts.push_back(text);
        }
        return texts;
    }

    ManualClock clock;
    ClockScope clockScope{clock};
    std::shared_ptr<DateCalculatorViewController> dates;
};

TEST_F(DateCalculator, beginsTodayAndFollowsItsWheels) {
    EXPECT_EQ(dates->dateText(0), "Tuesday, 29 February 2028");
    EXPECT_EQ(figures(), (Texts{"Days: 0 days", "Weeks: 0 weeks 0 days", "Months: 0 months 0 days",
                                "Years: 0 years 0 months 0 days", "Monday to Friday: 0 working days"}));
    int updates = 0;
    const Subscription subscription = dates->updated().subscribe([&] { ++updates; });
    choose(1, Wheel::Year, "2029"); // which has no such day
    EXPECT_EQ(dates->dateText(1), "Wednesday, 28 February 2029");
    EXPECT_EQ(dates->numberOfRows(1, Wheel::Day), 28);
    choose(1, Wheel::Month, "March");
    choose(1, Wheel::Day, "31");
    choose(1, Wheel::Month, "April");
    EXPECT_EQ(dates->dateText(1), "Monday, 30 April 2029");
    EXPECT_EQ(figures(), (Texts{"Days: 426 days", "Weeks: 60 weeks 6 days", "Months: 14 months 1 day",
                                "Years: 1 year 2 months 1 day", "Monday to Friday: 304 working days"}));
    dates->setCountsLastDay(true);
    EXPECT_EQ(figures()[0], "Days: 427 days");
    EXPECT_EQ(updates, 5);
    EXPECT_EQ(dates->orderText(), "");
    choose(0, Wheel::Year, "9999");
    EXPECT_NE(dates->orderText(), "");
    EXPECT_EQ(dates->selectedRow(0, Wheel::Year), 9998);
    const CalendarDate before = dates->date(0);
    dates->didSelectRow(0, Wheel::Year, 9999);
    dates->didSelectRow(0, Wheel::Day, -1);
    dates->setDate(0, date(0, 1, 1));
    dates->setDate(0, date(2027, 2, 29));
    EXPECT_EQ(dates->date(0), before);
    dates->setToday(0);
    EXPECT_EQ(dates->date(0), date(2028, 2, 29));
}

TEST_F(DateCalculator, putsATappedFigureIntoTheLine) {
    press("2 *");
    dates->setDate(1, date(2029, 4, 30));
    dates->tapFigure(3, 7); // there is none
    EXPECT_EQ(stack->topViewController(), dates);
    dates->tapFigure(2, 0);
    EXPECT_EQ(stack->topViewController(), keyboard);
    EXPECT_EQ(entry(), "2*(14)");
}

TEST_F(DateCalculator, survivesAClockThatTellsNoDate) {
    clock.setNow({.year = 0, .month = 13, .day = 32});
    EXPECT_EQ(DateCalculatorViewController().dateText(0), "Saturday, 1 January 2000");
}

} // namespace
} // namespace velmora::test
