#include "toolkit/OrvPickerSearch.h"

#include "platform/machine/Clock.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(OrvPickerSearch, gathersWhatIsTypedWithoutAPause) {
    ManualClock clock;
    const ClockScope scope(clock);
    clock.advance(100);
    const std::vector<std::string> units{"meter", "centimeter", "mile", "Celsius", "calorie", "mil"};
    const PickerRows rows{static_cast<int>(units.size()),
                          [&](int row) { return units[static_cast<std::size_t>(row)]; }};
    OrvPickerSearch search;
    struct Press {
        double pause;
        const char* character;
        int found; ///< -1 for nothing
    };
    const Press presses[] = {
        {2, "m", 2},                               // the next one behind the selected first
        {2, "m", 5},  {2, "m", 0},                 // and on, round the end
        {2, "C", 1},  {.3, "A", 4},                // capital or not
        {2, "m", 5},  {.3, "i", 5},                // still fits
        {2, "m", 0},  {.3, "i", 2},                // the next that begins so
        {.3, "l", 5},                              // just that
        {2, "c", 1},  {.3, "c", 3},  {.3, "c", 4}, // the same letter visits all of its rows
        {2, "x", -1}, {.3, "7", -1}, {.3, "", -1},
    };
    int selected = 0;
    for (const Press& press : presses) {
        clock.advance(press.pause);
        const auto row = search.rowFor(press.character, rows, selected);
        EXPECT_EQ(row.value_or(-1), press.found) << press.character << " at " << selected;
        selected = row.value_or(selected);
    }
    EXPECT_EQ(search.rowFor("m", PickerRows{}, 0), std::nullopt);
}

TEST(OrvPickerSearch, findsAYearAmongThousands) {
    ManualClock clock;
    const ClockScope scope(clock);
    const PickerRows years{9999, [](int row) { return std::to_string(row + 1); }};
    for (const char* year : {"1969", "7", "9999", "2026", "20"}) {
        clock.advance(2);
        OrvPickerSearch search;
        int selected = 2025;
        for (const char* digit = year; *digit != 0; ++digit) {
            clock.advance(0.2);
            selected = search.rowFor(std::string(1, *digit), years, selected).value_or(-1);
        }
        EXPECT_EQ(years.text(selected), year);
    }
}

} // namespace
} // namespace velmora
