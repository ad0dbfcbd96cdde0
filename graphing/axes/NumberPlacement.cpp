#include "graphing/axes/NumberPlacement.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr double kMargin = 2;    // to the edge of the screen
constexpr double kGap = 3;       // between two numbers, and to a tick
constexpr double kHalfTick = 10; // of which a number keeps clear

bool overlap(const Rect& a, const Rect& b) {
    return a.x < b.x + b.width + kGap && b.x < a.x + a.width + kGap && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

LabelRecord fitted(LabelRecord label) {
    label.fontSize = fittedFontSize(label);
    return label;
}

/// Moves the label along x until its text stands clear of the tick that ends `axis` at either side.
void moveOffTick(LabelRecord& label, double axis) {
    const Rect text = textRect(label);
    const bool isRight = label.frame.x + label.frame.width / 2 > axis;
    const double shift = isRight ? std::max(0.0, axis + kHalfTick + kGap - text.x)
                                 : std::min(0.0, axis - kHalfTick - kGap - (text.x + text.width));
    label.frame.x += shift;
}

void moveOnScreen(LabelRecord& label, double width) {
    const Rect text = textRect(label);
    if (text.width + 2 * kMargin <= width) {
        label.frame.x += std::clamp(text.x, kMargin, width - kMargin - text.width) - text.x;
    }
}

} // namespace

Rect textRect(const LabelRecord& label) {
    const Size size = textSize(label);
    const double width = std::min(size.width, label.frame.width);
    const double room = label.frame.width - width;
    const double left = label.alignment == TextAlignment::Left     ? 0
                        : label.alignment == TextAlignment::Centre ? room / 2
                                                                   : room;
    return {label.frame.x + left, label.frame.y + (label.frame.height - size.height) / 2, width, size.height};
}

std::vector<LabelRecord> placedNumbers(const HashMarks& vertical, const HashMarks& horizontal, Size area,
                                       const std::vector<Rect>& taken) {
    // A number that is where it belongs goes before one that had to be moved in from the edge.
    std::vector<LabelRecord> inPlace;
    std::vector<LabelRecord> moved;
    for (const HashMarks* marks : {&vertical, &horizontal}) {
        for (const LabelRecord& label : marks->labels) {
            LabelRecord number = fitted(label);
            if (marks == &vertical) {
                moveOffTick(number, marks->axisPosition);
            }
            const double before = number.frame.x;
            moveOnScreen(number, area.width);
            (number.frame.x == before ? inPlace : moved).push_back(std::move(number));
        }
    }
    std::vector<LabelRecord> placed;
    std::vector<Rect> occupied = taken;
    for (std::vector<LabelRecord>* numbers : {&inPlace, &moved}) {
        for (LabelRecord& number : *numbers) {
            const Rect text = textRect(number);
            if (std::ranges::none_of(occupied, [&](const Rect& rect) { return overlap(rect, text); })) {
                occupied.push_back(text);
                placed.push_back(std::move(number));
            }
        }
    }
    return placed;
}

} // namespace velmora
