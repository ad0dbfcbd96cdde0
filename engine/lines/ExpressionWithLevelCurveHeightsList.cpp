#include "engine/lines/ExpressionWithLevelCurveHeightsList.h"

#include "platform/files/KeyedArchive.h"

#include <algorithm>

namespace velmora {

ExpressionWithLevelCurveHeightsList::ExpressionWithLevelCurveHeightsList(int max, int n)
    : ExpressionList(max, n), m_heights(static_cast<std::size_t>(std::max(n, 0))) {}

void ExpressionWithLevelCurveHeightsList::setLevelCurveHeightsArray(std::vector<LevelCurveHeights> heights) {
    heights.resize(static_cast<std::size_t>(std::max(maxExpressions(), 0)));
    m_heights = std::move(heights);
}

bool ExpressionWithLevelCurveHeightsList::hasHeights(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < m_heights.size();
}

const LevelCurveHeights* ExpressionWithLevelCurveHeightsList::levelCurveHeightsAtIndex(int index) const {
    return hasHeights(index) ? &m_heights[static_cast<std::size_t>(index)] : nullptr;
}

LevelCurveHeights* ExpressionWithLevelCurveHeightsList::levelCurveHeightsAtIndex(int index) {
    return hasHeights(index) ? &m_heights[static_cast<std::size_t>(index)] : nullptr;
}

std::string ExpressionWithLevelCurveHeightsList::descriptionWithIndex(int index) const {
    const LevelCurveHeights* heights = levelCurveHeightsAtIndex(index);
    return expressionString(index) + "=" + (heights != nullptr ? heights->heightsAsString() : "");
}

PropertyList ExpressionWithLevelCurveHeightsList::archivedHeights() const {
    PropertyArray array;
    for (const LevelCurveHeights& heights : m_heights) {
        KeyedArchiver coder;
        heights.encodeWithCoder(coder);
        array.push_back(coder.propertyList());
    }
    return array;
}

void ExpressionWithLevelCurveHeightsList::loadHeights(const PropertyList& object) {
    const PropertyArray* array = object.asArray();
    if (array == nullptr) {
        return;
    }
    std::vector<LevelCurveHeights> heights;
    for (const PropertyList& saved : *array) {
        // What is no set of heights must not read as one whose every number is 0.
        heights.push_back(saved.asDictionary() != nullptr ? LevelCurveHeights::decode(KeyedUnarchiver(saved))
                                                          : LevelCurveHeights());
    }
    setLevelCurveHeightsArray(std::move(heights));
}

} // namespace velmora
