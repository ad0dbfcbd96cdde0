#pragma once

#include "platform/screens/DrawingContext.h"
#include "ui/painting/LineRun.h"

#include <QLineF>
#include <QList>

class QPainter;

namespace velmora {

/// Draws on a painter whose unit is the point. Paths of one look are drawn together as a run of separate
/// lines: one long path of thousands of steep segments takes Qt's rasterizer over a second, the same lines
/// milliseconds. What is drawn is on the painter when the context is gone.
class QtDrawingContext final : public DrawingContext {
public:
    /// The painter must outlive this. Lines are cut to the bounds, with a margin for their width.
    QtDrawingContext(QPainter& painter, const Rect& bounds);

    ~QtDrawingContext() override;
    QtDrawingContext(const QtDrawingContext&) = delete;
    QtDrawingContext& operator=(const QtDrawingContext&) = delete;

    void setLineWidth(double width) override;
    void setStrokeColor(const Color& color) override;
    void setFillColor(const Color& color) override;
    void setAlignsToPixels(bool aligns) override { m_alignsToPixels = aligns; }
    /// Where the painter draws on a picture in device pixels, from its corner and without turning it.
    double pixelsPerPoint() const override;
    void fillCoverage(const PixelCoverage& coverage) override;
    void moveTo(Point point) override;
    /// A line with an end that is not finite is left out and lifts the pen.
    void lineTo(Point point) override;
    void strokePath() override;
    void strokeEllipse(const Rect& rect) override;
    void fillEllipse(const Rect& rect) override;
    void fillRect(const Rect& rect) override;

private:
    void setPen(double width);
    void flush();
    void snapToPixels(QLineF& line, double& width) const;

    QPainter& m_painter;
    Rect m_bounds;
    double m_lineWidth = 1;
    Color m_strokeColor;
    Color m_fillColor;
    bool m_alignsToPixels = false;
    Point m_pen;
    bool m_penIsDown = false;
    QList<QLineF> m_lines; ///< of the path being made
    LineRun m_run;         ///< stroked, to be painted with the pen
    double m_penWidth = 1;
    Color m_penColor;
};

} // namespace velmora
