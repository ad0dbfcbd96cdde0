#include "tools/solvers/PolynomialSolver.h"

#include "engine/environment/Environment.h"

#include <cmath>
#include <complex>

namespace velmora {

namespace {

/// The textbook quotient: the conjugate of the divisor multiplies, its squared modulus divides both parts.
/// Like the rest of these formulas it is not guarded against overflow.
ComplexValue divided(ComplexValue dividend, ComplexValue divisor) {
    const double square = divisor.real() * divisor.real() + divisor.imag() * divisor.imag();
    const ComplexValue product = dividend * std::conj(divisor);
    return {product.real() / square, product.imag() / square};
}

/// The square root with a real part that is not negative. A minus zero in the imaginary part, which real
/// coefficients bring about by their signs alone, counts as zero: the root of −4 is 2i.
ComplexValue principalSquareRoot(ComplexValue z) { return std::sqrt(ComplexValue(z.real(), z.imag() + 0.0)); }

template <class Solver>
std::unique_ptr<Solver> newSolver(std::shared_ptr<ComplexArray> coefficients, bool fits) {
    if (!fits) {
        return nullptr;
    }
    auto solver = std::make_unique<Solver>();
    solver->setCoefficients(std::move(coefficients));
    return solver;
}

} // namespace

PolynomialSolver::PolynomialSolver() : PolynomialSolver(0, 0) {}

PolynomialSolver::PolynomialSolver(std::size_t zeroes, std::size_t capacity)
    : m_coefficients(std::make_shared<ComplexArray>(zeroes, Complex(0))),
      m_solutions(std::make_shared<ComplexArray>()) {
    m_solutions->reserve(capacity);
}

std::unique_ptr<PolynomialSolver>
PolynomialSolver::newPolynomialSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients) {
    while (!coefficients->empty() && coefficients->back().isZero()) {
        coefficients->pop_back();
    }
    switch (coefficients->size()) {
    case 3:
        return QuadraticSolver::newQuadraticSolverWithCoefficients(std::move(coefficients));
    case 4:
        return CubicSolver::newCubicSolverWithCoefficients(std::move(coefficients));
    default:
        return LinearSolver::newLinearSolverWithCoefficients(std::move(coefficients));
    }
}

void PolynomialSolver::solve() {
    Environment::current().raiseDebugAlert(
        "Method solve in class PolynomialSolver should have been overriden!");
}

Complex PolynomialSolver::coefficientWithExponent(int exponent) const {
    const bool exists = exponent >= 0 && static_cast<std::size_t>(exponent) < m_coefficients->size();
    return exists ? (*m_coefficients)[static_cast<std::size_t>(exponent)] : Complex(0);
}

std::optional<Complex> PolynomialSolver::solutionAtIndex(int index) const {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < m_solutions->size();
    return exists ? std::optional((*m_solutions)[static_cast<std::size_t>(index)]) : std::nullopt;
}

void PolynomialSolver::setCoefficients(std::shared_ptr<ComplexArray> coefficients) {
    m_coefficients = std::move(coefficients);
}

void PolynomialSolver::setSolutions(std::shared_ptr<ComplexArray> solutions) {
    m_solutions = std::move(solutions);
}

void PolynomialSolver::replaceSolutions(std::initializer_list<ComplexValue> roots) {
    m_solutions->clear();
    for (const ComplexValue root : roots) {
        m_solutions->emplace_back(root);
    }
}

std::unique_ptr<LinearSolver>
LinearSolver::newLinearSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients) {
    const bool fits = coefficients->size() <= 2;
    return newSolver<LinearSolver>(std::move(coefficients), fits);
}

std::unique_ptr<QuadraticSolver>
QuadraticSolver::newQuadraticSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients) {
    const bool fits = coefficients->size() == 3;
    return newSolver<QuadraticSolver>(std::move(coefficients), fits);
}

std::unique_ptr<CubicSolver>
CubicSolver::newCubicSolverWithCoefficients(std::shared_ptr<ComplexArray> coefficients) {
    const bool fits = coefficients->size() == 4;
    return newSolver<CubicSolver>(std::move(coefficients), fits);
}

void LinearSolver::solve() {
    const ComplexValue a = coefficient(1);
    const ComplexValue b = coefficient(0);
    if (a != 0.0) {
        setNSolutions(kSolutionsFound);
        const double square = a.real() * a.real() + a.imag() * a.imag();
        replaceSolutions({{(-b.real() * a.real() - b.imag() * a.imag()) / square,
                           (a.imag() * b.real() - a.real() * b.imag()) / square}});
    } else {
        setNSolutions(b != 0.0 ? kNoSolution : kEveryNumberIsASolution);
    }
}

void QuadraticSolver::solve() {
    setNSolutions(kSolutionsFound);
    const ComplexValue a = coefficient(2);
    const ComplexValue b = coefficient(1);
    const ComplexValue c = coefficient(0);
    const ComplexValue s = principalSquareRoot(b * b - 4.0 * a * c);
    replaceSolutions({divided(-b + s, 2.0 * a), divided(-b - s, 2.0 * a)});
}

void CubicSolver::solve() {
    const ComplexValue a = coefficient(3);
    if (a == 0.0) {
        return;
    }
    setNSolutions(kSolutionsFound);
    const ComplexValue b = divided(coefficient(2), a);
    const ComplexValue c = divided(coefficient(1), a);
    const ComplexValue d = divided(coefficient(0), a);
    const ComplexValue p = b * b - 3.0 * c;
    const ComplexValue q = 2.0 * (b * b * b) - 9.0 * b * c + 27.0 * d;
    const ComplexValue s = principalSquareRoot(q * q - 4.0 * (p * p * p));

    constexpr double negligible = 1e-11;
    const ComplexValue u = Complex((q + s) * 2.0 / 4.0).cubeRoot().z();
    const bool isNegligible = std::abs(u) < negligible; // which no NaN is
    const ComplexValue v = isNegligible ? Complex((q - s) / 2.0).cubeRoot().z() : divided(p, u);

    const ComplexValue omega(-0.5, 0.8660254037844386); // a primitive cube root of unity
    const ComplexValue omegaBar = std::conj(omega);
    constexpr double minusThird = -0.3333333333333333;
    replaceSolutions({(b + u + v) * minusThird, (b + u * omegaBar + v * omega) * minusThird,
                      (b + u * omega + v * omegaBar) * minusThird});
}

} // namespace velmora
