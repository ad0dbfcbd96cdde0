#pragma once

#include "platform/screens/Geometry.h"

#include <array>
#include <string_view>
#include <vector>

namespace velmora {

/// An outline of lines and curves.
struct VectorPath {
    struct Step {
        enum class Kind : unsigned char { Move, Line, Quadratic, Cubic, Close };
        Kind kind = Kind::Move;
        std::array<Point, 3> points{}; ///< the end is the last of those that the kind has
    };

    std::vector<Step> steps;

    void moveTo(Point point) { steps.push_back({Step::Kind::Move, {point}}); }
    void lineTo(Point point) { steps.push_back({Step::Kind::Line, {point}}); }
    void quadraticTo(Point control, Point end) { steps.push_back({Step::Kind::Quadratic, {control, end}}); }
    void cubicTo(Point first, Point second, Point end) {
        steps.push_back({Step::Kind::Cubic, {first, second, end}});
    }
    void close() { steps.push_back({Step::Kind::Close}); }
};

/// Reads an outline as SVG writes it, of the absolute commands M, L, H, V, Q, T and Z. What cannot be read
/// ends the outline.
VectorPath vectorPathWithOutline(std::string_view outline);

} // namespace velmora
