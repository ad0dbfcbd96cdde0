#pragma once

#include "tools/triangle/DoubleWithSource.h"
#include "tools/triangle/TriangleSolver.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The keys of the six measures: each side, and the angle opposite it.
inline constexpr std::array<std::string_view, 6> kTriangleKeys{"a", "b", "c", "angleA", "angleB", "angleC"};

/// A triangle as the user sees it: six measures, typed, calculated or unknown, and the area.
class Triangle {
public:
    void reset();
    /// Forgets what was calculated, as before anew solving.
    void clearCalculatedValues();

    /// How many of the six measures are known.
    int nKnowns() const;
    /// A key that does not exist reads as unknown, and takes nothing.
    double doubleForKey(std::string_view key) const;
    const DoubleWithSource* measure(std::string_view key) const;
    void setEnteredValue(double value, std::string_view key);
    void setCalculatedValue(double value, std::string_view key);
    /// Back to unknown, also where it was typed.
    void resetValue(std::string_view key);
    const DoubleWithSource& area() const { return m_area; }

    /// In the ambiguous case, whether the solution with the acute angle is meant.
    bool primarySolution() const { return m_primarySolution; }
    void setPrimarySolution(bool primary) { m_primarySolution = primary; }
    /// kTriangleNotDetermined, kNoTriangle, kOneTriangle or kTwoTriangles.
    int nSolutions() const { return m_nSolutions; }
    const std::optional<std::string>& reasonForFailureToSolve() const { return m_reasonForFailureToSolve; }

    /// Whether the known angles exceed 180 degrees, which an alert then tells.
    bool anglesAreTooBig() const;

    /// Under which name the solver knows a measure, by its key. A side with a known angle comes first, then
    /// known sides, then those of known angles.
    std::map<std::string, std::string> keyMapDictionary() const;
    static void inDictionary(std::map<std::string, std::string>& dictionary, char letter, int number);
    void solveIfReady();

    /// The six measures alone, with nothing solved.
    Triangle copy() const;

private:
    DoubleWithSource* measureToChange(std::string_view key);

    std::array<DoubleWithSource, kTriangleKeys.size()> m_measures; ///< in the order of the keys
    DoubleWithSource m_area;
    bool m_primarySolution = true;
    int m_nSolutions = kTriangleNotDetermined;
    std::optional<std::string> m_reasonForFailureToSolve;
};

/// The one triangle that the screens share; it lives for the whole run.
class SingletonTriangle {
public:
    static SingletonTriangle& s();
    static void resetForTests() { s().m_currentTriangle = {}; }
    SingletonTriangle(const SingletonTriangle&) = delete;
    SingletonTriangle& operator=(const SingletonTriangle&) = delete;

    Triangle& currentTriangle() { return m_currentTriangle; }

private:
    SingletonTriangle() = default;

    Triangle m_currentTriangle;
};

} // namespace velmora
