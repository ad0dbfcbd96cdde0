// The solver's screen as a person works it: texts typed into fields, Solve, the answer.

#include "tools/solvers/PolynomialSolverViewController.h"

#include "platform/machine/DocumentsFolder.h"
#include "platform/machine/Pasteboard.h"
#include "tests/graphing/RecordingContext.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tools/kept/KeptTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

class PolynomialSolverScreen : public testing::Test {
protected:
    PolynomialSolverScreen() { KeptTexts::resetForTests(); }

    /// Types the coefficients, the highest power first, and solves.
    static bool solve(PolynomialSolverViewController& screen, const std::vector<std::string>& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            screen.setCoefficientText(screen.degree() - static_cast<int>(i), texts[i]);
        }
        return screen.solve();
    }

    static std::vector<std::string> answer(const PolynomialSolverViewController& screen) {
        std::vector<std::string> lines;
        for (const auto& root : screen.roots()) {
            lines.push_back(root.label);
            if (!root.moreExactly.empty()) {
                lines.push_back(root.moreExactly);
            }
        }
        return lines;
    }
};

TEST_F(PolynomialSolverScreen, answersWhatIsTyped) {
    struct Row {
        int degree;
        std::vector<std::string> texts;
        const char* equation;
        std::vector<std::string> answer;
        bool hasPicture;
    };
    const Row rows[] = {
        {1, {"2", "4"}, "2x + 4 = 0", {"x1=-2"}, true},
        {1, {"", ""}, "0 = 0", {"Infinitely many solutions"}, false},
        {1, {"0", "5"}, "5 = 0", {"No solutions"}, false},
        {2, {"1", "-2", "1"}, "x² − 2x + 1 = 0", {"x1=1", "x2=1"}, true},
        {2, {"1", "", "1"}, "x² + 1 = 0", {"x1=i", "x2=-i"}, false},
        {2,
         {" -1 ", "+1e3", "−.5"},
         "−x² + 1e3·x − .5 = 0",
         {"x1=0.0005", "more exactly: 0.000500000250000250", "x2=1000"},
         true},
        {2,
         {"1", "1e8", "1"},
         "x² + 1e8·x + 1 = 0",
         {"x1=-7.45058e-09", "more exactly: -1e-08", "x2=-1e+08"},
         true},
        {3, {"0", "1", "0", "-1"}, "x² − 1 = 0", {"x1=1", "x2=-1"}, true},
        {3, {"1", "-6", "11", "-6"}, "x³ − 6x² + 11x − 6 = 0", {"x1=1", "x2=2", "x3=3"}, true},
        {3,
         {"1", "-1000003", "3000002", "-2000000"},
         "x³ − 1000003x² + 3000002x − 2000000 = 0",
         {"x1=0.999997", "more exactly: 1", "x2=2", "x3=1e+06"},
         true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.equation);
        PolynomialSolverViewController screen(row.degree);
        ASSERT_TRUE(solve(screen, row.texts));
        EXPECT_EQ(screen.equationText(), row.equation);
        EXPECT_EQ(screen.picture().isEmpty(), !row.hasPicture);
        if (row.degree == 3) {
            EXPECT_THAT(answer(screen), testing::UnorderedElementsAreArray(row.answer));
        } else if (row.texts[0] != " -1 ") {
            EXPECT_EQ(answer(screen), row.answer);
        } else {
            EXPECT_EQ(answer(screen).front(), "x1=0.0005");
        }
        screen.setCoefficientText(0, "77");
        EXPECT_TRUE(screen.roots().empty()) << "an answer to another equation stays";
        EXPECT_TRUE(screen.picture().isEmpty());
    }
}

