#include "engine/lines/LevelCurveHeights.h"

#include "engine/display/NumberDisplay.h"
#include "platform/files/KeyedArchive.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

// A damaged file may ask for a run of two billion heights; no screen shows more than these.
constexpr int kMaximumShownHeights = 1000;

int intFromSaved(std::optional<std::int64_t> saved) {
    const bool fits =
        saved && *saved >= std::numeric_limits<int>::min() && *saved <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(*saved) : 0;
}

} // namespace

int LevelCurveHeights::curveCount() const {
    if (!m_levelCurves) {
        return 1;
    }
    return m_mode == 0 ? m_n : static_cast<int>(m_heights.size());
}

double LevelCurveHeights::heightAtIndex(int index) const {
    if (!m_levelCurves || index < 0) {
        return 0;
    }
    if (m_mode == 0) {
        return index > m_n ? 0 : m_start + m_delta * index;
    }
    const auto i = static_cast<std::size_t>(index);
    return m_mode == 1 && i < m_heights.size() ? m_heights[i] : 0;
}

double LevelCurveHeights::firstHeight() const { return m_heights.empty() ? 0 : m_heights.front(); }

std::string LevelCurveHeights::heightsAsString() const {
    std::string text;
    const int count = std::min(curveCount(), kMaximumShownHeights);
    for (int i = 0; i < count; ++i) {
        text += (i > 0 ? ", " : "") + displayStringWithDouble(heightAtIndex(i));
    }
    return text;
}

bool LevelCurveHeights::setHeightAtIndex(int index, double height) {
    if (index < 0 || static_cast<std::size_t>(index) >= m_heights.size()) {
        return false;
    }
    m_heights[static_cast<std::size_t>(index)] = height;
    return true;
}

void LevelCurveHeights::incrementCount() { m_heights.push_back(0.0); }

void LevelCurveHeights::decrementCount() {
    if (!m_heights.empty()) {
        m_heights.pop_back();
    }
}

void LevelCurveHeights::encodeWithCoder(KeyedArchiver& coder) const {
    coder.encode("LevelCurvesKey", m_levelCurves);
    coder.encode("ModeKey", m_mode);
    PropertyArray heights;
    for (const double height : m_heights) {
        heights.emplace_back(height);
    }
    coder.encode("HeightArrayKey", std::move(heights));
    coder.encode("StartKey", m_start);
    coder.encode("DeltaKey", m_delta);
    coder.encode("NKey", m_n);
}

LevelCurveHeights LevelCurveHeights::decode(const KeyedUnarchiver& coder) {
    LevelCurveHeights heights;
    heights.m_levelCurves = coder.boolean("LevelCurvesKey").value_or(false);
    heights.m_mode = intFromSaved(coder.integer("ModeKey"));
    heights.m_heights.clear();
    if (const PropertyArray* array = coder.array("HeightArrayKey")) {
        for (const PropertyList& height : *array) {
            heights.m_heights.push_back(height.asDouble().value_or(0));
        }
    }
    heights.m_start = coder.number("StartKey").value_or(0);
    heights.m_delta = coder.number("DeltaKey").value_or(0);
    heights.m_n = intFromSaved(coder.integer("NKey"));
    return heights;
}

} // namespace velmora
