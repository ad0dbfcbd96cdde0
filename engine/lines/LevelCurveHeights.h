#pragma once

#include <string>
#include <vector>

namespace velmora {

class KeyedArchiver;
class KeyedUnarchiver;

/// The heights c at which the level curves f(x, y) = c of a function of two variables are meant:
/// an arithmetic run (mode 0) or an explicit list (mode 1). Switched off, the single height is 0.
class LevelCurveHeights {
public:
    bool levelCurves() const { return m_levelCurves; }
    void setLevelCurves(bool on) { m_levelCurves = on; }
    int mode() const { return m_mode; }
    void setMode(int mode) { m_mode = mode; }
    const std::vector<double>& heightArray() const { return m_heights; }
    void setHeightArray(std::vector<double> heights) { m_heights = std::move(heights); }
    double start() const { return m_start; }
    void setStart(double start) { m_start = start; }
    double delta() const { return m_delta; }
    void setDelta(double delta) { m_delta = delta; }
    int n() const { return m_n; }
    void setN(int n) { m_n = n; }

    int curveCount() const;
    /// 0 while level curves are off, beyond the heights, and in an unknown mode. (A run answers one
    /// index past its last height with the value that would follow; intended.)
    double heightAtIndex(int index) const;
    double firstHeight() const;
    /// The heights as shown behind the function, joined by ", ".
    std::string heightsAsString() const;
    /// False, and nothing changed, for an index outside the list.
    bool setHeightAtIndex(int index, double height);
    void incrementCount();
    void decrementCount();

    void encodeWithCoder(KeyedArchiver& coder) const;
    static LevelCurveHeights decode(const KeyedUnarchiver& coder);

    bool operator==(const LevelCurveHeights&) const = default;

private:
    bool m_levelCurves = false;
    int m_mode = 0;
    std::vector<double> m_heights{0.0};
    double m_start = 0.0;
    double m_delta = 1.0;
    int m_n = 1;
};

} // namespace velmora
