#include "calculator/pages/FigureCanvas.h"

#include "calculator/pages/FormulaText.h"
#include "engine/tree/Expression.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

namespace velmora {

namespace {

// In points, for marks are equally large in every figure.
constexpr double kArrowLength = 8;
constexpr double kArrowAngle = 0.4;
constexpr double kRightAngleSide = 9;
constexpr double kDotRadius = 3;
constexpr double kTouchRadius = 11;
constexpr double kKeyRadius = 5;
constexpr double kPanelRadius = 9;
constexpr double kNameDistance = 10;
constexpr int kCurveSteps = 160;

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

Point towards(Point from, double direction, double length) {
    return {from.x + length * std::cos(direction), from.y - length * std::sin(direction)};
}

/// A quarter turn or less of an ellipse as one cubic curve; the error is below a thousandth of the radius.
/// (The usual tangent length, 4/3 tan of a quarter of the angle.)
void addArcPiece(VectorPath& path, Point centre, Size radii, double from, double to) {
    const double handle = 4.0 / 3 * std::tan((to - from) / 4);
    const auto at = [&](double angle, double alongTangent) {
        return Point{centre.x + radii.width * (std::cos(angle) - alongTangent * std::sin(angle)),
                     centre.y - radii.height * (std::sin(angle) + alongTangent * std::cos(angle))};
    };
    path.cubicTo(at(from, handle), at(to, -handle), at(to, 0));
}

/// A line of one variable as a person would type it; not a number where it cannot be read.
class TypedFunction {
public:
    explicit TypedFunction(const std::string& line) {
        if (const auto tokens = FormulaText(line).tokens([](const std::string&) { return std::nullopt; })) {
            m_expression = Expression::newExpressionWithTokens(*tokens);
        }
    }
    double operator()(double x) const {
        return m_expression ? m_expression->valueWithVariableValue(x).real() : std::nan("");
    }

private:
    std::unique_ptr<const Expression> m_expression;
};

double valueAtStep(double from, double to, int step) { return from + (to - from) * step / kCurveSteps; }

} // namespace

void FigureCanvas::setView(const Rect& view, Size size) {
    m_view = view;
    m_figure.size = size;
    m_xScale = size.width / view.width;
    m_yScale = size.height / view.height;
}

Point FigureCanvas::placed(Point point) const {
    return {(point.x - m_view.x) * m_xScale, m_figure.size.height - (point.y - m_view.y) * m_yScale};
}

void FigureCanvas::add(VectorPath path, FigureStyle style) {
    m_figure.shapes.push_back({std::move(path), m_color, style.lineWidth, style.dashed, style.fillOpacity});
}

void FigureCanvas::addArrow(Point from, Point to, FigureStyle style) {
    const Point start = placed(from);
    const Point end = placed(to);
    VectorPath shaft;
    shaft.moveTo(start);
    shaft.lineTo(end);
    add(std::move(shaft), style);
    const double back = std::atan2(end.y - start.y, start.x - end.x);
    VectorPath head;
    head.moveTo(end);
    head.lineTo(towards(end, back + kArrowAngle, kArrowLength));
    head.lineTo(towards(end, back - kArrowAngle, kArrowLength));
    head.close();
    add(std::move(head), kSolid);
}

void FigureCanvas::addAxes(const std::string& names) {
    const double right = m_view.x + m_view.width;
    const double top = m_view.y + m_view.height;
    const FigureColor color = std::exchange(m_color, FigureColor::Quiet);
    const FigureStyle thin{1.2, false, 0};
    addArrow({m_view.x, 0}, {right, 0}, thin);
    addArrow({0, m_view.y}, {0, top}, thin);
    const std::size_t blank = std::min(names.find(' '), names.size());
    addLabel({right - 5 / m_xScale, kNameDistance / m_yScale}, names.substr(0, blank),
             Figure::Label::Anchor::Centre, true);
    if (blank < names.size()) {
        addLabel({kNameDistance / m_xScale, top - 5 / m_yScale}, names.substr(blank + 1),
                 Figure::Label::Anchor::Centre, true);
    }
    m_color = color;
}

void FigureCanvas::addAngle(const Numbers& n, const std::string& name) {
    add(arc(n[0], n[1], n[2], n[2], n[3], n[4]), {1.4, false, 0});
    const double middle = radians((n[3] + n[4]) / 2);
    const double inside = n[2] * 0.62;
    addLabel({n[0] + inside * std::cos(middle), n[1] + inside * std::sin(middle)}, name,
             Figure::Label::Anchor::Centre);
}

void FigureCanvas::addRightAngle(Point corner, double direction) {
    const Point at = placed(corner);
    const double angle = radians(direction);
    const double left = angle + std::numbers::pi / 2;
    VectorPath mark;
    mark.moveTo(towards(at, angle, kRightAngleSide));
    mark.lineTo(towards(towards(at, angle, kRightAngleSide), left, kRightAngleSide));
    mark.lineTo(towards(at, left, kRightAngleSide));
    add(std::move(mark), {1.2, false, 0});
}

void FigureCanvas::addCurve(double from, double to, const std::string& line) {
    const TypedFunction function(line);
    VectorPath path;
    bool isDown = false;
    for (int step = 0; step <= kCurveSteps; ++step) {
        const double x = valueAtStep(from, to, step);
        const double y = function(x);
        const bool isSeen = y >= m_view.y && y <= m_view.y + m_view.height;
        if (isSeen) {
            isDown ? path.lineTo(placed({x, y})) : path.moveTo(placed({x, y}));
        }
        isDown = isSeen;
    }
    add(std::move(path));
}

void FigureCanvas::addAreaBelow(double from, double to, const std::string& line) {
    const TypedFunction function(line);
    VectorPath path;
    path.moveTo(placed({from, 0}));
    for (int step = 0; step <= kCurveSteps; ++step) {
        const double x = valueAtStep(from, to, step);
        path.lineTo(placed({x, function(x)}));
    }
    path.lineTo(placed({to, 0}));
    path.close();
    add(std::move(path), kArea);
}

void FigureCanvas::addParametric(double from, double to, const std::string& lines) {
    const std::size_t between = std::min(lines.find(';'), lines.size());
    const TypedFunction x(lines.substr(0, between));
    const TypedFunction y(lines.substr(std::min(between + 1, lines.size())));
    VectorPath path;
    for (int step = 0; step <= kCurveSteps; ++step) {
        const double t = valueAtStep(from, to, step);
        const Point point = placed({x(t), y(t)});
        step > 0 ? path.lineTo(point) : path.moveTo(point);
    }
    add(std::move(path));
}

void FigureCanvas::addLabel(Point at, const std::string& text, Figure::Label::Anchor anchor, bool small) {
    if (!text.empty()) {
        m_figure.labels.push_back({text, placed(at), anchor, m_color, small});
    }
}

void FigureCanvas::addDot(Point at) {
    const Point centre = placed(at);
    VectorPath circle;
    circle.moveTo({centre.x + kDotRadius, centre.y});
    for (int quarter = 0; quarter < 4; ++quarter) {
        addArcPiece(circle, centre, {kDotRadius, kDotRadius}, radians(90.0 * quarter),
                    radians(90.0 * (quarter + 1)));
    }
    circle.close();
    add(std::move(circle), kSolid);
}

VectorPath FigureCanvas::roundedRectangle(const Numbers& n, double radius) const {
    const Point corner = placed({n[0], n[1] + n[3]});
    const double right = corner.x + n[2] * m_xScale - radius;
    const double bottom = corner.y + n[3] * m_yScale - radius;
    const Size radii{radius, radius};
    VectorPath path;
    path.moveTo({right + radius, corner.y + radius});
    addArcPiece(path, {right, corner.y + radius}, radii, 0, radians(90));
    path.lineTo({corner.x + radius, corner.y});
    addArcPiece(path, {corner.x + radius, corner.y + radius}, radii, radians(90), radians(180));
    path.lineTo({corner.x, bottom});
    addArcPiece(path, {corner.x + radius, bottom}, radii, radians(180), radians(270));
    path.lineTo({right, bottom + radius});
    addArcPiece(path, {right, bottom}, radii, radians(270), radians(360));
    path.close();
    return path;
}

void FigureCanvas::addKey(const Numbers& n, const std::string& name) {
    add(roundedRectangle(n, kKeyRadius), {1.2, false, 0.18});
    addLabel({n[0] + n[2] / 2, n[1] + n[3] / 2}, name, Figure::Label::Anchor::Centre, true);
}

void FigureCanvas::addPanel(const Numbers& n) { add(roundedRectangle(n, kPanelRadius), {1.4, false, 0.06}); }

void FigureCanvas::addTouch(Point at) {
    const double across = kTouchRadius / m_xScale;
    const double up = kTouchRadius / m_yScale;
    add(arc(at.x, at.y, across, up, 0, 360), {2, false, 0.35});
}

VectorPath FigureCanvas::polygon(const Numbers& numbers, bool closed) const {
    VectorPath path;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        const Point point = placed({numbers[i], numbers[i + 1]});
        i > 0 ? path.lineTo(point) : path.moveTo(point);
    }
    if (closed) {
        path.close();
    }
    return path;
}

VectorPath FigureCanvas::arc(double x, double y, double across, double up, double from, double to) const {
    const Point centre = placed({x, y});
    const Size radii{across * m_xScale, up * m_yScale};
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(to - from) / 90)));
    const double piece = radians(to - from) / pieces;
    const double start = radians(from);
    VectorPath path;
    path.moveTo({centre.x + radii.width * std::cos(start), centre.y - radii.height * std::sin(start)});
    for (int i = 0; i < pieces; ++i) {
        addArcPiece(path, centre, radii, start + i * piece, start + (i + 1) * piece);
    }
    return path;
}

VectorPath FigureCanvas::sector(const Numbers& n) const {
    VectorPath path = arc(n[0], n[1], n[2], n[2], n[3], n[4]);
    path.lineTo(placed({n[0], n[1]}));
    path.close();
    return path;
}

} // namespace velmora
