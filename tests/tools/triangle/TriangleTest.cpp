#include "tools/triangle/Triangle.h"

#include "platform/machine/Alert.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

struct Entered {
    const char* key;
    double value;
};

struct SolvedCase {
    const char* name;
    std::vector<Entered> entered;
    int nSolutions;
    /// a, b, c, A, B, C and the area, to six digits; −1 is unknown.
    std::array<double, 7> measures;
    bool primary = true;
};

Triangle solved(const std::vector<Entered>& entered, bool primary = true) {
    Triangle triangle;
    triangle.setPrimarySolution(primary);
    for (const Entered& measure : entered) {
        triangle.setEnteredValue(measure.value, measure.key);
    }
    triangle.solveIfReady();
    return triangle;
}

TEST(Triangle, isSolvedFromAnyThreeMeasures) {
    // Worked examples of surveyors' and school tables, and right triangles.
    const SolvedCase cases[] = {
        {"three sides", {{"a", 3}, {"b", 4}, {"c", 5}}, 1, {3, 4, 5, 36.8699, 53.1301, 90, 6}},
        {"three sides", {{"a", 13}, {"b", 14}, {"c", 15}}, 1, {13, 14, 15, 53.1301, 59.4898, 67.3801, 84}},
        {"equal sides", {{"a", 2}, {"b", 2}, {"c", 2}}, 1, {2, 2, 2, 60, 60, 60, 1.73205}},
        {"flat", {{"a", 1}, {"b", 2}, {"c", 3}}, 1, {1, 2, 3, 0, 0, 180, 0}},
        {"sides and the angle between",
         {{"b", 8}, {"c", 11}, {"angleA", 37}},
         1,
         {6.66634, 8, 11, 37, 46.2375, 96.7625, 26.4799}},
        {"sides and the angle between",
         {{"a", 5}, {"b", 7}, {"angleC", 49}},
         1,
         {5, 7, 5.29867, 45.4117, 85.5883, 49, 13.2074}},
        {"angles and the side between",
         {{"angleA", 76}, {"angleB", 34}, {"c", 9}},
         1,
         {9.29310, 5.35573, 9, 76, 34, 70, 23.3849}},
        {"angles and another side",
         {{"angleA", 35}, {"angleC", 62}, {"a", 7}},
         1,
         {7, 12.1132, 10.7756, 35, 83, 62, 37.4335}},
        {"angles and another side",
         {{"angleB", 62}, {"angleC", 83}, {"b", 7}},
         1,
         {4.54731, 7, 7.86890, 35, 62, 83, 15.7969}},
        {"two triangles",
         {{"a", 1.5}, {"b", 2}, {"angleA", 30}},
         2,
         {1.5, 2, 2.85008, 30, 41.8103, 108.190, 1.42504}},
        {"two triangles",
         {{"a", 1.5}, {"b", 2}, {"angleA", 30}},
         2,
         {1.5, 2, 0.614017, 30, 138.190, 11.8103, 0.307008},
         false},
        {"one triangle",
         {{"a", 3}, {"b", 2}, {"angleA", 30}},
         1,
         {3, 2, 4.56048, 30, 19.4712, 130.529, 2.28024}},
        {"a right angle", {{"a", 1}, {"b", 2}, {"angleA", 30}}, 1, {1, 2, 1.73205, 30, 90, 60, 0.866025}},
        {"two triangles",
         {{"c", 10}, {"angleC", 40}, {"a", 12}},
         2,
         {12, 15.5567, 10, 50.4748, 89.5252, 40, 59.9979}},
        {"only angles", {{"angleA", 30}, {"angleB", 60}}, -2, {-1, -1, -1, 30, 60, 90, -1}},
        {"only angles", {{"angleA", 60}, {"angleB", 60}, {"angleC", 60}}, -2, {-1, -1, -1, 60, 60, 60, -1}},
        {"too little", {{"a", 3}, {"angleB", 60}}, -2, {3, -1, -1, -1, 60, -1, -1}},
        {"nothing", {}, -2, {-1, -1, -1, -1, -1, -1, -1}},
    };
    for (const SolvedCase& c : cases) {
        SCOPED_TRACE(c.name);
        const Triangle triangle = solved(c.entered, c.primary);
        EXPECT_EQ(triangle.nSolutions(), c.nSolutions);
        EXPECT_FALSE(triangle.reasonForFailureToSolve());
        const auto near = [](double value, double expected) {
            return std::fabs(value - expected) <= 6e-6 * std::fabs(expected) + 1e-12;
        };
        for (std::size_t i = 0; i < kTriangleKeys.size(); ++i) {
            EXPECT_PRED2(near, triangle.doubleForKey(kTriangleKeys[i]), c.measures[i]) << kTriangleKeys[i];
        }
        EXPECT_PRED2(near, triangle.area().x(), c.measures[6]);
    }
}

