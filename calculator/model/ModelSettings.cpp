#include "calculator/model/ModelSettings.h"

#include "platform/machine/Device.h"

namespace velmora {

namespace {

constexpr int kPhoneDisplayMode = 4;
constexpr int kLastTabletDisplayMode = 3;
constexpr double kSmallestGraphWidth = 1e-9;

void repairMaximum(double& maximum, double minimum) {
    // Where either is NaN the comparison is false and the stored value stays; intended.
    if (maximum < minimum + kSmallestGraphWidth) {
        maximum = minimum + kSmallestGraphWidth;
    }
}

} // namespace

int ModelSettings::displayMode() const { return isTablet() ? displayModeOnTablet() : kPhoneDisplayMode; }

int ModelSettings::displayModeOnTablet() const {
    return m_displayMode >= 0 && m_displayMode <= kLastTabletDisplayMode ? m_displayMode : 1;
}

double ModelSettings::xMaxForGraph() const {
    repairMaximum(m_xMaxForGraph, m_xMinForGraph);
    return m_xMaxForGraph;
}

double ModelSettings::yMaxForGraph() const {
    repairMaximum(m_yMaxForGraph, m_yMinForGraph);
    return m_yMaxForGraph;
}

void ModelSettings::resetGraphBounds() {
    setYMinForGraph(-10);
    setYMaxForGraph(10);
    setXMinForGraph(-10);
    // The uneven right edge is what users' graphs have always started with; keep every digit.
    setXMaxForGraph(10.062695924764892);
}

} // namespace velmora
