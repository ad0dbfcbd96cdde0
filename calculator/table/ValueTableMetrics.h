#pragma once

namespace velmora {

/// The sizes of the table of values, by the width of the screen, in points.
struct ValueTableMetrics {
    double width = 320;
    double margin = 5;
    double fontSize = 13;
    double leftLabelWidth = 60;
    double rowHeight = 20; ///< of a line; a row of pairs has one line a pair
    double labelMargin = 2;

    double labelHeight() const { return rowHeight - labelMargin; }

    static constexpr ValueTableMetrics forWidth(double width) {
        constexpr double wide = 500;
        return width > wide ? ValueTableMetrics{.width = width,
                                                .margin = 10,
                                                .fontSize = 20,
                                                .leftLabelWidth = 100,
                                                .rowHeight = 30}
                            : ValueTableMetrics{.width = width};
    }
};

} // namespace velmora
