#pragma once

#include "platform/screens/DrawingContext.h"
#include "platform/screens/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace velmora {

/// How a screen shows a plotting area in pixels.
struct DevicePixels {
    double perPoint = 0;  ///< 0 while there are none: lines are wanted, as they are
    double lineWidth = 1; ///< in points

    bool isOn() const { return perPoint > 0; }
    bool operator==(const DevicePixels&) const = default;
};

/// Which pixels the lines of a curve cover, and how much. Lines upon one another cover no more than one
/// of them does, so what a curve costs in memory and painting does not grow with their number, and they meet
/// without beads. A line's ends are round.
class CurveCoverage {
public:
    /// Of a plotting area in points. Nothing is covered.
    CurveCoverage(Size area, const DevicePixels& pixels);
    ~CurveCoverage();
    CurveCoverage(const CurveCoverage&) = delete;
    CurveCoverage& operator=(const CurveCoverage&) = delete;

    /// Covers a line between two points of the area, which may lie outside; one with an end that is not
    /// finite is none. Gives how many pixels were not covered before and are now.
    int addLine(Point from, Point to);
    /// Whether every pixel of the columns between two places across is covered.
    bool isFull(double fromX, double toX) const;

    /// To be painted.
    PixelCoverage pixels() const;

private:
    void cover(int column, int row, double alpha, int& gained);

    int m_columns;
    int m_rows;
    double m_scale;
    double m_reach; ///< of a line to either side, in pixels, to where it covers nothing
    std::vector<std::uint8_t> m_alpha;
    std::vector<PixelCoverage::Extent> m_extents;
    std::vector<int> m_coveredInColumn;
};

} // namespace velmora