/// Whatever is given, the laws of sines and cosines hold between the measures.
TEST(Triangle, itsMeasuresFitEachOther) {
    const std::vector<Entered> cases[] = {{{"a", 7}, {"b", 8}, {"c", 9}},
                                          {{"a", 7}, {"angleB", 20}, {"c", 9}},
                                          {{"angleA", 7}, {"angleB", 20}, {"c", 9}},
                                          {{"angleA", 100}, {"a", 20}, {"c", 9}},
                                          {{"angleC", 44}, {"c", 20}, {"b", 22}}};
    for (const auto& entered : cases) {
        for (const bool primary : {true, false}) {
            const Triangle t = solved(entered, primary);
            const auto sine = [&](const char* key) {
                return std::sin(t.doubleForKey(key) * std::acos(-1) / 180);
            };
            const double diameter = t.doubleForKey("a") / sine("angleA");
            EXPECT_NEAR(t.doubleForKey("b") / sine("angleB"), diameter, 1e-9);
            EXPECT_NEAR(t.doubleForKey("c") / sine("angleC"), diameter, 1e-9);
            EXPECT_NEAR(t.doubleForKey("angleA") + t.doubleForKey("angleB") + t.doubleForKey("angleC"), 180,
                        1e-9);
            EXPECT_NEAR(t.area().x(), t.doubleForKey("a") * t.doubleForKey("b") * sine("angleC") / 2, 1e-9);
        }
    }
}

TEST(Triangle, saysWhyThereIsNone) {
    struct Row {
        std::vector<Entered> entered;
        const char* reason;
    };
    const char* const tooLong = "One edge is longer than the other two combined.";
    const char* const tooShort =
        "There are no solutions, because the unanchored side is too short to reach the "
        "opposite edge.";
    const Row rows[] = {
        {{{"a", 1}, {"b", 2}, {"c", 4}}, tooLong},
        {{{"a", 4}, {"b", 2}, {"c", 1}}, tooLong},
        {{{"a", 1}, {"b", 4}, {"c", 2}}, tooLong},
        {{{"angleA", 60}, {"angleB", 60}, {"angleC", 70}}, "The angles have to add up to 180°."},
        {{{"a", 1}, {"b", 3}, {"angleA", 30}}, tooShort}};
    for (const Row& row : rows) {
        Triangle triangle = solved(row.entered);
        EXPECT_EQ(triangle.nSolutions(), 0);
        EXPECT_EQ(triangle.reasonForFailureToSolve(), row.reason);
        triangle.clearCalculatedValues();
        EXPECT_EQ(triangle.nSolutions(), -2);
        EXPECT_FALSE(triangle.reasonForFailureToSolve());
    }
}

TEST(Triangle, keepsWhatWasTyped) {
    Triangle triangle = solved({{"a", 3}, {"b", 4}, {"c", 5}});
    EXPECT_FALSE(triangle.measure("angleA")->isEntered());
    triangle.setCalculatedValue(7, "a");
    EXPECT_EQ(triangle.doubleForKey("a"), 3);
    EXPECT_EQ(triangle.nKnowns(), 6);
    const Triangle copy = triangle.copy();
    EXPECT_EQ(copy.nKnowns(), 6);
    EXPECT_EQ(copy.nSolutions(), -2);
    EXPECT_FALSE(copy.area().isKnown());
    triangle.clearCalculatedValues();
    EXPECT_EQ(triangle.nKnowns(), 3);
    EXPECT_EQ(triangle.measure("b")->stringValue(), "4");
    EXPECT_EQ(triangle.measure("angleA")->stringValue(), "");
    triangle.setPrimarySolution(false);
    triangle.reset();
    EXPECT_EQ(triangle.nKnowns(), 0);
    EXPECT_TRUE(triangle.primarySolution());
    EXPECT_EQ(triangle.doubleForKey("angleD"), -1);
}

