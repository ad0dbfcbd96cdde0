#include "graphing/plot/CurvePlotter.h"

#include "engine/tree/Expression.h"
#include "platform/machine/Clock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr double kFarApart = 30; // points between two samples, from which on they are not simply joined
constexpr int kDeepest = 50;

// On pixels.
constexpr int kShallow = 4;      // halvings after which the pieces of a gap are worked on by turns
constexpr int kStepsOfTurn = 64; // in a piece, before the next one has its turn
// Steps in a piece that cover nothing new, after which nothing new is expected there. A piece is a sixteenth
// of a point wide; a descent into a pole takes 50 steps.
constexpr int kMostFruitless = 512;

Size areaOf(const Viewport& viewport) {
    return {static_cast<double>(viewport.width), static_cast<double>(viewport.height)};
}

} // namespace

CurvePlotter::CurvePlotter(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                           bool acceptsAlmostReal, const DevicePixels& pixels)
    : Plotter(CurveDrawing(areaOf(viewport), pixels)), m_expression(std::move(expression)),
      m_viewport(viewport), m_samples(m_expression && m_expression->isGraphable() ? m_expression : nullptr,
                                      viewport, acceptsAlmostReal) {
    if (!m_samples.isComplete() && !m_curve.hasPixels()) {
        Deadline none(HUGE_VAL);
        m_samples.take(none);
        connect();
    }
}

/// Shows the course of the samples taken so far.
void CurvePlotter::sketch() {
    m_curve.clear();
    m_metaData = {};
    const auto& samples = m_samples.samples();
    const ColumnSamples::Sample* former = nullptr;
    for (const ColumnSamples::Sample& sample : samples) {
        if (!sample.isTaken) {
            continue;
        }
        const Point point{static_cast<double>(&sample - samples.data()), sample.screenY};
        m_metaData.wasSometimesComplex = m_metaData.wasSometimesComplex || !sample.isReal;
        if (former && former->isReal && sample.isReal) {
            m_metaData.wasGraphed = true;
            m_curve.lineTo(point);
        }
        m_curve.moveTo(point);
        former = &sample;
    }
}

/// Joins all samples, and leaves gaps to be halved.
void CurvePlotter::connect() {
    m_curve.clear();
    m_metaData = {};
    const auto& samples = m_samples.samples();
    Strand gaps;
    m_curve.moveTo({0, samples.front().screenY});
    for (std::size_t column = 1; column < samples.size(); ++column) {
        const ColumnSamples::Sample& former = samples[column - 1];
        const ColumnSamples::Sample& sample = samples[column];
        const auto screenX = static_cast<float>(column);
        if (!sample.isReal) {
            m_metaData.wasSometimesComplex = true;
        }
        if (!sample.isReal || !former.isReal) {
            m_curve.moveTo({screenX, sample.screenY});
            continue;
        }
        m_metaData.wasGraphed = true;
        if (std::fabs(sample.screenY - former.screenY) < kFarApart) {
            m_curve.lineTo({screenX, sample.screenY});
            continue;
        }
        gaps.tasks.push_back({{former.x, screenX - 1, former.screenY},
                              {sample.x, screenX, sample.screenY},
                              m_curve.addGap(),
                              1});
        if (std::isfinite(sample.screenY)) {
            m_curve.moveTo({screenX, sample.screenY});
        }
    }
    if (gaps.tasks.empty()) {
        return;
    }
    if (m_curve.hasPixels()) {
        for (const Task& gap : gaps.tasks) {
            m_strands.push_back({{gap}});
        }
    } else {
        std::ranges::reverse(gaps.tasks); // from left to right
        m_strands.push_back(std::move(gaps));
    }
}

/// A jump wholly off screen is not worth it: neither end is on screen, and both lie on the same side, or
/// one of them is no number.
bool CurvePlotter::isWorthHalving(double y1, double y2) const {
    const double h = m_viewport.height;
    const auto isOnScreen = [h](double y) { return y >= 0 && y <= h; };
    if (isOnScreen(y1) || isOnScreen(y2)) {
        return true;
    }
    return (y1 < 0 && y2 > h) || (y2 < 0 && y1 > h);
}

