#include "engine/lines/ExpressionWithTokenArray.h"

#include "platform/files/KeyedArchive.h"
#include "platform/machine/Pasteboard.h"
#include "platform/machine/RandomSource.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace velmora {
namespace {

using Line = ExpressionWithTokenArray;

TEST(EditingLine, editsAtTheCursor) {
    struct Row {
        const char* start;
        std::function<void(Line&)> edit;
        const char* text; ///< with the cursor
        int cursor;
    };
    const auto insert = [](const char* text) {
        return [text](Line& line) { line.insertTokenArray(tokens(text)); };
    };
    // clang-format off
    const Row rows[] = {
        {"", insert("min( ,"), "min(_,", 1}, // ready for the first argument
        {"1 2", [&](Line& line) { line.moveCursorTo(1); insert("gcd( ,")(line); }, "1gcd(_,2", 2},
        {"1 2", [](Line& line) { line.moveCursor(-1); line.insertToken(Token("θ")); }, "1θ_2", 2},
        {"1 2", [](Line& line) { line.moveCursor(-5); }, "_12", 0},
        {"1 2", [](Line& line) { line.moveCursor(std::numeric_limits<int>::max()); }, "12", 2},
        {"1 2", [](Line& line) { line.moveCursorTo(-1); line.deleteAtCursor(); }, "_12", 0},
        {"1 sin( 2", [](Line& line) { line.moveCursorTo(2); line.deleteAtCursor(); }, "1_2", 1},
        {"1", [](Line& line) { line.deleteAtCursor(); line.deleteAtCursor(); }, "", 0},
        {"1 2", [](Line& line) { line.moveCursorTo(1); line.reset(); }, "", 0},
        {"1", [](Line& line) { line.insertTokenArray({}); line.insertToken(Token("2")); }, "12", 2},
    };
    // clang-format on
    for (const Row& row : rows) {
        Line line(tokens(row.start));
        EXPECT_EQ(line.cursorPosition(), line.count());
        row.edit(line);
        EXPECT_EQ(line.displayStringWithCursor(), row.text);
        EXPECT_EQ(line.cursorPosition(), row.cursor) << row.text;
        EXPECT_EQ(line.beforeCursorString() + line.afterCursorString(), line.toDisplayString());
    }
}

TEST(EditingLine, parsesAnewAfterEveryEdit) {
    Line line(tokens("1 + 2"));
    const auto first = line.expression();
    EXPECT_EQ(line.expression(), first); // kept until an edit
    const std::pair<std::function<void()>, const char*> edits[] = {
        {[&] { line.insertToken(Token("5")); }, "26"},
        {[&] { line.insertTokenArray(tokens("* 2")); }, "51"},
        {[&] { line.deleteAtCursor(); }, "253"}, // the cursor stood behind "*"
        {[&] { line.setTokenArray(tokens("7")); }, "7"},
        {[&] { line.reset(); }, "Undefined"}};
    const char* before = "3";
    for (const auto& [edit, result] : edits) {
        EXPECT_EQ(line.resultText(), before);
        edit();
        before = result;
    }
    EXPECT_EQ(line.resultText(), before);
    EXPECT_EQ(first->value(), 3.0); // whoever holds the old tree keeps it
}

TEST(EditingLine, countsOpenParentheses) {
    const std::pair<const char*, bool> rows[] =
        {{"", true},        {"sin( x )", true}, {"sin( ( x )", false},     {") ) (", true},
         {"( ( ) )", true}, {"2 )", true},      {"conditional( ,", false}, {"k(", false},
         {"G=6.7(2)", true} /* its bracket is not shown */};
    for (const auto& [line, enough] : rows) {
        EXPECT_EQ(Line(tokens(line)).enoughRightParens(), enough) << line;
    }
    TokenArray mixed = tokens("( 1");
    mixed.emplace_back(std::string(")")); // only tokens count
    EXPECT_FALSE(Line(mixed).enoughRightParens());
}

TEST(EditingLine, copiesParseAnewAndStandAtTheEnd) {
    Line line(tokens("1 + 2"));
    line.moveCursorTo(0);
    line.keepResult();
    const auto copy = line.copy();
    EXPECT_EQ(copy->cursorPosition(), 3);
    EXPECT_NE(copy->expression(), line.expression());
    EXPECT_TRUE(copy->keptResult().has_value());
    copy->deleteAtCursor();
    EXPECT_EQ(line.toDisplayString(), "1+2");
    EXPECT_FALSE(copy->keptResult().has_value());
}

TEST(EditingLine, copiesAndCutsToThePasteboard) {
    PlainPasteboard pasteboard;
    const PasteboardScope scope(pasteboard);
    Line line(tokens("sin( π G=6.6742(8) )"));
    line.copyToPasteboard();
    ASSERT_EQ(pasteboard.items().size(), 1U);
    EXPECT_EQ(pasteboard.text(), "sin(πG)");
    const auto bytes = pasteboard.data(kTokenArrayPasteboardType);
    ASSERT_TRUE(bytes.has_value());
    const TokenArray back = unarchivedTokenArray(*readPropertyList(*bytes));
    EXPECT_EQ(*back.at(2).token(), Token("G=6.6742(8)")); // with its value, which the text lost
    pasteboard.setText("other");
    line.paste();
    EXPECT_EQ(line.toDisplayString(), "sin(πG)");
    line.cutToPasteboard();
    EXPECT_EQ(line.count(), 0);
    EXPECT_EQ(pasteboard.text(), "sin(πG)");
    EXPECT_TRUE(Line::canPerformCopy() && !Line::canPerformCut() && !Line::canPerformPaste());
}

TEST(EditingLine, aKeptResultOutlivesItsDefinitions) {
    Definitions user;
    std::uint32_t drawn = 4;
    const RandomSourceScope random([&drawn] { return drawn++; });
    user.load(user.constants, 0, "1 / 3");
    Line line(tokens("rand( 9 ) + @k1"));
    line.keepResult();
    user.load(user.constants, 0, "5");
    EXPECT_EQ(line.resultText(), "4.33333");
    EXPECT_EQ(line.resultText(), "4.33333");
    user.environment.style.displayDigits = 2;
    EXPECT_EQ(line.resultText(), "4.33"); // the value is kept, not its text
    EXPECT_EQ(line.resultValue(), 4 + 1.0 / 3);
    line.insertToken(Token("0"));
    EXPECT_EQ(line.resultText(), "5"); // with the constant of today, times 0

    Line wrong(tokens("@k1 +"));
    wrong.keepResult();
    user.load(user.constants, 0, ". .");
    EXPECT_EQ(wrong.resultText(), "Unable to parse"); // the message of its time
    Line fraction(tokens("toFraction( @k2 )"));
    user.load(user.constants, 1, "0 . 5");
    fraction.keepResult();
    user.load(user.constants, 1, "7");
    EXPECT_EQ(fraction.resultText(), "(1/2)");
}

TEST(EditingLine, survivesTheArchive) {
    for (const char* text : {"", "1 + 2", "2 )", "sqrt( - 4 )", "1 / 0"}) {
        Line line(tokens(text));
        line.moveCursorTo(0);
        for (const bool kept : {false, true}) {
            if (kept) {
                line.keepResult();
            }
            KeyedArchiver coder;
            line.encodeWithCoder(coder);
            const Line read = Line::decode(KeyedUnarchiver(coder.propertyList()));
            EXPECT_EQ(read.cursorPosition(), line.count());
            EXPECT_EQ(read.toDisplayString(), line.toDisplayString());
            EXPECT_EQ(read.resultText(), line.resultText());
            EXPECT_EQ(read.keptResult().has_value(), kept);
        }
    }
    EXPECT_EQ(Line::decode(KeyedUnarchiver(PropertyList())).count(), 0);
}

} // namespace
} // namespace velmora
