#pragma once

#include "platform/screens/ViewController.h"
#include "tools/dates/DateDifference.h"

#include <array>
#include <string>
#include <vector>

namespace velmora {

/// The screen on which two dates are chosen on wheels, and the time between them is read and put into the
/// calculator's line. Both dates are today at first.
class DateCalculatorViewController final : public ViewController {
public:
    static constexpr int kFirstYear = 1;
    static constexpr int kLastYear = 9999;
    static constexpr int kDateCount = 2;
    enum class Wheel { Day, Month, Year };
    static constexpr std::array kWheels{Wheel::Day, Wheel::Month, Wheel::Year};

    DateCalculatorViewController();

    std::string className() const override { return "DateCalculatorViewController"; }
    std::string qmlFile() const override { return "DateCalculator.qml"; }

    // Dates are told by their index, 0 or 1. A row that does not exist changes nothing.

    CalendarDate date(int index) const { return m_dates[static_cast<std::size_t>(index)]; }
    /// A date that the calendar or the wheels do not have is ignored.
    void setDate(int index, CalendarDate date);
    void setToday(int index);
    /// "Monday, 23 November 2026".
    std::string dateText(int index) const;

    int numberOfRows(int index, Wheel wheel) const;
    std::string titleForRow(int index, Wheel wheel, int row) const;
    int selectedRow(int index, Wheel wheel) const;
    /// Where the other wheels leave a month too short for the day, the day becomes its last one.
    void didSelectRow(int index, Wheel wheel, int row);

    bool countsLastDay() const { return m_lastDay == LastDay::Counted; }
    void setCountsLastDay(bool counts);

    /// A number that can be put into the calculator's line, with its unit: "13 months".
    struct Figure {
        int number = 0;
        std::string text;
    };
    /// One way to count the time between the dates.
    struct Row {
        std::string title;
        std::vector<Figure> figures;
    };
    std::vector<Row> rows() const;
    /// Which date is the later one, where that is not the second.
    std::string orderText() const;
    /// Puts the figure into the calculator's line, which is then shown.
    void tapFigure(std::size_t row, std::size_t figure);

    /// Emitted when the dates or what is counted have changed.
    Signal<>& updated() { return m_updated; }

    bool shouldAutorotate(Orientation orientation) const override;

private:
    std::array<CalendarDate, kDateCount> m_dates;
    LastDay m_lastDay = LastDay::NotCounted;
    Signal<> m_updated;
};

} // namespace velmora
