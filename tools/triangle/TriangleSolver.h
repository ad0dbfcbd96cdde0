#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

// How many triangles fit what is known.
inline constexpr int kTriangleNotDetermined = -2; ///< too few values, or no side
inline constexpr int kTriangleNotTried = -1;      ///< nothing was solved yet
inline constexpr int kNoTriangle = 0;
inline constexpr int kOneTriangle = 1;
inline constexpr int kTwoTriangles = 2;

/// Finds the measures of a triangle from three or more of them, one of them a side, by the laws of sines and
/// cosines and Heron's formula. Angle ai, in degrees, lies opposite side si. Whoever fills it in numbers the
/// sides so that known ones come first, before all one whose angle is known too; Triangle does.
class TriangleSolver {
public:
    TriangleSolver() { reset(); }
    void reset();

    /// A measure by its name, "s1" to "s3" and "a1" to "a3"; nothing for any other name.
    std::optional<double> valueForKey(std::string_view key) const;
    void setValueForKey(std::string_view key, double value);
    double area() const { return m_area; }
    void setArea(double area) { m_area = area; }
    /// Whether the angle that the sides leave open is to be the acute one of two.
    bool primarySolution() const { return m_primarySolution; }
    void setPrimarySolution(bool primary) { m_primarySolution = primary; }
    int nSolutions() const { return m_nSolutions; }
    void setNSolutions(int nSolutions) { m_nSolutions = nSolutions; }
    const std::optional<std::string>& reasonForFailure() const { return m_reasonForFailure; }
    void setReasonForFailure(std::optional<std::string> reason) { m_reasonForFailure = std::move(reason); }

    /// How many of the six measures are known.
    int nKnowns() const;
    /// False when no triangle has these measures; true when one is found, or too little is known.
    bool solve();
    void calculateMissingAngle();
    /// Unknown unless all sides are known.
    void calculateArea();
    /// The angle, in degrees, between a and b, opposite c.
    static double thetaByLawOfCosines(double a, double b, double c);

private:
    double* measure(std::string_view key);
    int nKnownAngles() const;
    bool fail(const char* reason);
    bool solveSides();
    bool solveSideAndAngles();
    bool solveIncludedAngle();
    bool solveOppositeAngle();
    double thirdSide() const;

    double m_s1;
    double m_s2;
    double m_s3;
    double m_a1;
    double m_a2;
    double m_a3;
    double m_area;
    int m_nSolutions;
    std::optional<std::string> m_reasonForFailure;
    bool m_primarySolution = true;
};

} // namespace velmora