TEST_F(PolynomialSolverScreen, marksWhatIsNoNumberAndSolvesNothing) {
    PolynomialSolverViewController screen(2);
    EXPECT_TRUE(solve(screen, {"1", "2", "1"}));
    for (const char* text : {"x", "1,5", "1.2.3", "inf", "nan", "1e999", "1e-999", "0x1", "2 3"}) {
        EXPECT_FALSE(solve(screen, {"1", text, "1"})) << text;
        EXPECT_EQ(screen.problem(1), "This is not a number.") << text;
        EXPECT_EQ(screen.problem(2), "");
        EXPECT_TRUE(screen.roots().empty());
    }
    EXPECT_EQ(screen.equationText(), "x² + ?x + 1 = 0");
    EXPECT_FALSE(solve(screen, {"1", std::string(101, '1'), "1"}));
    EXPECT_EQ(screen.problem(1), "A coefficient has at most 100 characters.");
    EXPECT_TRUE(solve(screen, {"1", " ", "-1"}));
    EXPECT_EQ(screen.problem(1), "");
}

TEST_F(PolynomialSolverScreen, aRootIsCopiedInFull) {
    PlainPasteboard pasteboard;
    const PasteboardScope scope(pasteboard);
    PolynomialSolverViewController screen(2);
    ASSERT_TRUE(solve(screen, {"1", "-1", "-1"}));
    screen.copyRoot(0);
    EXPECT_EQ(pasteboard.text(), "1.618033988749895");
    ASSERT_TRUE(solve(screen, {"1", "1", "1"}));
    screen.copyRoot(1);
    EXPECT_EQ(pasteboard.text(), "-0.5-0.8660254037844386i");
    PolynomialSolverViewController linear(1);
    ASSERT_TRUE(solve(linear, {"1e-300", "1e300"}));
    EXPECT_FALSE(linear.roots()[0].value) << "no double is that large";
    linear.copyRoot(0);
    EXPECT_EQ(pasteboard.text(), "-1e+600");
}

TEST_F(PolynomialSolverScreen, coefficientsAreKeptBetweenRuns) {
    const TemporaryFolder folder;
    PlainDocumentsFolder documents(folder.path());
    const DocumentsFolderScope scope(documents);
    {
        PolynomialSolverViewController screen(3);
        screen.setCoefficientText(3, "1.50");
        screen.setCoefficientText(0, "no number");
    }
    KeptTexts::saveAll();
    KeptTexts::resetForTests();
    const PolynomialSolverViewController again(3);
    EXPECT_EQ(again.coefficientText(3), "1.50");
    EXPECT_EQ(again.coefficientText(0), "no number");
    EXPECT_EQ(PolynomialSolverViewController(2).coefficientText(0), "");
    KeptTexts::resetForTests();
}

TEST_F(PolynomialSolverScreen, thePictureShowsEveryRealRoot) {
    const std::vector<std::string> cubics[] = {{"1", "-6", "11", "-6"},
                                               {"1", "-1000003", "3000002", "-2000000"},
                                               {"1", "0", "0", "0"},
                                               {"1e-9", "0", "1", "-1e-9"},
                                               {"1", "-3", "3", "-1"}};
    for (const auto& texts : cubics) {
        PolynomialSolverViewController screen(3);
        ASSERT_TRUE(solve(screen, texts));
        screen.picture().setSize({288, 160});
        RecordingContext context;
        screen.picture().draw(context);
        std::size_t marks = 0;
        for (const auto& command : context.commands) {
            if (command.kind == RecordingContext::Kind::FillEllipse) {
                ++marks;
                EXPECT_GE(command.a, 0);
                EXPECT_LE(command.a, 288 - 9);
                EXPECT_NEAR(command.b, 80 - 4.5, 1e-9) << "on the axis";
            }
            EXPECT_TRUE(std::isfinite(command.a) && std::isfinite(command.b));
        }
        EXPECT_EQ(marks, screen.picture().labels().size());
        EXPECT_GE(marks, 1U);
        for (const LabelRecord& label : screen.picture().labels()) {
            EXPECT_GE(label.frame.x, 0);
            EXPECT_LE(label.frame.x + label.frame.width, 288 + 1e-9);
        }
    }
    PolynomialSolverViewController none(2);
    ASSERT_TRUE(solve(none, {"1", "0", "1"}));
    RecordingContext context;
    none.picture().draw(context);
    EXPECT_TRUE(context.commands.empty());
}

} // namespace
} // namespace velmora
