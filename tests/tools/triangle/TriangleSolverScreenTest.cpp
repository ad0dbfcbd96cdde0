// The triangle's screen as a person works it: texts typed into fields, and what follows at once.

#include "tools/triangle/TriangleSolverViewController.h"

#include "platform/machine/Alert.h"
#include "platform/machine/DocumentsFolder.h"
#include "tests/graphing/RecordingContext.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tools/kept/KeptTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr std::size_t kAngleA = 3;

class TriangleSolverScreen : public testing::Test {
protected:
    TriangleSolverScreen() { KeptTexts::resetForTests(); }

    /// a, b, c, A, B, C.
    static void type(TriangleSolverViewController& screen, const std::vector<std::string>& texts) {
        screen.clearAll();
        for (std::size_t field = 0; field < texts.size(); ++field) {
            screen.setText(field, texts[field]);
        }
    }
};

constexpr const char* kEnterThree =
    "Enter three values, including at least one side.  Use degrees for angles.";

TEST_F(TriangleSolverScreen, saysHowManyTrianglesThereAre) {
    struct Row {
        std::vector<std::string> texts;
        const char* label;
        const char* note;
        const char* area;
        bool hasPicture;
    };
    const Row rows[] = {
        {{}, kEnterThree, "", "", false},
        {{"3", "4", "5"}, "There is one solution.", "", "Area 6", true},
        {{"3", "4", "", "", "90"}, "There is one solution.", "", "Area 3.96863", true},
        {{"1.5", "2", "", "30"},
         "There are two solutions.  Tap the triangle to toggle.",
         "",
         "Area 1.42504",
         true},
        {{"1", "2", "4"}, "One edge is longer than the other two combined.", "", "", false},
        {{"", "", "", "60", "60", "70"}, "The angles have to add up to 180°.", "", "", false},
        {{"1", "2", "3"}, "There is one solution.", "", "Area 0", true},
        {{"", "", "", "30", "60"}, kEnterThree, "", "", false},
        {{"1", "", "", "100", "100"}, kEnterThree, "The two angles leave nothing for the third.", "", false},
        {{"3", "4", "5", "", "", "90"}, "There is one solution.", "", "Area 6", true},
        {{"3", "4", "5", "", "", "80"},
         kEnterThree,
         "These measures belong to no one triangle.  Three are enough: clear another.",
         "",
         false},
        {{"3", "4", "x"}, kEnterThree, "", "", false},
        {{"3", "-1", "5"}, kEnterThree, "", "", false},
        {{"1E-9", "1", "1"}, "There is one solution.", "", "Area 5e-10", true},
        {{"1e200", "1e200", "1e200"},
         "There is one solution.",
         "",
         "",
         false}, // beyond what the formulas hold
    };
    for (const Row& row : rows) {
        TriangleSolverViewController screen;
        type(screen, row.texts);
        SCOPED_TRACE(testing::PrintToString(row.texts));
        EXPECT_EQ(screen.label(), row.label);
        EXPECT_EQ(screen.labelIsCentred(), screen.label() == "There is one solution.");
        EXPECT_EQ(screen.note(), row.note);
        EXPECT_EQ(screen.areaText(), row.area);
        EXPECT_EQ(screen.picture().isEmpty(), !row.hasPicture);
    }
}

TEST_F(TriangleSolverScreen, tellsTypedFromCalculatedAndForgetsEither) {
    TriangleSolverViewController screen;
    type(screen, {"3", "4", "5"});
    EXPECT_EQ(screen.calculatedText(0), "");
    EXPECT_EQ(screen.calculatedText(5), "90");
    screen.clearCalculated();
    EXPECT_EQ(screen.calculatedText(5), "");
    EXPECT_EQ(screen.typedText(2), "5");
    EXPECT_EQ(screen.label(), kEnterThree);
    screen.setText(2, "5.0");
    EXPECT_EQ(screen.calculatedText(5), "90");
    screen.setText(2, "");
    EXPECT_EQ(screen.calculatedText(5), "") << "calculated from a side that is gone";
    screen.clearAll();
    EXPECT_EQ(screen.typedText(0), "");
    for (const char* text : {"0", "-3", "x", "1,5"}) {
        screen.setText(0, text);
        EXPECT_NE(screen.problem(0), "") << text;
    }
    for (const char* text : {"0", "180", "-1", "degrees"}) {
        screen.setText(kAngleA, text);
        EXPECT_NE(screen.problem(kAngleA), "") << text;
    }
}

TEST_F(TriangleSolverScreen, theTapShowsTheOtherSolution) {
    TriangleSolverViewController screen;
    type(screen, {"1.5", "2", "", "30"});
    EXPECT_EQ(screen.calculatedText(4), "41.8103");
    screen.toggleSolution();
    EXPECT_EQ(screen.calculatedText(4), "138.19");
    screen.toggleSolution();
    EXPECT_EQ(screen.calculatedText(4), "41.8103");
    type(screen, {"3", "4", "5"});
    screen.toggleSolution();
    EXPECT_TRUE(SingletonTriangle::s().currentTriangle().primarySolution()) << "there is no other";
}

TEST_F(TriangleSolverScreen, anglesThatAreTooBigAreToldOfWhenTheFieldIsLeft) {
    RecordingAlertPresenter alerts;
    const AlertPresenterScope scope(alerts);
    TriangleSolverViewController screen;
    type(screen, {"", "", "", "100", "30"});
    EXPECT_TRUE(alerts.alerts().empty());
    screen.finishField(0);
    EXPECT_TRUE(alerts.alerts().empty());
    screen.finishField(kAngleA);
    ASSERT_EQ(alerts.alerts().size(), 1U);
    EXPECT_EQ(alerts.alerts()[0].title, "Angles Too Big");
    screen.setText(0, "5"); // and the triangle is solved all the same
    EXPECT_EQ(screen.label(), "There is one solution.");
}

