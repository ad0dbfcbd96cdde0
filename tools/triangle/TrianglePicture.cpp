#include "tools/triangle/TrianglePicture.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr Color kBackground{0.078, 0.090, 0.106};
constexpr Color kEdge{0.561, 0.737, 1.0};
constexpr Color kOtherEdge{0.561, 0.737, 1.0, 0.35};
constexpr Color kCorner{1.0, 0.85, 0.4};
constexpr Color kEnteredText{0.957, 0.965, 0.973};
constexpr Color kCalculatedText{0.663, 0.694, 0.737};
constexpr double kCornerRadius = 3.5;
constexpr double kMargin = 34; ///< for the labels around the triangle
constexpr double kFontSize = 13;
constexpr std::size_t kCorners = 3;

constexpr std::array<const char*, 6> kNames{"a", "b", "c", "A", "B", "C"};

double degreesToRadians(double degrees) { return degrees * std::acos(-1.0) / 180; }

bool overlaps(const Rect& a, const Rect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

double overlapWith(const Rect& frame, const std::vector<LabelRecord>& others) {
    double area = 0;
    for (const LabelRecord& other : others) {
        if (overlaps(frame, other.frame)) {
            const double width = std::min(frame.x + frame.width, other.frame.x + other.frame.width) -
                                 std::max(frame.x, other.frame.x);
            const double height = std::min(frame.y + frame.height, other.frame.y + other.frame.height) -
                                  std::max(frame.y, other.frame.y);
            area += width * height;
        }
    }
    return area;
}

/// The frame of a label beside a point, kept within the picture. Of places further and further away, and to
/// the sides, the first that no other label has: in a needle many labels belong to nearly one point.
Rect freeFrame(CGPoint point, CGPoint direction, Size label, Size picture,
               const std::vector<LabelRecord>& others) {
    const double reach = (std::fabs(static_cast<double>(direction.x)) * label.width +
                          std::fabs(static_cast<double>(direction.y)) * label.height) /
                             2 +
                         6;
    const CGPoint across{-direction.y, direction.x};
    std::optional<Rect> best;
    double least = 0;
    for (const double out : {0.0, 1.0, 2.0, -2.4}) {
        for (const double aside : {0.0, 1.0, -1.0, 2.0, -2.0, 3.5, -3.5}) {
            const CGPoint centre =
                vectorSum(point, vectorSum(scalarProduct(direction, reach + out * label.height),
                                           scalarProduct(across, aside * label.height)));
            const CGRect frame =
                CGRectMakeCenter(centre, {static_cast<float>(label.width), static_cast<float>(label.height)});
            const Rect inside{std::clamp(static_cast<double>(frame.origin.x), 0.0,
                                         std::max(0.0, picture.width - label.width)),
                              std::clamp(static_cast<double>(frame.origin.y), 0.0,
                                         std::max(0.0, picture.height - label.height)),
                              label.width, label.height};
            const double overlap = overlapWith(inside, others);
            if (!best || overlap < least) {
                best = inside;
                least = overlap;
            }
            if (overlap == 0) {
                return inside;
            }
        }
    }
    return *best;
}

} // namespace

Color TrianglePicture::backgroundColor() const { return kBackground; }

std::optional<TrianglePicture::Shape> TrianglePicture::shapeOf(const Triangle& triangle,
                                                               const SolversNames* names) {
    std::array<double, kCorners> sides{};
    std::array<double, kCorners> angles{};
    for (std::size_t i = 0; i < kCorners; ++i) {
        sides[i] = triangle.doubleForKey(kTriangleKeys[i]);
        angles[i] = triangle.doubleForKey(kTriangleKeys[kCorners + i]);
        if (!std::isfinite(sides[i]) || !std::isfinite(angles[i]) || sides[i] < 0 || angles[i] < 0) {
            return std::nullopt;
        }
    }
    // The longest side lies at the bottom. Of two solutions it is the side in which they differ, so that the
    // corner with the given angle, and the side from it that both have, stay in place.
    std::size_t base = static_cast<std::size_t>(std::ranges::max_element(sides) - sides.begin());
    std::size_t left = (base + 1) % kCorners;
    if (names != nullptr) {
        for (std::size_t i = 0; i < kCorners; ++i) {
            const std::string& name = names->at(std::string(kTriangleKeys[i]));
            base = name == "s3" ? i : base;
            left = name == "s1" ? i : left;
        }
    }
    const std::size_t right = kCorners - base - left;
    const double angle = degreesToRadians(angles[left]);
    const double toTop = sides[right]; // from the left corner to the one opposite the base
    Shape shape;
    shape[left] = {0, 0};
    shape[right] = {sides[base], 0};
    shape[base] = {toTop * std::cos(angle), toTop * std::sin(angle)};
    const bool hasExtent = sides[base] > 0 || toTop > 0;
    return hasExtent ? std::optional(shape) : std::nullopt;
}

