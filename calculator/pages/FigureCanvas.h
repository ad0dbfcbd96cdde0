#pragma once

#include "calculator/pages/Figure.h"

#include <string>
#include <vector>

namespace velmora {

/// How a path of a figure is shown.
struct FigureStyle {
    double lineWidth = 1.8;
    bool dashed = false;
    double fillOpacity = 0;
};

/// Draws into a figure in the units of its view: lengths with y upward, angles in degrees.
class FigureCanvas {
public:
    static constexpr FigureStyle kLine{};
    static constexpr FigureStyle kDashed{1.2, true, 0};
    static constexpr FigureStyle kFilled{1.8, false, 0.28};
    static constexpr FigureStyle kArea{0, false, 0.28};
    static constexpr FigureStyle kSolid{0, false, 1};

    using Numbers = std::vector<double>;

    /// What lies where, and how large the figure is in points.
    void setView(const Rect& view, Size size);
    void setColor(FigureColor color) { m_color = color; }
    void setSpoken(std::string text) { m_figure.spoken = std::move(text); }
    Figure figure() && { return std::move(m_figure); }

    void add(VectorPath path, FigureStyle style = kLine);
    void addArrow(Point from, Point to, FigureStyle style = kLine);
    void addAxes(const std::string& names);
    /// An arc with its name, "" for none.
    void addAngle(const Numbers& arc, const std::string& name);
    void addRightAngle(Point corner, double direction);
    /// The value of a line at every place from one end to the other, and the area down to the x axis.
    void addCurve(double from, double to, const std::string& line);
    void addAreaBelow(double from, double to, const std::string& line);
    /// Two lines of t with a ";" between them.
    void addParametric(double from, double to, const std::string& lines);
    void addLabel(Point at, const std::string& text, Figure::Label::Anchor anchor, bool small = false);
    void addDot(Point at);
    /// A rounded rectangle with a name: a key of the calculator, or a screen.
    void addKey(const Numbers& area, const std::string& name);
    void addPanel(const Numbers& area);
    void addTouch(Point at);

    VectorPath polygon(const Numbers& numbers, bool closed) const;
    /// Of x, y, radius across, radius up, first and last angle.
    VectorPath arc(double x, double y, double across, double up, double from, double to) const;
    VectorPath sector(const Numbers& numbers) const;

private:
    Point placed(Point point) const;
    VectorPath roundedRectangle(const Numbers& area, double radius) const;

    Figure m_figure;
    FigureColor m_color = FigureColor::Ink;
    Rect m_view{0, 0, 1, 1};
    double m_xScale = 1;
    double m_yScale = 1;
};

} // namespace velmora
