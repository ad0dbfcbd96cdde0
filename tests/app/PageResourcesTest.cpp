// The pages that ship with the program: all of them can be read, drawn and found.

#include "calculator/pages/Figure.h"
#include "calculator/pages/FormulaArtwork.h"
#include "calculator/pages/Page.h"
#include "platform/files/Resources.h"
#include "platform/text/Log.h"
#include "resources/CompiledResources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace velmora {
namespace {

constexpr double kNarrowestPage = 288; // points, between the margins of a phone
constexpr double kButtonWidth = 52;
constexpr double kSmallestTypeSize = 11.5;

class PageResources : public testing::Test {
protected:
    PageResources() { registerCompiledResources(); }

    std::vector<std::string> logged;

private:
    LogScope m_log{[this](std::string_view line) { logged.emplace_back(line); }};
};

TEST_F(PageResources, areReadWhole) {
    for (const std::string& name : pageNames()) {
        const Page page = loadPage(name);
        EXPECT_FALSE(page.title.empty()) << name;
        EXPECT_FALSE(page.items.empty()) << name;
        for (const PageItem& item : page.items) {
            EXPECT_FALSE(item.text.empty()) << name;
        }
    }
    EXPECT_THAT(logged, testing::IsEmpty());
}

/// A page that was edited without scripts/make-formulas.sh fails here.
TEST_F(PageResources, formulasAreDrawnFromTheirPresentTex) {
    GlyphOutlines outlines;
    for (const std::string& name : pageNames()) {
        const std::vector<FormulaArtwork> drawn = loadFormulaArtwork(name);
        std::size_t count = 0;
        for (const PageItem& item : loadPage(name).items) {
            if (item.kind != PageItem::Kind::Formula) {
                continue;
            }
            ASSERT_LT(count, drawn.size()) << name << ": " << item.text;
            const FormulaArtwork& formula = drawn[count++];
            ASSERT_EQ(formula.texHash, hashOfTex(item.text)) << name << ": " << item.text;
            EXPECT_FALSE(formula.plain.empty() || formula.spoken.empty()) << item.text;
            EXPECT_EQ(formula.plain.find('\\'), std::string::npos) << formula.plain;
            EXPECT_FALSE(formula.glyphs.empty()) << item.text;
            for (const FormulaArtwork::Glyph& glyph : formula.glyphs) {
                const VectorPath* outline = outlines.find(glyph.name);
                ASSERT_TRUE(outline) << glyph.name;
                EXPECT_GT(outline->steps.size(), 2U) << glyph.name;
                EXPECT_GE(glyph.origin.x, -1000) << item.text;
                EXPECT_LE(glyph.origin.x, formula.width) << item.text;
            }
            const double room = kNarrowestPage - (item.insertion.empty() ? 0 : kButtonWidth);
            EXPECT_GE(room / formula.width * 1000, kSmallestTypeSize) << "too wide: " << item.text;
        }
        EXPECT_EQ(count, drawn.size()) << name;
    }
    EXPECT_THAT(logged, testing::IsEmpty());
}

TEST_F(PageResources, figuresExplainTheirPages) {
    std::set<std::string> used;
    for (const std::string& name : pageNames()) {
        for (const PageItem& item : loadPage(name).items) {
            if (item.kind != PageItem::Kind::Figure || !used.insert(item.text).second) {
                continue;
            }
            const Figure figure = loadFigure(item.text);
            EXPECT_FALSE(figure.spoken.empty()) << item.text;
            EXPECT_GT(figure.size.width, 100) << item.text;
            EXPECT_LE(figure.size.width, kNarrowestPage) << item.text;
            EXPECT_FALSE(figure.shapes.empty()) << item.text;
            for (const Figure::Shape& shape : figure.shapes) {
                EXPECT_GT(shape.path.steps.size(), 1U) << item.text;
                for (const VectorPath::Step& step : shape.path.steps) {
                    const Point& point = step.points.front();
                    EXPECT_TRUE(point.x > -20 && point.x < figure.size.width + 20 && point.y > -20 &&
                                point.y < figure.size.height + 20)
                        << item.text << " leaves its frame at " << point.x << ", " << point.y;
                }
            }
            for (const Figure::Label& label : figure.labels) {
                EXPECT_TRUE(label.point.x >= 0 && label.point.x <= figure.size.width && label.point.y >= 4 &&
                            label.point.y <= figure.size.height - 4)
                    << item.text << ": " << label.text << " at " << label.point.x << ", " << label.point.y;
            }
        }
    }
    EXPECT_EQ(used.size(), resourceNames(".figure").size()) << "figures that no page shows";
    EXPECT_THAT(logged, testing::IsEmpty());
}

} // namespace
} // namespace velmora
