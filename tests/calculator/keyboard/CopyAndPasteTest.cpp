#include "tests/calculator/CalculatorFixture.h"

#include "engine/tree/Number.h"

#include <cmath>

namespace velmora::test {
namespace {

class CopyAndPasteTest : public KeyboardTest {
public:
    void paste(const std::string& text) {
        screen.notice.clear();
        pasteboard.setText(text);
        keyboard->paste();
    }
    void copyResult(int row) {
        const DisplayHistoryTableViewController& table = *keyboard->displayTableViewController();
        table.copyFromRow(row + table.nTipCells(), false);
    }
    double valueOfLine() { return keyboard->displayModel()->resultValue().real(); }
};

TEST_F(CopyAndPasteTest, textOfOtherProgramsKeepsItsValue) {
    const struct {
        const char* text;
        const char* line;
        double value;
    } cases[] = {{"1,234.5", "1234.5", 1234.5},
                 {"12,345,678", "12345678", 12345678},
                 {" 2×3\n", "2*3", 6},
                 {"−.1e12", "-.1E12", -1e11},
                 {"1e-05", "1E-05", 1e-5},
                 {"2.5E+3", "2.5E3", 2500},
                 {"+7", "7", 7},
                 {"6 ÷ 4 · 2", "6/4*2", 3},
                 {"√9+16", "sqrt(9)+16", 19},
                 {"√(9 + 16)", "sqrt(9+16)", 5},
                 {"3²4", "3^2*4", 36},
                 {"2³", "2^3", 8},
                 {"5!+1", "fact(5)+1", 121},
                 {"(1+2)!", "fact((1+2))", 6},
                 {"gcd(12,18)", "gcd(12,18)", 6},
                 {"max(1,234)", "max(1,234)", 234}, // of a function a comma parts the inputs
                 {"(1,234)+1", "(1234)+1", 1235},
                 {"SIN(0)+cos (0)", "sin(0)+cos(0)", 1},
                 {"2pi", "2π", 2 * M_PI},
                 {"2e", "2e", 2 * M_E}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        open();
        paste(c.text);
        EXPECT_EQ(entry(), c.line);
        EXPECT_EQ(screen.notice, "");
        EXPECT_NEAR(valueOfLine(), c.value, std::abs(c.value) * 1e-15);
    }
}

TEST_F(CopyAndPasteTest, whatCannotBeReadChangesNothingAndIsNamed) {
    const std::pair<std::string, const char*> cases[] = {
        {"3,5", "“3,5” is no number here"},
        {"1,2345", "“1,2345”"},
        {"0,123", "“0,123”"},
        {"1,234,5", "“1,234,5”"},
        {"1.2.3", "“1.2.3”"},
        {"(1,2)", "“1,2”"},
        {"1 2", "A blank"},
        {"2E 3", "blank"},
        {"1\n2\n3", "Only one line"},
        {"1\t2", "Only one line"},
        {"50%", "“%”"},
        {"2+3=5", "“=”"},
        {"!", "“!”"},
        {"√-9", "“√”"},
        {"2x+1", "“x” is no variable here. This line has none."},
        {"nonsense", "“nonsense”"},
        {"", "nothing to paste"},
        {"\xff\xfe", "begins with"},
        {std::string(100'000, '7'), "100000 characters"}};
    for (const auto& [text, notice] : cases) {
        SCOPED_TRACE(text.substr(0, 20));
        open();
        press("8 + 9 ←");
        paste(text);
        EXPECT_EQ(entry(), "8+_9");
        EXPECT_NE(screen.notice.find(notice), std::string::npos) << screen.notice;
    }
    open();
    type("5 %");
    paste("3");
    EXPECT_EQ(entry(), "5%"); // what cannot be read stays alone
    open(3, &Model::m().polarR());
    paste("2theta");
    EXPECT_EQ(entry(), "r1(θ)=2θ");
    paste("t");
    EXPECT_EQ(entry(), "r1(θ)=2θ");
}

TEST_F(CopyAndPasteTest, pastedTokensGoInAtTheCursorAsOneStep) {
    open();
    press("( 1 / 3 )");
    keyboard->keyboardView().currentEntryLabel().copy();
    press("+ 4 ←");
    keyboard->paste();
    EXPECT_EQ(entry(), "(1/3)+(1/3)_4");
    press("2");
    EXPECT_EQ(entry(), "(1/3)+(1/3)2_4");
    keyboard->undo();
    keyboard->undo();
    EXPECT_EQ(entry(), "(1/3)+_4");
    pasteboard.setItems({{{std::string(kTokenArrayPasteboardType), PropertyData{1, 2, 3}}}});
    keyboard->paste();
    EXPECT_EQ(entry(), "(1/3)+_4");
}

TEST_F(CopyAndPasteTest, resultsAreCopiedInFullPrecision) {
    open();
    const std::pair<const char*, const char*> cases[] = {{"1 / 3", "0.3333333333333333"},
                                                         {"2 ^ 1 0 0", "1.2676506002282294E30"},
                                                         {"1 / 3 E 9", "3.333333333333333E-10"},
                                                         {"( - 2 ) ^ . 5 + 1", "1+1.4142135623730951i"},
                                                         {"- ( - 4 ) ^ . 5", "-2i"},
                                                         {"7", "7"},
                                                         {"2 +", "Unable to parse"},
                                                         {"0 / 0", "Undefined"}};
    int row = 0;
    for (const auto& [keys, text] : cases) {
        SCOPED_TRACE(keys);
        type(keys);
        type("Enter");
        copyResult(row++);
        EXPECT_EQ(pasteboard.text(), text);
        const auto result = Model::m().history().entryAtIndex(row - 1)->resultValue();
        if (!std::isnan(result.real())) {
            keyboard->paste();
            EXPECT_EQ(keyboard->displayModel()->resultValue(), result); // to the last bit
            type("Escape");
        }
    }
}

} // namespace
} // namespace velmora::test
