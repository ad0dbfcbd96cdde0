#include "graphing/plot/CurveCoverage.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr double kOpaque = 255;
/// From here on a pixel counts as covered: the eye cannot tell a column of such pixels from a full one, and
/// the last few hundredths would cost most of the lines.
constexpr std::uint8_t kCovered = 190;

/// Buffers of curves that are gone. Panning makes new ones for every frame, and memory that the system hands
/// out afresh costs more than all the lines.
class SpareBuffers {
public:
    std::vector<std::uint8_t> take() {
        if (m_spare.empty()) {
            return {};
        }
        auto buffer = std::move(m_spare.back());
        m_spare.pop_back();
        return buffer;
    }
    void give(std::vector<std::uint8_t> buffer) {
        constexpr std::size_t most = 4; // one a slot
        if (m_spare.size() < most) {
            m_spare.push_back(std::move(buffer));
        }
    }
    static SpareBuffers& shared() {
        static SpareBuffers buffers;
        return buffers;
    }

private:
    std::vector<std::vector<std::uint8_t>> m_spare;
};

int pixelsOf(double points, double perPoint) {
    return static_cast<int>(std::ceil(std::max(0.0, points * perPoint)));
}

/// The part of the line from (x1, y1) to (x2, y2) with y between low and high; false when there is none.
bool cutToRange(double& x1, double& y1, double& x2, double& y2, double low, double high) {
    if (y1 > y2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    if (y2 < low || y1 > high) {
        return false;
    }
    const double slope = y2 > y1 ? (x2 - x1) / (y2 - y1) : 0;
    if (y1 < low) {
        x1 += (low - y1) * slope;
        y1 = low;
    }
    if (y2 > high) {
        x2 += (high - y2) * slope;
        y2 = high;
    }
    return true;
}

} // namespace

CurveCoverage::CurveCoverage(Size area, const DevicePixels& pixels)
    : m_columns(pixelsOf(area.width, pixels.perPoint)), m_rows(pixelsOf(area.height, pixels.perPoint)),
      m_scale(pixels.perPoint), m_reach(std::max(1.0, pixels.lineWidth * pixels.perPoint) / 2 + 0.5),
      m_alpha(SpareBuffers::shared().take()), m_extents(static_cast<std::size_t>(m_rows), {m_columns, 0}),
      m_coveredInColumn(static_cast<std::size_t>(m_columns)) {
    m_alpha.assign(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows), 0);
}

CurveCoverage::~CurveCoverage() { SpareBuffers::shared().give(std::move(m_alpha)); }

void CurveCoverage::cover(int column, int row, double alpha, int& gained) {
    std::uint8_t& pixel = m_alpha[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                                  static_cast<std::size_t>(column)];
    const auto level = static_cast<std::uint8_t>(std::min(alpha, 1.0) * kOpaque);
    if (level > pixel) {
        const bool isNew = pixel < kCovered && level >= kCovered;
        pixel = level;
        if (isNew) {
            ++m_coveredInColumn[static_cast<std::size_t>(column)];
            ++gained;
        }
    }
}

int CurveCoverage::addLine(Point from, Point to) {
    double x1 = from.x * m_scale;
    double y1 = from.y * m_scale;
    double x2 = to.x * m_scale;
    double y2 = to.y * m_scale;
    if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) {
        return 0;
    }
    if (!cutToRange(x1, y1, x2, y2, -m_reach, m_rows + m_reach) ||
        !cutToRange(y1, x1, y2, x2, -m_reach, m_columns + m_reach)) {
        return 0;
    }
    if (y1 > y2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double length = std::hypot(dx, dy);
    const double ux = length > 0 ? dx / length : 0;
    const double uy = length > 0 ? dy / length : 1;
    const int firstRow = std::max(0, static_cast<int>(std::floor(y1 - m_reach)));
    const int lastRow = std::min(m_rows - 1, static_cast<int>(std::floor(y2 + m_reach)));
    const double left = std::min(x1, x2) - m_reach;
    const double right = std::max(x1, x2) + m_reach;
    // Across a row the line's band is so wide to either side of where it crosses the row.
    const double halfBand = uy > 0 ? m_reach / uy : right - left;
    int gained = 0;
    for (int row = firstRow; row <= lastRow; ++row) {
        const double y = row + 0.5;
        const double crossing = uy > 0 ? x1 + (y - y1) * ux / uy : (x1 + x2) / 2;
        const int begin = std::max(0, static_cast<int>(std::floor(std::max(left, crossing - halfBand))));
        const int end =
            std::min(m_columns, static_cast<int>(std::ceil(std::min(right, crossing + halfBand))) + 1);
        if (begin >= end) {
            continue;
        }
        PixelCoverage::Extent& extent = m_extents[static_cast<std::size_t>(row)];
        extent.begin = std::min(extent.begin, begin);
        extent.end = std::max(extent.end, end);
        const double py = y - y1;
        for (int column = begin; column < end; ++column) {
            const double px = column + 0.5 - x1;
            const double along = px * ux + py * uy;
            double distance = 0;
            if (along < 0) {
                distance = std::hypot(px, py);
            } else if (along > length) {
                distance = std::hypot(px - dx, py - dy);
            } else {
                distance = std::fabs(px * uy - py * ux);
            }
            if (distance < m_reach) {
                cover(column, row, m_reach - distance, gained);
            }
        }
    }
    return gained;
}

bool CurveCoverage::isFull(double fromX, double toX) const {
    const int begin = std::clamp(static_cast<int>(std::floor(fromX * m_scale)), 0, m_columns);
    const int end = std::clamp(static_cast<int>(std::ceil(toX * m_scale)), begin, m_columns);
    return std::all_of(m_coveredInColumn.begin() + begin, m_coveredInColumn.begin() + end,
                       [this](int covered) { return covered == m_rows; });
}

PixelCoverage CurveCoverage::pixels() const { return {m_columns, m_rows, m_alpha.data(), m_extents.data()}; }

} // namespace velmora
