#include "tools/solvers/PolynomialSolver.h"

#include "engine/environment/Environment.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

std::shared_ptr<ComplexArray> array(std::initializer_list<ComplexValue> values) {
    auto result = std::make_shared<ComplexArray>();
    for (const ComplexValue value : values) {
        result->emplace_back(value);
    }
    return result;
}

struct SolvedCase {
    std::initializer_list<ComplexValue> coefficients; ///< the constant term first
    int nSolutions;
    std::vector<std::string> roots;
};

TEST(PolynomialSolver, solvesByTheDegreeThatIsLeft) {
    const ComplexValue i(0, 1);
    const SolvedCase cases[] = {
        {{0, 0}, 2, {}},
        {{5, 0}, 0, {}},
        {{}, 2, {}},
        {{4, 2}, 1, {"-2"}},
        {{4.0 * i, 2}, 1, {"-2i"}},
        {{1.0 + i, 1.0 - i}, 1, {"-i"}},
        {{1, -2, 1}, 1, {"1", "1"}},
        {{1, 0, 1}, 1, {"i", "-i"}},
        {{5, -2, 1}, 1, {"1+2i", "1-2i"}}, // the plus sign first, whatever the signs of the coefficients
        {{5, 2, 1}, 1, {"-1+2i", "-1-2i"}},
        {{-5, 2, -1}, 1, {"1-2i", "1+2i"}}, // dividing by −2 turns them round
        {{-1, 0, 1, 0}, 1, {"1", "-1"}},
        {{0, 0, 0, 1}, 1, {"0", "0", "0"}},
        {{-1, 0, 0, 1}, 1, {"-0.5-0.866025i", "1", "-0.5+0.866025i"}},
        {{-6, 11, -6, 1}, 1, {"1", "2", "3"}},
        {{8, 0, 0, 1}, 1, {"1+1.73205i", "-2", "1-1.73205i"}},
        // The formulas lose digits here, as they are meant to.
        {{1, 1e8, 1}, 1, {"-7.45058e-09", "-1e+08"}},
        {{-2e6, 3000002, -1000003, 1}, 1, {"0.999997", "2", "1e+06"}},
    };
    for (const SolvedCase& c : cases) {
        const auto solver = PolynomialSolver::newPolynomialSolverWithCoefficients(array(c.coefficients));
        ASSERT_TRUE(solver);
        solver->solve();
        EXPECT_EQ(solver->nSolutions(), c.nSolutions);
        std::vector<std::string> roots;
        for (int index = 0; solver->solutionAtIndex(index); ++index) {
            roots.push_back(solver->solutionAtIndex(index)->roundedDescription());
        }
        // Which of three roots comes first is the cube root's choice.
        if (roots.size() == 3) {
            EXPECT_EQ(std::multiset<std::string>(roots.begin(), roots.end()),
                      std::multiset<std::string>(c.roots.begin(), c.roots.end()));
        } else {
            EXPECT_EQ(roots, c.roots);
        }
    }
}

TEST(PolynomialSolver, theRootsOfACubicComeInTheOrderOfItsCubeRoot) {
    const auto solver = CubicSolver::newCubicSolverWithCoefficients(array({-1, 0, 0, 1}));
    solver->solve();
    // u is 0, so v is the principal cube root of −27, and x1 = −v/3.
    EXPECT_EQ(solver->x0()->roundedDescription(), "-0.5-0.866025i");
    EXPECT_EQ(solver->x1()->roundedDescription(), "1");
    EXPECT_EQ(solver->x2()->roundedDescription(), "-0.5+0.866025i");
}

TEST(PolynomialSolver, theArrayIsSharedAndTrimmed) {
    const auto coefficients = array({1, 2, 0, 0});
    const auto solver = PolynomialSolver::newPolynomialSolverWithCoefficients(coefficients);
    EXPECT_EQ(coefficients->size(), 2U);
    EXPECT_EQ(solver->coefficients(), coefficients);
    EXPECT_EQ(solver->coefficientWithExponent(1).z(), 2.0);
    EXPECT_EQ(solver->coefficientWithExponent(2).z(), 0.0);
    EXPECT_EQ(solver->coefficientWithExponent(-1).z(), 0.0);
    EXPECT_FALSE(PolynomialSolver::newPolynomialSolverWithCoefficients(array({1, 1, 1, 1, 1})));
    EXPECT_TRUE(PolynomialSolver::newPolynomialSolverWithCoefficients(array({1, 1, 1, 1, 0})));
}

TEST(PolynomialSolver, eachKindTakesOnlyItsNumberOfCoefficients) {
    EXPECT_FALSE(LinearSolver::newLinearSolverWithCoefficients(array({1, 2, 3})));
    EXPECT_EQ(LinearSolver::newLinearSolverWithCoefficients(array({7}))->a().z(), 0.0);
    EXPECT_FALSE(QuadraticSolver::newQuadraticSolverWithCoefficients(array({1, 2})));
    EXPECT_FALSE(QuadraticSolver::newQuadraticSolverWithCoefficients(array({1, 2, 3, 4})));
    EXPECT_FALSE(CubicSolver::newCubicSolverWithCoefficients(array({1, 2, 3})));
    EXPECT_EQ(CubicSolver().coefficients()->size(), 3U);
    EXPECT_EQ(QuadraticSolver().coefficients()->size(), 3U);
    EXPECT_EQ(LinearSolver().coefficients()->size(), 2U);
}

TEST(PolynomialSolver, aFormulaWithoutItsLeadingCoefficientGivesNoNumber) {
    const auto quadratic = QuadraticSolver::newQuadraticSolverWithCoefficients(array({1, 2, 0}));
    quadratic->solve();
    EXPECT_TRUE(isNaN(quadratic->x0()->z()));
    const auto cubic = CubicSolver::newCubicSolverWithCoefficients(array({1, 2, 3, 0}));
    cubic->solve();
    EXPECT_EQ(cubic->nSolutions(), 0);
    EXPECT_FALSE(cubic->x0());
}

TEST(PolynomialSolver, withoutAKindItReportsAFault) {
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    PolynomialSolver().solve();
    EXPECT_EQ(environment.lastAlert,
              "DEBUG ALERT: Method solve in class PolynomialSolver should have been overriden!");
}

} // namespace
} // namespace velmora
