#include "graphing/frame/GraphFramePainter.h"

#include "calculator/model/SlotColors.h"

namespace velmora {

namespace {

void drawLine(DrawingContext& context, Point from, Point to) {
    context.moveTo(from);
    context.lineTo(to);
    context.strokePath();
}

void setColors(DrawingContext& context, std::size_t slot) {
    context.setStrokeColor(slotColor(slot));
    context.setFillColor(slotColor(slot));
}

void drawAxis(DrawingContext& context, const Viewport& viewport, bool vertical) {
    const auto width = static_cast<float>(viewport.width);
    const auto height = static_cast<float>(viewport.height);
    if (vertical) {
        const auto range = static_cast<float>(viewport.xMax - viewport.xMin);
        const float x = -static_cast<float>(viewport.xMin) * width / range;
        drawLine(context, {x, 0}, {x, height});
    } else {
        const auto range = static_cast<float>(viewport.yMax - viewport.yMin);
        const float y = height + static_cast<float>(viewport.yMin) * height / range;
        drawLine(context, {0, y}, {width, y});
    }
}

void drawHashMarks(DrawingContext& context, const GraphFrame& frame, bool vertical, const HashMarks& marks) {
    constexpr double gridLineWidth = 1;
    constexpr double halfTick = 10;
    // A line across the axis, from one distance to the other.
    const auto across = [&](double along, double from, double to) {
        if (vertical) {
            drawLine(context, {from, along}, {to, along});
        } else {
            drawLine(context, {along, from}, {along, to});
        }
    };
    context.setStrokeColor(frame.look().gridlineColor());
    context.setLineWidth(gridLineWidth);
    for (const float along : marks.gridLines) {
        across(along, 0, vertical ? frame.viewport().width : frame.viewport().height);
    }
    context.setStrokeColor(frame.look().hashmarkColor());
    context.setLineWidth(frame.look().axisWidth());
    for (const float along : marks.ticks) {
        across(along, marks.axisPosition - halfTick, marks.axisPosition + halfTick);
    }
}

void drawAxes(DrawingContext& context, const GraphFrame& frame) {
    const Viewport& viewport = frame.viewport();
    context.setAlignsToPixels(true);
    context.setStrokeColor(frame.look().axisColor());
    context.setLineWidth(frame.look().axisWidth());
    if (viewport.xMin < 0 && viewport.xMax > 0) {
        drawAxis(context, viewport, true);
    }
    if (viewport.yMin < 0 && viewport.yMax > 0) {
        drawAxis(context, viewport, false);
    }
    drawHashMarks(context, frame, true, frame.verticalMarks());
    drawHashMarks(context, frame, false, frame.horizontalMarks());
    context.setAlignsToPixels(false);
}

void drawVerticalTraceLine(DrawingContext& context, const GraphFrame& frame) {
    context.setStrokeColor(frame.look().gridlineColor());
    const double x = frame.trace().screenX;
    drawLine(context, {x, 0}, {x, static_cast<double>(frame.viewport().height)});
}

void drawEllipses(DrawingContext& context, const FrameTrace& trace) {
    constexpr double radius = 2;
    for (const FrameTrace::Marker& marker : trace.markers) {
        const Rect circle{trace.screenX - radius, marker.screenY - radius, 2 * radius, 2 * radius};
        setColors(context, marker.slot);
        context.fillEllipse(circle);
        context.strokeEllipse(circle);
    }
}

} // namespace

void paintFrame(const GraphFrame& frame, DrawingContext& context) {
    if (!frame.viewport().isUsable()) {
        return;
    }
    drawAxes(context, frame);
    context.setLineWidth(frame.look().axisWidth());
    for (const GraphFrame::Curve& curve : frame.curves()) {
        setColors(context, curve.slot);
        curve.plotter->curve().draw(context);
    }
    if (frame.trace().isOn()) {
        drawVerticalTraceLine(context, frame);
        drawEllipses(context, frame.trace());
    }
}

} // namespace velmora