void CurvePlotter::investigate(const Task& task, Strand& strand, const Deadline& deadline) {
    const Place& from = task.from;
    const Place& to = task.to;
    if (!isWorthHalving(from.screenY, to.screenY)) {
        return;
    }
    // The real part alone counts here, also of a complex value; intended: a test for reality at every step
    // would open curves that only round badly.
    Place middle{(from.x + to.x) * 0.5, static_cast<float>((from.screenX + to.screenX) * 0.5F), 0};
    middle.screenY =
        ColumnSamples::screenYOf(m_expression->valueWithVariableValue(middle.x).real(), m_viewport);
    if (deadline.hasCutShort()) {
        strand.tasks.push_back(task);
        return;
    }
    const auto next = [&](const Place& left, const Place& right) {
        if (std::fabs(right.screenY - left.screenY) < kFarApart) {
            strand.tasks.push_back({left, right, task.gap, 0});
        } else if (task.depth < kDeepest) {
            const Task half{left, right, task.gap, task.depth + 1};
            if (m_curve.hasPixels() && half.depth <= kShallow + 1) {
                m_strands.push_back({{half}});
            } else {
                strand.tasks.push_back(half);
            }
        }
    };
    next(middle, to); // is done after the left half
    next(from, middle);
}

bool CurvePlotter::drawLine(const Task& line) {
    return m_curve.addToGap(line.gap, {line.from.screenX, line.from.screenY},
                            {line.to.screenX, line.to.screenY});
}

void CurvePlotter::step(Strand& strand, const Deadline& deadline) {
    const Task task = strand.tasks.back();
    strand.tasks.pop_back();
    ++strand.fruitless;
    if (task.depth == 0) {
        if (drawLine(task)) {
            strand.fruitless = 0;
        }
    } else if (!m_curve.isFull(task.from.screenX, task.to.screenX)) {
        investigate(task, strand, deadline);
    }
    if (m_curve.hasPixels() && strand.fruitless > kMostFruitless) {
        strand.tasks.clear();
    }
}

/// True when the deadline has passed.
bool CurvePlotter::workOff(Strand& strand, Deadline& deadline) {
    for (int steps = 0; !strand.tasks.empty() && (steps < kStepsOfTurn || !m_curve.hasPixels()); ++steps) {
        const bool isLine = strand.tasks.back().depth == 0;
        step(strand, deadline);
        if ((!isLine || m_curve.hasPixels()) && deadline.hasPassed()) {
            return true;
        }
    }
    return false;
}

void CurvePlotter::halve(Deadline& deadline) {
    bool isOver = false;
    while (!m_strands.empty() && !isOver) {
        isOver = workOff(m_strands.front(), deadline);
        Strand strand = std::move(m_strands.front());
        m_strands.pop_front();
        if (strand.tasks.empty()) {
            continue;
        }
        if (m_curve.hasPixels()) {
            m_strands.push_back(std::move(strand));
        } else {
            m_strands.push_front(std::move(strand));
        }
    }
}

void CurvePlotter::finishWithoutHalving() {
    for (Strand& strand : m_strands) {
        for (; !strand.tasks.empty(); strand.tasks.pop_back()) {
            if (strand.tasks.back().depth == 0) {
                drawLine(strand.tasks.back());
            }
        }
    }
    m_strands.clear();
}

bool CurvePlotter::refine(double deadline) {
    if (isRefined()) {
        return false;
    }
    if (!m_samples.isComplete()) {
        Deadline sampling(deadline);
        if (m_samples.take(sampling)) {
            sketch();
            return true;
        }
        connect();
        if (m_strands.empty()) {
            return false;
        }
    }
    Deadline halving(std::min(deadline, monotonicSeconds() + kSecondsPerCurve - m_secondsUsed));
    halve(halving);
    m_secondsUsed += halving.secondsUsed();
    if (m_secondsUsed >= kSecondsPerCurve) {
        finishWithoutHalving();
    }
    return !m_strands.empty();
}

} // namespace velmora
