#pragma once

#include "calculator/pages/VectorPath.h"
#include "platform/screens/Geometry.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The colours of all figures, by what they say; the screen knows which they are.
enum class FigureColor : unsigned char {
    Ink,    ///< outlines and names
    Quiet,  ///< axes, auxiliary lines
    Accent, ///< what the figure is about
    Second, ///< what it is compared with
    Third,
};

/// A drawing that explains something. Lengths are in points, y downward.
struct Figure {
    struct Shape {
        VectorPath path;
        FigureColor color = FigureColor::Ink;
        double lineWidth = 1.6; ///< 0 for none
        bool dashed = false;
        double fillOpacity = 0; ///< 0 for none
    };
    /// Single letters are variables, "_" lowers what follows it up to a blank.
    struct Label {
        enum class Anchor : unsigned char { Centre, Left, Right }; ///< where the text is seen from its point
        std::string text;
        Point point;
        Anchor anchor = Anchor::Centre;
        FigureColor color = FigureColor::Ink;
        bool small = false;
    };

    Size size;
    std::string spoken; ///< what is seen
    std::vector<Shape> shapes;
    std::vector<Label> labels;
};

/// Reads a figure. Each line is a command with numbers in the units of the view, y upward, angles in
/// degrees; a text may end it:
///
///     spoken TEXT                       what the figure shows, for who cannot see it
///     view LEFT BOTTOM RIGHT TOP WIDTH HEIGHT   the units, and the size in points; comes first
///     color ink|quiet|accent|second|third       of what follows
///     axes X-NAME Y-NAME                through the origin, as far as the view goes
///     line x y x y …, dashed …, arrow x y x y
///     shape x y x y …, area …           a polygon with its outline, or without
///     circle x y r, disc x y r, ellipse x y rx ry, ellipse-disc x y rx ry
///     arc x y r FROM TO, sector x y r FROM TO, ellipse-arc x y rx ry FROM TO, dashed-arc x y rx ry FROM TO
///     angle x y r FROM TO TEXT          an arc with its name
///     right x y DIRECTION               the mark of a right angle whose arms leave to DIRECTION and left of
///     it dot x y curve FROM TO LINE                y by x, as our own calculator finds it under FROM TO LINE
///     the area between that curve and the x axis path FROM TO LINE ; LINE          x and y by t text x y
///     TEXT, left x y TEXT, right-text x y TEXT, small x y TEXT, small-left x y TEXT key x y w h TEXT, panel
///     x y w h   a key and a screen touch x y, swipe x y x y          a finger, and the way it takes
///
/// What cannot be read is logged and left out.
Figure figureWithText(std::string_view text);

/// The figure in the resource "NAME.figure"; an empty one, logged, when there is none.
Figure loadFigure(const std::string& name);

} // namespace velmora
