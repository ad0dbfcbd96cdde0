#include "engine/lines/ExpressionWithTokenArrayAndLevelCurveHeights.h"

namespace velmora {

std::unique_ptr<ExpressionWithTokenArray> ExpressionWithTokenArrayAndLevelCurveHeights::copy() const {
    return std::make_unique<ExpressionWithTokenArrayAndLevelCurveHeights>(*this);
}

} // namespace velmora