TEST_F(TriangleSolverScreen, isDrawnToScaleWithinThePicture) {
    const std::vector<std::string> triangles[] = {{"3", "4", "5"},
                                                  {"1e-9", "1", "1"},
                                                  {"1", "2", "3"},
                                                  {"1", "1", "1.99999"},
                                                  {"1e9", "1e9", "1"},
                                                  {"5", "5", "5"},
                                                  {"1e-200", "", "", "30", "60"}};
    for (const auto& texts : triangles) {
        SCOPED_TRACE(testing::PrintToString(texts));
        TriangleSolverViewController screen;
        type(screen, texts);
        ASSERT_FALSE(screen.picture().isEmpty());
        screen.picture().setSize({288, 170});
        RecordingContext context;
        screen.picture().draw(context);
        std::vector<Point> corners;
        for (const auto& command : context.commands) {
            if (command.kind == RecordingContext::Kind::Line) {
                corners.push_back({command.a, command.b});
                EXPECT_TRUE(command.a >= 0 && command.a <= 288 && command.b >= 0 && command.b <= 170);
            }
        }
        ASSERT_EQ(corners.size(), 3U); // C is reached before A: B, C, A
        const auto length = [&](std::size_t from, std::size_t to) {
            return std::hypot(corners[from].x - corners[to].x, corners[from].y - corners[to].y);
        };
        const Triangle& triangle = SingletonTriangle::s().currentTriangle();
        const double scale =
            std::max({length(0, 1), length(1, 2), length(0, 2)}) /
            std::max({triangle.doubleForKey("a"), triangle.doubleForKey("b"), triangle.doubleForKey("c")});
        EXPECT_NEAR(length(0, 1), triangle.doubleForKey("a") * scale, 0.01);
        EXPECT_NEAR(length(1, 2), triangle.doubleForKey("b") * scale, 0.01);
        EXPECT_NEAR(length(0, 2), triangle.doubleForKey("c") * scale, 0.01);
        const auto labels = screen.picture().labels();
        ASSERT_EQ(labels.size(), 6U);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const Rect& one = labels[i].frame;
            EXPECT_TRUE(one.x >= 0 && one.y >= 0 && one.x + one.width <= 288.001 &&
                        one.y + one.height <= 170.001);
            for (std::size_t j = 0; j < i; ++j) {
                const Rect& other = labels[j].frame;
                EXPECT_FALSE(one.x < other.x + other.width && other.x < one.x + one.width &&
                             one.y < other.y + other.height && other.y < one.y + one.height)
                    << labels[i].text << " covers " << labels[j].text;
            }
        }
    }
}

TEST_F(TriangleSolverScreen, theOtherSolutionStandsOnTheSameCornerAndSide) {
    TriangleSolverViewController screen;
    type(screen, {"1.5", "2", "", "30"});
    screen.picture().setSize({288, 170});
    RecordingContext context;
    screen.picture().draw(context);
    std::vector<Point> corners; // of the other triangle B, C, A, then of this one
    for (const auto& command : context.commands) {
        if (command.kind == RecordingContext::Kind::Line) {
            corners.push_back({command.a, command.b});
        }
    }
    ASSERT_EQ(corners.size(), 6U);
    EXPECT_EQ(corners[1], corners[4]) << "C";
    EXPECT_EQ(corners[2], corners[5]) << "A, where the given angle is";
    EXPECT_NE(corners[0], corners[3]) << "B";
    EXPECT_EQ(corners[0].y, corners[3].y) << "both on the base";
}

TEST_F(TriangleSolverScreen, whatWasTypedIsKeptBetweenRuns) {
    const TemporaryFolder folder;
    PlainDocumentsFolder documents(folder.path());
    const DocumentsFolderScope scope(documents);
    {
        TriangleSolverViewController screen;
        type(screen, {"1.50", "2", "", "30"});
        screen.toggleSolution();
    }
    KeptTexts::saveAll();
    KeptTexts::resetForTests();
    SingletonTriangle::resetForTests();
    const TriangleSolverViewController again;
    EXPECT_EQ(again.typedText(0), "1.50");
    EXPECT_EQ(again.typedText(2), "");
    EXPECT_EQ(again.calculatedText(4), "138.19");
    KeptTexts::resetForTests();
}

TEST(VectorGeometry, calculatesInSinglePrecision) {
    EXPECT_EQ(CGRectMakeCenter({10, 20}, {4, 6}), (CGRect{{8, 17}, {4, 6}}));
    EXPECT_EQ(vectorSum({1, 2}, {3, 5}), (CGPoint{4, 7}));
    EXPECT_EQ(vectorDifference({1, 2}, {3, 5}), (CGPoint{-2, -3}));
    EXPECT_EQ(scalarProduct({1, -2}, 0.1), (CGPoint{0.1F, -0.2F}));
    EXPECT_EQ(normalizedVector({3, 4}),
              (CGPoint{static_cast<float>(3 * (1 / 5.0)), static_cast<float>(4 * (1 / 5.0))}));
    EXPECT_EQ(normalizedVector({0, 0}), (CGPoint{0, 0}));
}

} // namespace
} // namespace velmora
