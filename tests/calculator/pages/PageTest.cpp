// How pages, figures, outlines and typed formulas are read.

#include "calculator/pages/Page.h"
#include "calculator/pages/Figure.h"
#include "calculator/pages/FormulaArtwork.h"
#include "calculator/pages/FormulaText.h"
#include "platform/files/Resources.h"
#include "tests/calculator/CalculatorFixture.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::Texts;
using testing::ElementsAre;
using testing::SizeIs;

class Pages : public test::ModelTest {
protected:
    ResourcesScope resources;
};

TEST_F(Pages, consistOfTheirLines) {
    const Page page = pageWithText("title Circle\n"
                                   "search disc,\n"
                                   "   round\n"
                                   "\n"
                                   "text A text\n"
                                   "\tin two lines\n"
                                   "formula A=\\pi r^2\n"
                                   "insert pi*r^2\n"
                                   "letter r radius of it\n"
                                   "letter h\n"
                                   "check int(x,0,r,2*pi*x)\n"
                                   "keys 1 + 2 =\n"
                                   "shows 3");
    EXPECT_EQ(page.title, "Circle");
    EXPECT_EQ(page.searchWords, "disc, round");
    ASSERT_THAT(page.items, SizeIs(3));
    EXPECT_EQ(page.items[0].text, "A text in two lines");
    const PageItem& formula = page.items[1];
    EXPECT_EQ(formula.kind, PageItem::Kind::Formula);
    EXPECT_EQ(formula.text + "; " + formula.insertion, "A=\\pi r^2; pi*r^2");
    ASSERT_THAT(formula.letters, SizeIs(2));
    EXPECT_EQ(formula.letters[0].name + ": " + formula.letters[0].meaning, "r: radius of it");
    EXPECT_EQ(formula.letters[1].meaning, "");
    EXPECT_THAT(formula.checks, ElementsAre("int(x,0,r,2*pi*x)"));
    EXPECT_EQ(page.items[2].shown, "3");
    EXPECT_THAT(logged, testing::IsEmpty());
}

TEST_F(Pages, leaveOutWhatCannotBeRead) {
    const Page page = pageWithText("insert x\nnonsense y\n \ntext\nheading Here\nwhat is this");
    EXPECT_THAT(page.items, SizeIs(2));
    EXPECT_THAT(logged, SizeIs(3));
    EXPECT_THAT(loadPage("None").items, testing::IsEmpty());
    EXPECT_TRUE(logHolds("no page None"));
}

TEST_F(Pages, formulasAreWrittenAsTheyAreTyped) {
    struct Case {
        const char* text;
        const char* tokens;  // "?" where it cannot be read
        const char* letters; // that are asked for
    };
    const Case cases[] = {
        {"pi*r^2", "π * r ^ 2", "r"},
        {"2*v_0*sin(θ)/g_12", "2 * v_0 * sin( θ ) / g_12", "v_0 g_12"},
        {"e^(i x)+y-t", "e ^ ( i x ) + y - t", ""},
        {"a*a+12.5", "a * a + 1 2 . 5", "a"},
        {"normVarBetween(a,b)", "normVarBetween( a , b )", "a b"},
        {"ρ*λ_1", "ρ * λ_1", "ρ λ_1"},
        {"m(v)", "m ( v )", "m v"},
        {"{none}", "?", ""},
        {"a{b", "?", "?"},
        {"a#b", "?", "?"},
    };
    for (const Case& c : cases) {
        const FormulaText formula(c.text);
        const auto tokens = formula.tokens([](const std::string&) { return std::nullopt; });
        std::string written = tokens ? "" : "?";
        for (const TokenElement& token : tokens.value_or(TokenArray())) {
            written += (written.empty() ? "" : " ") + token.token()->internalRepresentation();
        }
        EXPECT_EQ(written, c.tokens) << c.text;
        const auto letters = formula.letters();
        std::string names = letters ? "" : "?";
        for (const std::string& letter : letters.value_or(Texts())) {
            names += (names.empty() ? "" : " ") + letter;
        }
        EXPECT_EQ(names, c.letters) << c.text;
    }
}

TEST_F(Pages, numbersAreTypedDigitByDigit) {
    struct Case {
        const char* text;
        const char* shown; // "?" for no number
    };
    for (const Case& c : {Case{"12.5", "12.5"}, Case{"-3", "(-3)"}, Case{"1e-9", "1E-9"}, Case{".5", ".5"},
                          Case{"", "?"}, Case{"-", "?"}, Case{"1,5", "?"}, Case{"2a", "?"},
                          Case{"1e999", "?"}, Case{"nan", "?"}, Case{"inf", "?"}, Case{" 1", "?"}}) {
        const auto tokens = tokensOfNumber(c.text);
        EXPECT_EQ(tokens ? toDisplayString(*tokens) : "?", c.shown) << c.text;
    }
}