TEST(Triangle, aMeasureOfMinusOneIsUnknown) {
    DoubleWithSource measure;
    measure.setEntered(-1);
    EXPECT_FALSE(measure.isKnown());
    measure.setCalculated(2);
    EXPECT_EQ(measure.x(), 2);
    EXPECT_FALSE(measure.isEntered());
    measure.setEntered(1234567);
    EXPECT_EQ(measure.stringValue(), "1.23457e+06");
}

TEST(Triangle, numbersKnownSidesFirst) {
    using testing::IsSupersetOf;
    using testing::Pair;
    Triangle triangle;
    for (const char* key : {"b", "c", "angleA"}) {
        triangle.setEnteredValue(1, key);
    }
    EXPECT_THAT(triangle.keyMapDictionary(),
                IsSupersetOf({Pair("b", "s1"), Pair("c", "s2"), Pair("a", "s3"), Pair("angleA", "a3")}));
    triangle.reset();
    for (const char* key : {"a", "angleA", "b"}) {
        triangle.setEnteredValue(1, key);
    }
    EXPECT_THAT(triangle.keyMapDictionary(),
                IsSupersetOf({Pair("a", "s1"), Pair("angleA", "a1"), Pair("b", "s2"), Pair("c", "s3")}));
    triangle.reset();
    for (const char* key : {"b", "angleC"}) {
        triangle.setEnteredValue(1, key);
    }
    EXPECT_THAT(triangle.keyMapDictionary(),
                IsSupersetOf({Pair("b", "s1"), Pair("c", "s2"), Pair("a", "s3")}));
}

TEST(Triangle, countsAngleAOnceForEachKnownAngle) {
    struct Row {
        std::vector<Entered> entered;
        bool isTooBig;
    };
    const Row rows[] = {{{{"angleA", 100}, {"angleB", 30}}, true}, // though they are not
                        {{{"angleB", 100}, {"angleC", 100}}, false},
                        {{{"angleA", 50}, {"angleB", 170}, {"angleC", 170}}, false},
                        {{{"angleA", 60.1}, {"angleB", 1}, {"angleC", 1}}, true},
                        {{{"angleA", 90}, {"angleB", 1}}, false},
                        {{{"angleA", 181}}, true},
                        {{{"angleA", NAN}}, false}};
    for (const Row& row : rows) {
        RecordingAlertPresenter alerts;
        const AlertPresenterScope scope(alerts);
        Triangle triangle;
        for (const Entered& measure : row.entered) {
            triangle.setEnteredValue(measure.value, measure.key);
        }
        EXPECT_EQ(triangle.anglesAreTooBig(), row.isTooBig);
        ASSERT_EQ(alerts.alerts().size(), row.isTooBig ? 1U : 0U);
        if (row.isTooBig) {
            EXPECT_EQ(alerts.alerts()[0].title, "Angles Too Big");
            EXPECT_EQ(alerts.alerts()[0].message, "The angles can't add up to more than 180 degrees.");
            EXPECT_EQ(alerts.alerts()[0].buttons, std::vector<std::string>{"OK"});
        }
    }
}

TEST(Triangle, aFlatOneIsLogged) {
    const LogRecorder log;
    EXPECT_EQ(solved({{"a", 1}, {"b", 2}, {"c", 3}}).area().x(), 0);
    EXPECT_EQ(log.lines(), std::vector<std::string>{"Huh?"});
}

TEST(TriangleSolver, isTakenAndGivenByKeys) {
    TriangleSolver solver;
    EXPECT_EQ(solver.nSolutions(), -1);
    EXPECT_EQ(solver.nKnowns(), 0);
    solver.setValueForKey("s2", 4);
    solver.setValueForKey("x2", 4);
    EXPECT_EQ(solver.valueForKey("s2"), 4);
    EXPECT_EQ(solver.valueForKey("x2"), std::nullopt);
    EXPECT_EQ(solver.nKnowns(), 1);
    EXPECT_TRUE(solver.solve());
    EXPECT_EQ(solver.nSolutions(), -2);
    EXPECT_NEAR(TriangleSolver::thetaByLawOfCosines(3, 4, 5), 90, 1e-12);
}

} // namespace
} // namespace velmora