void TrianglePicture::setTriangles(const Triangle& triangle, const Triangle* other) {
    m_shape.reset();
    m_otherShape.reset();
    if (triangle.nSolutions() == kOneTriangle || triangle.nSolutions() == kTwoTriangles) {
        if (other == nullptr) {
            m_shape = shapeOf(triangle, nullptr);
        } else {
            // The solver's numbering came from the typed values alone.
            Triangle typed = triangle.copy();
            typed.clearCalculatedValues();
            const SolversNames names = typed.keyMapDictionary();
            m_shape = shapeOf(triangle, &names);
            m_otherShape = m_shape ? shapeOf(*other, &names) : std::nullopt;
        }
    }
    for (std::size_t i = 0; i < kTriangleKeys.size(); ++i) {
        const DoubleWithSource& measure = *triangle.measure(kTriangleKeys[i]);
        const bool isAngle = i >= kCorners;
        m_measures[i] = {std::string(kNames[i]) + " = " + measure.stringValue() + (isAngle ? "°" : ""),
                         measure.isEntered()};
    }
    changed().emit();
}

TrianglePicture::Corners TrianglePicture::placed(const Shape& shape) const {
    double left = 0;
    double right = 0;
    double top = 0;
    const auto include = [&](const Shape& corners) {
        for (const Corner& corner : corners) {
            left = std::min(left, corner.x);
            right = std::max(right, corner.x);
            top = std::max(top, corner.y);
        }
    };
    include(*m_shape);
    if (m_otherShape) {
        include(*m_otherShape);
    }
    const double width = std::max(1.0, size().width - 2 * kMargin);
    const double height = std::max(1.0, size().height - 2 * kMargin);
    // Divided before they are multiplied, so that no triangle is too large to be drawn.
    const double extent = std::max(right - left, top * width / height);
    Corners corners;
    for (std::size_t i = 0; i < kCorners; ++i) {
        const double x = (shape[i].x - (left + right) / 2) / extent * width + size().width / 2;
        const double y = size().height / 2 - (shape[i].y - top / 2) / extent * width;
        corners[i] = {static_cast<float>(x), static_cast<float>(y)};
    }
    return corners;
}

void TrianglePicture::draw(DrawingContext& context) const {
    if (isEmpty()) {
        return;
    }
    const auto drawEdges = [&](const Corners& corners, const Color& color, double width) {
        context.setStrokeColor(color);
        context.setLineWidth(width);
        const auto point = [&](std::size_t i) { return Point{corners[i].x, corners[i].y}; };
        context.moveTo(point(0));
        context.lineTo(point(1));
        context.lineTo(point(2));
        context.lineTo(point(0));
        context.strokePath();
    };
    if (m_otherShape) {
        drawEdges(placed(*m_otherShape), kOtherEdge, 1.5);
    }
    const Corners corners = placed(*m_shape);
    drawEdges(corners, kEdge, 2);
    context.setFillColor(kCorner);
    for (const CGPoint& corner : corners) {
        const CGRect dot = CGRectMakeCenter(corner, {2 * kCornerRadius, 2 * kCornerRadius});
        context.fillEllipse({dot.origin.x, dot.origin.y, dot.size.width, dot.size.height});
    }
}

std::vector<LabelRecord> TrianglePicture::labels() const {
    std::vector<LabelRecord> labels;
    if (isEmpty()) {
        return labels;
    }
    const Corners corners = placed(*m_shape);
    const CGPoint centre =
        scalarProduct(vectorSum(corners[0], vectorSum(corners[1], corners[2])), 1.0 / kCorners);
    const auto add = [&](const Measure& measure, CGPoint point, CGPoint direction) {
        LabelRecord label;
        label.text = measure.text;
        label.fontSize = kFontSize;
        // A typed measure is bright, a calculated one dim and marked as such.
        label.textColor = measure.isEntered ? kEnteredText : kCalculatedText;
        label.alignment = TextAlignment::Centre;
        const Size text = textSize(label);
        label.frame = freeFrame(point, direction, {text.width + 4, text.height}, size(), labels);
        labels.push_back(std::move(label));
    };
    for (std::size_t i = 0; i < kCorners; ++i) {
        CGPoint outward = normalizedVector(vectorDifference(corners[i], centre));
        if (outward == CGPoint{}) {
            outward = {0, -1};
        }
        add(m_measures[kCorners + i], corners[i], outward);
    }
    for (std::size_t i = 0; i < kCorners; ++i) {
        const CGPoint from = corners[(i + 1) % kCorners];
        const CGPoint to = corners[(i + 2) % kCorners];
        const CGPoint middle = scalarProduct(vectorSum(from, to), 0.5);
        const CGPoint along = normalizedVector(vectorDifference(to, from));
        CGPoint outward{along.y, -along.x};
        const CGPoint fromCentre = vectorDifference(middle, centre);
        if (outward.x * fromCentre.x + outward.y * fromCentre.y < 0) {
            outward = scalarProduct(outward, -1);
        }
        add(m_measures[i], middle, outward == CGPoint{} ? CGPoint{0, 1} : outward);
    }
    return labels;
}

} // namespace velmora
