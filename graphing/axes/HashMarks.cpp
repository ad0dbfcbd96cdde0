#include "graphing/axes/HashMarks.h"

#include "engine/numbers/MyMath.h"
#include "engine/numbers/ShortNumber.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

constexpr double kLargestWrittenOut = 100000; // whole numbers below it have all their digits
constexpr double kSmallestFont = 7;
constexpr double kLabelHeight = 20;
constexpr int kLabelWidth = 50;
constexpr double kLabelGap = 7;      // between the numbers of neighbouring marks
constexpr double kEdgeDistance = 10; // of a number's centre, at least

/// The values from the first multiple of the step on, by adding the step up; none where adding it no longer
/// changes a value, as it is far out on an axis.
template <class Visit> void forEachMultiple(double step, double low, double high, Visit visit) {
    for (double value = step * std::ceil(low / step); value <= high;) {
        visit(value);
        const double next = value + step;
        if (!(next > value)) {
            return;
        }
        value = next;
    }
}

/// The number at a mark; empty at 0, where the other axis would cross it.
std::string markText(double value, int digits) {
    if (MyMath::isInteger(value) && std::fabs(value) < kLargestWrittenOut) {
        const long whole = std::lround(value);
        return whole == 0 ? std::string() : std::to_string(whole);
    }
    return shortNumber(value, digits);
}

/// The numbers at all marks, with as many digits as tell neighbours apart.
std::vector<std::string> markTexts(const std::vector<double>& values) {
    std::vector<std::string> texts(values.size());
    constexpr int fewest = 6;
    constexpr int most = std::numeric_limits<double>::max_digits10;
    for (int digits = fewest; digits <= most; ++digits) {
        std::ranges::transform(values, texts.begin(),
                               [digits](double value) { return markText(value, digits); });
        if (std::ranges::adjacent_find(texts) == texts.end()) {
            break;
        }
    }
    return texts;
}

/// How far a centre is pushed in, so that the number stays on the screen.
double pushedIn(double centre, double extent) {
    if (centre < kEdgeDistance) {
        return kEdgeDistance - centre;
    }
    return std::min(0.0, extent - centre - kEdgeDistance);
}

} // namespace

HashMarkSpacing HashMarkSpacing::chosenFor(double low, double high, bool oneLinePerMark) {
    // Single precision decides, so ranges that differ by rounding only get the same marks.
    auto range = static_cast<float>(high - low);
    if (!std::isfinite(range) || range <= 0) {
        return {};
    }
    constexpr double least = 3.8;
    constexpr double most = 38;
    constexpr int ten = 10;
    int exponent = 0;
    while (range < least) {
        range *= ten;
        --exponent;
    }
    while (range > most) {
        range /= ten;
        ++exponent;
    }
    struct Choice {
        double below;
        int multiple;
        int lines;
    };
    constexpr std::array kChoices{Choice{7.5, 1, 5}, Choice{15, 2, 4}, Choice{HUGE_VAL, 5, 5}};
    const auto& choice =
        *std::ranges::find_if(kChoices, [range](const Choice& c) { return range < c.below; });
    return {choice.multiple * std::pow(ten, exponent), oneLinePerMark ? 1 : choice.lines};
}

HashMarks HashMarks::along(bool vertical, const Viewport& viewport, const HashMarkSpacing& spacing, bool wide,
                           const Color& textColor) {
    HashMarks marks;
    const double low = vertical ? viewport.yMin : viewport.xMin;
    const double high = vertical ? viewport.yMax : viewport.xMax;
    const double crossLow = vertical ? viewport.xMin : viewport.yMin;
    const double crossHigh = vertical ? viewport.xMax : viewport.yMax;
    const double width = viewport.width;
    const double height = viewport.height;
    if (crossLow >= 0) {
        marks.axisPosition = static_cast<float>(vertical ? 0 : height);
    } else if (crossHigh <= 0) {
        marks.axisPosition = static_cast<float>(vertical ? width : 0);
    } else {
        marks.axisPosition = viewport.screenCoordWithCoord(0, !vertical);
    }
    if (spacing.hashmarkSpacing <= 0) {
        return marks;
    }
    const auto onScreen = [&](double value) { return viewport.screenCoordWithCoord(value, vertical); };
    forEachMultiple(spacing.hashmarkSpacing / spacing.linesPerHashmark, low, high,
                    [&](double value) { marks.gridLines.push_back(onScreen(value)); });

    // Numbers stand below the horizontal axis and left of the vertical one, while there is room.
    const double axis = marks.axisPosition;
    constexpr double roomBelow = 50;
    constexpr double roomLeft = 50;
    double offset = vertical ? (wide ? -35 : -25) : (wide ? 30 : 20);
    if (vertical ? axis <= roomLeft : height - axis < roomBelow) {
        offset = -offset;
    }
    int labelWidth = kLabelWidth;
    if (!vertical) {
        const double distance = spacing.hashmarkSpacing * width / (high - low);
        if (distance <= kLabelWidth + kLabelGap) {
            labelWidth = std::max(0, static_cast<int>(std::lround(distance - kLabelGap)));
        }
    }
    const int halfWidth = labelWidth / 2; // whole points
    std::vector<double> values;
    forEachMultiple(spacing.hashmarkSpacing, low, high, [&](double value) { values.push_back(value); });
    std::vector<std::string> texts = markTexts(values);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float along = onScreen(values[i]);
        marks.ticks.push_back(along);
        if (texts[i].empty()) {
            continue;
        }
        double x = vertical ? axis + offset : along;
        double y = vertical ? along : axis + offset;
        x += pushedIn(x, width);
        y += pushedIn(y, height);
        marks.labels.push_back(
            {.text = std::move(texts[i]),
             .frame = {x - halfWidth, y - kLabelHeight / 2, static_cast<double>(labelWidth), kLabelHeight},
             .fontSize = wide ? 18.0 : 12.0,
             .minimumFontSize = kSmallestFont,
             .textColor = textColor,
             .alignment = TextAlignment::Centre});
    }
    return marks;
}

} // namespace velmora
