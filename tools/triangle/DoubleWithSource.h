#pragma once

#include <string>

namespace velmora {

/// The value of a measure that is not known. A measure of exactly this size cannot be told from it.
inline constexpr double kUnknown = -1;

/// A measure that knows whether it was typed or calculated.
class DoubleWithSource {
public:
    bool isEntered() const { return m_isEntered; }
    double x() const { return m_x; }
    bool isKnown() const { return m_x != kUnknown; }

    void setEntered(double value);
    /// A typed value stays as it is.
    void setCalculated(double value);
    void reset() { *this = {}; }
    void resetIfCalculated();
    /// Six significant digits; empty while unknown.
    std::string stringValue() const;

private:
    bool m_isEntered = false;
    double m_x = kUnknown;
};

} // namespace velmora
