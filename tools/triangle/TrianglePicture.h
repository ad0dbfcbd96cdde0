#pragma once

#include "toolkit/Picture.h"
#include "tools/triangle/Triangle.h"
#include "tools/triangle/VectorGeometry.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

/// A solved triangle, drawn to scale with its sides and angles named and measured; of two solutions the
/// other one faintly behind it, on the same base.
class TrianglePicture final : public Picture {
public:
    /// A triangle whose measures do not make one shows nothing.
    void setTriangles(const Triangle& triangle, const Triangle* other);
    bool isEmpty() const { return !m_shape; }

    Color backgroundColor() const override;
    void draw(DrawingContext& context) const override;
    std::vector<LabelRecord> labels() const override;

private:
    /// The corners opposite the sides a, b and c, in units of the sides, y upwards.
    struct Corner {
        double x = 0;
        double y = 0;
    };
    using Shape = std::array<Corner, 3>;
    struct Measure {
        std::string text;
        bool isEntered = false;
    };
    using Corners = std::array<CGPoint, 3>;

    using SolversNames = std::map<std::string, std::string>;
    static std::optional<Shape> shapeOf(const Triangle& triangle, const SolversNames* names);
    Corners placed(const Shape& shape) const;

    std::optional<Shape> m_shape;
    std::optional<Shape> m_otherShape;
    std::array<Measure, 6> m_measures; ///< in the order of the keys
};

} // namespace velmora
