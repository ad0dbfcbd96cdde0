#include "graphing/plot/ColumnSamples.h"

#include "engine/tree/Expression.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t kFirstStride = 32;

} // namespace

float ColumnSamples::screenYOf(double value, const Viewport& viewport) {
    const double h = viewport.height;
    return static_cast<float>(h - h * ((value - viewport.yMin) / (viewport.yMax - viewport.yMin)));
}

ColumnSamples::ColumnSamples(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                             bool acceptsAlmostReal)
    : m_expression(std::move(expression)), m_viewport(viewport), m_acceptsAlmostReal(acceptsAlmostReal),
      m_samples(static_cast<std::size_t>(std::max(0, viewport.width)) + 1),
      m_stride(m_expression ? kFirstStride : 0) {
    const double dx = (viewport.xMax - viewport.xMin) / viewport.width;
    double x = viewport.xMin;
    for (Sample& sample : m_samples) {
        sample.x = x;
        x += dx; // added up, so the last column is where the additions lead
    }
}

void ColumnSamples::takeOne(Sample& sample) const {
    const ComplexValue value = m_expression->valueWithVariableValue(sample.x);
    sample.screenY = screenYOf(value.real(), m_viewport);
    sample.isReal = m_acceptsAlmostReal ? isAlmostReal(value) : isReal(value);
    sample.isTaken = true;
}

bool ColumnSamples::take(Deadline& deadline) {
    for (; m_stride > 0; m_stride /= 2, m_next = 0) {
        while (m_next < m_samples.size()) {
            Sample& sample = m_samples[m_next];
            m_next += m_stride;
            if (sample.isTaken) {
                continue;
            }
            takeOne(sample);
            if (deadline.hasCutShort()) {
                sample.isTaken = false;
                m_next -= m_stride;
            }
            if (deadline.hasPassed()) {
                return true;
            }
        }
    }
    return false;
}

} // namespace velmora
