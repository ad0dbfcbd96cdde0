#include "tools/triangle/TriangleSolver.h"

#include "tools/triangle/DoubleWithSource.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kDegreesOfRadian = 57.29577951308232;
constexpr double kAngleSumTolerance = 1e-11;

bool isKnown(double measure) { return measure != kUnknown; }

double inRadians(double degrees) { return degrees / kDegreesOfRadian; }

} // namespace

void TriangleSolver::reset() {
    m_s1 = m_s2 = m_s3 = m_a1 = m_a2 = m_a3 = m_area = kUnknown;
    m_nSolutions = kTriangleNotTried;
    m_reasonForFailure.reset();
}

double* TriangleSolver::measure(std::string_view key) {
    struct Row {
        std::string_view key;
        double TriangleSolver::*member;
    };
    static constexpr Row kMeasures[] = {{"s1", &TriangleSolver::m_s1}, {"s2", &TriangleSolver::m_s2},
                                        {"s3", &TriangleSolver::m_s3}, {"a1", &TriangleSolver::m_a1},
                                        {"a2", &TriangleSolver::m_a2}, {"a3", &TriangleSolver::m_a3}};
    const auto* row = std::ranges::find(kMeasures, key, &Row::key);
    return row == std::end(kMeasures) ? nullptr : &(this->*row->member);
}

std::optional<double> TriangleSolver::valueForKey(std::string_view key) const {
    const double* found = const_cast<TriangleSolver*>(this)->measure(key); // which only looks it up
    return found ? std::optional(*found) : std::nullopt;
}

void TriangleSolver::setValueForKey(std::string_view key, double value) {
    if (double* found = measure(key)) {
        *found = value;
    }
}

int TriangleSolver::nKnownAngles() const {
    return static_cast<int>(isKnown(m_a1)) + static_cast<int>(isKnown(m_a2)) +
           static_cast<int>(isKnown(m_a3));
}

int TriangleSolver::nKnowns() const {
    return nKnownAngles() + static_cast<int>(isKnown(m_s1)) + static_cast<int>(isKnown(m_s2)) +
           static_cast<int>(isKnown(m_s3));
}

bool TriangleSolver::fail(const char* reason) {
    m_nSolutions = kNoTriangle;
    m_reasonForFailure = reason;
    return false;
}

bool TriangleSolver::solve() {
    const int angles = nKnownAngles();
    const int knowns = nKnowns();
    if (knowns <= 2) {
        if (angles == 2) {
            calculateMissingAngle();
        }
        m_nSolutions = kTriangleNotDetermined;
        return true;
    }
    if (angles == 3) {
        if (std::fabs(m_a1 + m_a2 + m_a3 - 180) > kAngleSumTolerance) {
            return fail("The angles have to add up to 180°.");
        }
        if (knowns == angles) {
            m_nSolutions = kTriangleNotDetermined;
            return true;
        }
    }
    if (angles == 0) {
        return solveSides();
    }
    if (angles >= 2) {
        return solveSideAndAngles();
    }
    return isKnown(m_a3) ? solveIncludedAngle() : solveOppositeAngle();
}

bool TriangleSolver::solveSides() {
    // Equality is a flat triangle, which has a solution; a measure that is no number has none.
    if (m_s1 + m_s2 < m_s3 || m_s1 + m_s3 < m_s2 || !(m_s2 + m_s3 >= m_s1)) {
        return fail("One edge is longer than the other two combined.");
    }
    m_a1 = thetaByLawOfCosines(m_s2, m_s3, m_s1);
    m_a2 = thetaByLawOfCosines(m_s3, m_s1, m_s2);
    m_a3 = thetaByLawOfCosines(m_s1, m_s2, m_s3);
    m_nSolutions = kOneTriangle;
    calculateArea();
    return true;
}

bool TriangleSolver::solveSideAndAngles() {
    calculateMissingAngle();
    if (!isKnown(m_s1)) {
        m_nSolutions = kTriangleNotDetermined;
        return true;
    }
    m_s2 = m_s1 * std::sin(inRadians(m_a2)) / std::sin(inRadians(m_a1));
    m_s3 = m_s1 * std::sin(inRadians(m_a3)) / std::sin(inRadians(m_a1));
    m_nSolutions = kOneTriangle;
    calculateArea();
    return true;
}

double TriangleSolver::thirdSide() const {
    return std::sqrt(m_s1 * m_s1 + m_s2 * m_s2 + (-2 * m_s1) * m_s2 * std::cos(inRadians(m_a3)));
}

bool TriangleSolver::solveIncludedAngle() {
    m_s3 = thirdSide();
    m_a1 = thetaByLawOfCosines(m_s2, m_s3, m_s1);
    m_a2 = thetaByLawOfCosines(m_s3, m_s1, m_s2);
    m_nSolutions = kOneTriangle;
    calculateArea();
    return true;
}

bool TriangleSolver::solveOppositeAngle() {
    constexpr double rightAngle = 90;
    const double sine = m_s2 * std::sin(inRadians(m_a1)) / m_s1;
    if (sine > 1.00000000001) {
        return fail("There are no solutions, because the unanchored side is too short to reach the opposite "
                    "edge.");
    }
    if (sine < 0.99999999999 || std::isnan(sine)) {
        m_a2 = std::asin(sine) * kDegreesOfRadian;
        if (m_a1 < m_a2 || std::isnan(m_a1) || std::isnan(m_a2)) {
            m_nSolutions = kTwoTriangles;
            if (!m_primarySolution) {
                m_a2 = 180 - m_a2;
            }
        } else {
            m_nSolutions = kOneTriangle;
        }
    } else {
        m_a2 = rightAngle;
        m_nSolutions = kOneTriangle;
    }
    m_a3 = 180 - m_a1 - m_a2;
    m_s3 = thirdSide();
    calculateArea();
    return true;
}

void TriangleSolver::calculateMissingAngle() {
    if (!isKnown(m_a1)) {
        m_a1 = 180 - m_a2 - m_a3;
    }
    if (!isKnown(m_a2)) {
        m_a2 = 180 - m_a1 - m_a3;
    }
    if (!isKnown(m_a3)) {
        m_a3 = 180 - m_a1 - m_a2;
    }
}

void TriangleSolver::calculateArea() {
    if (!isKnown(m_s1) || !isKnown(m_s2) || !isKnown(m_s3)) {
        m_area = kUnknown;
        return;
    }
    const double p = (m_s1 + m_s2 + m_s3) * 0.5;
    m_area = std::sqrt(p * (p - m_s1) * (p - m_s2) * (p - m_s3));
}

double TriangleSolver::thetaByLawOfCosines(double a, double b, double c) {
    constexpr double pi = 3.141592653589793;
    return std::acos((c * c - a * a - b * b) / (-2 * a * b)) * 180 / pi;
}

} // namespace velmora
