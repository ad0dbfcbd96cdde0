#pragma once

#include "engine/lines/ExpressionWithTokenArray.h"
#include "engine/lines/LevelCurveHeights.h"

#include <memory>

namespace velmora {

/// A line for a function of two variables together with its level-curve heights.
class ExpressionWithTokenArrayAndLevelCurveHeights final : public ExpressionWithTokenArray {
public:
    using ExpressionWithTokenArray::ExpressionWithTokenArray;

    const LevelCurveHeights& levelCurveHeights() const { return m_heights; }
    LevelCurveHeights& levelCurveHeights() { return m_heights; }
    void setLevelCurveHeights(LevelCurveHeights heights) { m_heights = std::move(heights); }

    std::unique_ptr<ExpressionWithTokenArray> copy() const override;

private:
    LevelCurveHeights m_heights;
};

} // namespace velmora
