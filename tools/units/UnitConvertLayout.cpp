#include "tools/units/UnitConvertLayout.h"

#include "tools/units/UnitConvertKeypad.h"

#include <algorithm>

namespace velmora {

namespace {

// In points of a phone.
constexpr std::array kWheelWidths{60.0, 110.0, 110.0};
constexpr double kWheelRowHeight = 40;
constexpr double kWheelGap = 4;
constexpr double kLabelHeight = 20;
constexpr double kFaultHeight = 16;
constexpr double kButtonMargin = 5;
constexpr double kEdge = 8;
constexpr double kLowestKey = 40;
constexpr double kHighestKey = 58;
constexpr double kSwapSide = 44;
constexpr double kColumnWidth = 320;

/// Above the wheels.
constexpr double kHeaderHeight = kEdge + 2 * kLabelHeight + 4 + kFaultHeight + 4;

// The size that a scene grows from, and how far it may grow.
constexpr Size kUprightSize{kColumnWidth, 500};
constexpr Size kWideSize{2 * kColumnWidth, 300};
constexpr double kLargestScale = 1.75;

double keyHeight(double keypadHeight) {
    constexpr double margins = (kUnitConvertKeyRows + 1) * kButtonMargin;
    return std::min(kHighestKey, (keypadHeight - margins) / kUnitConvertKeyRows);
}

/// The largest odd number of rows that fits, one at least.
int rowsWithin(double height) {
    const int rows = static_cast<int>(height / kWheelRowHeight);
    return std::max(1, rows % 2 == 0 ? rows - 1 : rows);
}

/// The measures before scaling.
struct Plan {
    Point header;
    Point keypad;
    double keypadHeight = 0;
    int rows = 3;
};

Plan uprightPlan(Size size) {
    constexpr double lowestKeypad = kUnitConvertKeyRows * (kLowestKey + kButtonMargin) + kButtonMargin;
    const int rows = std::min(7, rowsWithin(size.height - kHeaderHeight - lowestKeypad));
    const double below = kHeaderHeight + rows * kWheelRowHeight + kEdge;
    const double left = (size.width - kColumnWidth) / 2;
    return {{left, 0}, {left, below}, size.height - below, rows};
}

Plan widePlan(Size size) {
    const int rows = std::min(9, rowsWithin(size.height - kHeaderHeight - kEdge));
    const double height = kHeaderHeight + rows * kWheelRowHeight;
    const double left = (size.width - 2 * kColumnWidth) / 2;
    const double top = (size.height - height) / 2;
    return {{left, top}, {left + kColumnWidth, top + kEdge}, height - kEdge, rows};
}

} // namespace

UnitConvertLayout unitConvertLayout(Size view) {
    const bool isWide = view.width > view.height && view.width >= 2 * kColumnWidth;
    const Size grown = isWide ? kWideSize : kUprightSize;
    const double scale =
        std::clamp(std::min(view.width / grown.width, view.height / grown.height), 1.0, kLargestScale);
    const Size size{view.width / scale, view.height / scale};
    const Plan plan = isWide ? widePlan(size) : uprightPlan(size);
    const auto place = [&](const Point& origin, const Rect& rect) {
        return Rect{(origin.x + rect.x) * scale, (origin.y + rect.y) * scale, rect.width * scale,
                    rect.height * scale};
    };

    UnitConvertLayout layout;
    layout.scale = scale;
    layout.wheelRowHeight = kWheelRowHeight * scale;
    const double labelWidth = kColumnWidth - 3 * kEdge - kSwapSide;
    layout.leftSideLabel = place(plan.header, {kEdge, kEdge, labelWidth, kLabelHeight});
    layout.rightSideLabel = place(plan.header, {kEdge, kEdge + kLabelHeight + 4, labelWidth, kLabelHeight});
    layout.faultLabel =
        place(plan.header, {kEdge, kEdge + 2 * kLabelHeight + 4, kColumnWidth - 2 * kEdge, kFaultHeight});
    layout.swapButton = place(plan.header, {kColumnWidth - kEdge - kSwapSide, kEdge, kSwapSide, kSwapSide});

    double x = (kColumnWidth - kWheelWidths[0] - kWheelWidths[1] - kWheelWidths[2] - 2 * kWheelGap) / 2;
    for (std::size_t wheel = 0; wheel < kWheelWidths.size(); ++wheel) {
        layout.wheels[wheel] =
            place(plan.header, {x, kHeaderHeight, kWheelWidths[wheel], plan.rows * kWheelRowHeight});
        x += kWheelWidths[wheel] + kWheelGap;
    }

    const double high = keyHeight(plan.keypadHeight);
    const double wide =
        (kColumnWidth - (kUnitConvertKeyColumns + 1) * kButtonMargin) / kUnitConvertKeyColumns;
    const double unused = plan.keypadHeight - kUnitConvertKeyRows * (high + kButtonMargin) - kButtonMargin;
    for (const UnitConvertKey& key : unitConvertKeys()) {
        layout.keys.push_back(
            place(plan.keypad, {kButtonMargin + key.column * (wide + kButtonMargin),
                                unused / 2 + kButtonMargin + key.row * (high + kButtonMargin),
                                key.columns * wide + (key.columns - 1) * kButtonMargin, high}));
    }
    return layout;
}

} // namespace velmora
