#pragma once

#include "engine/numbers/Complex.h"

#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Complex numbers by index; a solver and whoever made the array share it.
using ComplexArray = std::vector<Complex>;

/// What kind of result a solver has found.
inline constexpr int kNoSolution = 0;
inline constexpr int kSolutionsFound = 1; ///< whatever their number
inline constexpr int kEveryNumberIsASolution = 2;

/// Solves a polynomial equation of degree 1, 2 or 3 with complex coefficients by the closed formulas of
/// algebra, as they stand in the textbooks: no root is improved afterwards. How many digits that leaves is
/// told by CertifiedRoots.
class PolynomialSolver {
public:
    /// The solver for an array of coefficients, the constant term first. Zeroes at its end are removed from
    /// the array itself; what is left decides the degree. Null for more than four.
    static std::unique_ptr<PolynomialSolver>
    newPolynomialSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients);

    PolynomialSolver();
    virtual ~PolynomialSolver() = default;
    PolynomialSolver(const PolynomialSolver&) = delete;
    PolynomialSolver& operator=(const PolynomialSolver&) = delete;

    /// Computes solutions() and nSolutions(). Here it is a programming fault, which is reported.
    virtual void solve();

    /// The coefficient of x to the power; 0 where there is none.
    Complex coefficientWithExponent(int exponent) const;
    /// The root at an index from 0; nothing where there is none.
    std::optional<Complex> solutionAtIndex(int index) const;
    std::optional<Complex> x0() const { return solutionAtIndex(0); }
    std::optional<Complex> x1() const { return solutionAtIndex(1); }
    std::optional<Complex> x2() const { return solutionAtIndex(2); }

    const std::shared_ptr<ComplexArray>& coefficients() const { return m_coefficients; }
    void setCoefficients(std::shared_ptr<ComplexArray> coefficients);
    const std::shared_ptr<ComplexArray>& solutions() const { return m_solutions; }
    void setSolutions(std::shared_ptr<ComplexArray> solutions);
    /// The kind of result, not a count; it means something only after solve().
    int nSolutions() const { return m_nSolutions; }
    void setNSolutions(int kind) { m_nSolutions = kind; }

protected:
    PolynomialSolver(std::size_t zeroes, std::size_t capacity);
    ComplexValue coefficient(int exponent) const { return coefficientWithExponent(exponent).z(); }
    void replaceSolutions(std::initializer_list<ComplexValue> roots);

private:
    std::shared_ptr<ComplexArray> m_coefficients;
    std::shared_ptr<ComplexArray> m_solutions;
    int m_nSolutions = kNoSolution;
};

/// a x + b = 0.
class LinearSolver final : public PolynomialSolver {
public:
    LinearSolver() : PolynomialSolver(2, 2) {}
    /// Null for more than two coefficients; missing ones are 0.
    static std::unique_ptr<LinearSolver>
    newLinearSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients);

    Complex a() const { return coefficientWithExponent(1); }
    Complex b() const { return coefficientWithExponent(0); }
    void solve() override;
};

/// a x² + b x + c = 0 by the plain formula, the root with the plus sign first; a double root comes twice.
class QuadraticSolver final : public PolynomialSolver {
public:
    QuadraticSolver() : PolynomialSolver(3, 2) {}
    /// Null unless there are three coefficients.
    static std::unique_ptr<QuadraticSolver>
    newQuadraticSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients);

    Complex a() const { return coefficientWithExponent(2); }
    Complex b() const { return coefficientWithExponent(1); }
    Complex c() const { return coefficientWithExponent(0); }
    void solve() override;
};

/// a x³ + b x² + c x + d = 0 by the general cubic formula on complex numbers.
class CubicSolver final : public PolynomialSolver {
public:
    /// Three zeroes, one short of a cubic: the coefficients proper come at once.
    CubicSolver() : PolynomialSolver(3, 3) {}
    /// Null unless there are four coefficients.
    static std::unique_ptr<CubicSolver>
    newCubicSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients);

    Complex a() const { return coefficientWithExponent(3); }
    Complex b() const { return coefficientWithExponent(2); }
    Complex c() const { return coefficientWithExponent(1); }
    Complex d() const { return coefficientWithExponent(0); }
    /// With a = 0 nothing changes; the factory makes no such solver.
    void solve() override;
};

} // namespace velmora
