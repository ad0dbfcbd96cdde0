#include "tools/triangle/DoubleWithSource.h"

#include "engine/numbers/ShortNumber.h"

namespace velmora {

void DoubleWithSource::setEntered(double value) {
    m_x = value;
    m_isEntered = true;
}

void DoubleWithSource::setCalculated(double value) {
    if (!isKnown() || !m_isEntered) {
        m_x = value;
        m_isEntered = false;
    }
}

void DoubleWithSource::resetIfCalculated() {
    if (!m_isEntered) {
        m_x = kUnknown;
    }
}

std::string DoubleWithSource::stringValue() const { return isKnown() ? shortNumber(m_x) : std::string(); }

} // namespace velmora
