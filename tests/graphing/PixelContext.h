#pragma once

#include "platform/screens/DrawingContext.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace velmora {

/// A context with pixels, which remembers how much the last curve covered of each.
class PixelContext final : public DrawingContext {
public:
    explicit PixelContext(double pixelsPerPoint = 1) : m_pixelsPerPoint(pixelsPerPoint) {}

    double pixelsPerPoint() const override { return m_pixelsPerPoint; }
    void fillCoverage(const PixelCoverage& coverage) override {
        columns = coverage.columns;
        rows = coverage.rows;
        alpha.assign(coverage.alpha, coverage.alpha + columns * rows);
        inkOfCurves.push_back(static_cast<int>(std::ranges::count_if(alpha, [](int a) { return a >= 128; })));
        for (int row = 0; row < rows; ++row) { // nothing is covered outside the extents
            const auto& [begin, end] = coverage.extents[row];
            for (int column = 0; column < columns; ++column) {
                isWithinExtents =
                    isWithinExtents && (at(column, row) == 0 || (column >= begin && column < end));
            }
        }
    }
    int at(int column, int row) const { return alpha[std::size_t(row * columns + column)]; }
    /// How many pixels of a column are covered for the most part.
    int coveredIn(int column) const {
        int count = 0;
        for (int row = 0; row < rows; ++row) {
            count += at(column, row) >= 128 ? 1 : 0;
        }
        return count;
    }

    void setLineWidth(double) override {}
    void setStrokeColor(const Color&) override {}
    void setFillColor(const Color&) override {}
    void moveTo(Point) override {}
    void lineTo(Point) override {}
    void strokePath() override {}
    void strokeEllipse(const Rect&) override {}
    void fillEllipse(const Rect&) override {}
    void fillRect(const Rect&) override {}

    std::vector<int> inkOfCurves; ///< how many pixels each of them covers for the most part
    int columns = 0;
    int rows = 0;
    std::vector<std::uint8_t> alpha;
    bool isWithinExtents = true;

private:
    double m_pixelsPerPoint;
};

} // namespace velmora
