#pragma once

#include "graphing/plot/CurveDrawing.h"
#include "graphing/plot/GraphMetaData.h"

namespace velmora {

/// Plots the curve of one slot, a slice of time after the other.
class Plotter {
public:
    virtual ~Plotter() = default;
    Plotter(const Plotter&) = delete;
    Plotter& operator=(const Plotter&) = delete;

    /// What has been plotted so far.
    const CurveDrawing& curve() const { return m_curve; }
    const GraphMetaData& metaData() const { return m_metaData; }

    /// Goes on until all is done, the curve's time is used up, or the clock passes the deadline (seconds of
    /// the monotonic clock). True while there is more to do.
    virtual bool refine(double deadline) = 0;
    virtual bool isRefined() const = 0;

protected:
    explicit Plotter(CurveDrawing curve) : m_curve(std::move(curve)) {}

    CurveDrawing m_curve;     // NOLINT(misc-non-private-member-variables-in-classes): what plotters fill
    GraphMetaData m_metaData; // NOLINT(misc-non-private-member-variables-in-classes)
};

} // namespace velmora