TEST_F(Pages, outlinesFollowTheirCommands) {
    using Kind = VectorPath::Step::Kind;
    const VectorPath path = vectorPathWithOutline("M10 20H30V-40Q1 2 3 4T7 8L5 6Z");
    ASSERT_THAT(path.steps, SizeIs(7));
    EXPECT_EQ(path.steps[1].points[0], (Point{30, 20}));
    EXPECT_EQ(path.steps[2].points[0], (Point{30, -40}));
    EXPECT_EQ(path.steps[4].kind, Kind::Quadratic);
    EXPECT_EQ(path.steps[4].points[0], (Point{5, 6})) << "the control point mirrored at the end before it";
    EXPECT_EQ(path.steps[4].points[1], (Point{7, 8}));
    EXPECT_EQ(path.steps[6].kind, Kind::Close);
    EXPECT_THAT(vectorPathWithOutline("M1 2 3 4Zx").steps, SizeIs(3)) << "numbers go on with the command";
    for (const char* damaged : {"", "M", "M1", "M1 2Q3 4", "M1 2L", "q1 2", "M1 2 A", "Z"}) {
        EXPECT_LE(vectorPathWithOutline(damaged).steps.size(), 2U) << damaged;
    }
}

TEST_F(Pages, artworkPlacesGlyphsAndRules) {
    registerResource("P.formulas",
                     "formula 0011 1500 700 200\nplain a/b\nspoken a over b\n"
                     "draw A 0 10 s 707 B 5 6 c 1 2 3 4 z 1000 2000 C 7 8 D 9 9 r 1 2 3 4\nrubbish\n");
    registerResource("Glyphs.outlines", "A M0 0L1 1Z\nB M5 5H6\n");
    const auto formulas = loadFormulaArtwork("P");
    ASSERT_THAT(formulas, SizeIs(1));
    const FormulaArtwork& formula = formulas.front();
    EXPECT_EQ(formula.width + formula.ascent + formula.descent, 2400);
    EXPECT_EQ(formula.plain + "; " + formula.spoken, "a/b; a over b");
    ASSERT_THAT(formula.glyphs, SizeIs(4));
    EXPECT_EQ(formula.glyphs[1].scaleX, 0.707);
    EXPECT_EQ(formula.glyphs[2].scaleY, 2);
    EXPECT_EQ(formula.glyphs[2].visiblePart, (Rect{1, 2, 3, 4}));
    EXPECT_EQ(formula.glyphs[3].scaleY, 0.707) << "the stretched glyph was the only one";
    EXPECT_FALSE(formula.glyphs[3].visiblePart);
    EXPECT_THAT(formula.rules, ElementsAre(Rect{1, 2, 3, 4}));
    GlyphOutlines outlines;
    ASSERT_TRUE(outlines.find("B"));
    EXPECT_THAT(outlines.find("B")->steps, SizeIs(2));
    EXPECT_FALSE(outlines.find("C"));
    // The published values of the hash.
    EXPECT_EQ(hashOfTex(""), "cbf29ce484222325");
    EXPECT_EQ(hashOfTex("a"), "af63dc4c8601ec8c");
    EXPECT_EQ(hashOfTex("foobar"), "85944171f73967e8");
}

TEST_F(Pages, figuresAreDrawnInTheirUnits) {
    const Figure figure =
        figureWithText("spoken A line\nview 0 0 4 2 200 100\nline 1 1 3 1 4 2\ncolor accent\n"
                       "circle 2 1 1\ncurve 0 4 x/2\ndot 0 0\ntext 4 2 3 cm\nkey 0 0 1 1 7\n"
                       "line 1 2\nbeam 3\ncolor pink\n");
    EXPECT_EQ(figure.spoken, "A line");
    EXPECT_EQ(figure.size, (Size{200, 100}));
    ASSERT_THAT(figure.shapes, SizeIs(5));
    const auto& line = figure.shapes[0].path.steps;
    ASSERT_THAT(line, SizeIs(3));
    EXPECT_EQ(line[0].points[0], (Point{50, 50}));
    EXPECT_EQ(line[2].points[0], (Point{200, 0}));
    EXPECT_EQ(figure.shapes[0].color, FigureColor::Ink);
    const auto& circle = figure.shapes[1].path.steps;
    ASSERT_THAT(circle, SizeIs(5)) << "four quarters";
    EXPECT_NEAR(circle[2].points[2].x, 50, 1e-9);
    EXPECT_EQ(figure.shapes[1].color, FigureColor::Accent);
    EXPECT_NEAR(figure.shapes[2].path.steps.back().points[0].y, 0, 1e-9) << "the curve ends at (4, 2)";
    ASSERT_THAT(figure.labels, SizeIs(2));
    EXPECT_EQ(figure.labels[0].text, "3 cm");
    EXPECT_EQ(figure.labels[0].point, (Point{200, 0}));
    EXPECT_THAT(logged, SizeIs(3));
}

} // namespace
} // namespace velmora
