#pragma once

#include "engine/lines/ExpressionList.h"
#include "engine/lines/LevelCurveHeights.h"

#include <string>
#include <vector>

namespace velmora {

/// Functions of two variables, each slot with its level-curve heights.
class ExpressionWithLevelCurveHeightsList final : public ExpressionList {
public:
    ExpressionWithLevelCurveHeightsList(int max, int n);
    explicit ExpressionWithLevelCurveHeightsList(int max) : ExpressionWithLevelCurveHeightsList(max, max) {}

    const std::vector<LevelCurveHeights>& levelCurveHeightsArray() const { return m_heights; }
    /// Padded with defaults where short, cut to the capacity where long.
    void setLevelCurveHeightsArray(std::vector<LevelCurveHeights> heights);
    /// The heights of a slot; null out of range.
    const LevelCurveHeights* levelCurveHeightsAtIndex(int index) const;
    LevelCurveHeights* levelCurveHeightsAtIndex(int index);

    /// The function and its heights, such as "sin(x*y)=0".
    std::string descriptionWithIndex(int index) const override;

    PropertyList archivedHeights() const;
    /// Unchanged when the list holds no heights; an element that is no set of heights reads as the default.
    void loadHeights(const PropertyList& object);

private:
    bool hasHeights(int index) const;

    std::vector<LevelCurveHeights> m_heights;
};

} // namespace velmora
