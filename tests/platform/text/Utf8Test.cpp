#include "platform/text/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

struct SplitCase {
    std::string text;
    std::vector<std::string> codePoints;
    bool valid;
};

// clang-format off
const SplitCase kSplitCases[] = {
    {"", {}, true}, {"y1(x)", {"y", "1", "(", "x", ")"}, true}, {"2θ+π", {"2", "θ", "+", "π"}, true},
    {"√–😀", {"√", "–", "😀"}, true}, {std::string("a\0b", 3), {"a", std::string("\0", 1), "b"}, true},
    {"\u007F\u0080\u07FF\u0800\uFFFF", {"\u007F", "\u0080", "\u07FF", "\u0800", "\uFFFF"}, true},
    {"\U00010000\U0010FFFF", {"\U00010000", "\U0010FFFF"}, true},
    // cut short at the end or in the middle, before a good one too; continuations without a start
    {"\xCE", {"\xCE"}, false}, {"\xCEx", {"\xCE", "x"}, false}, {"\xE2\x88θ", {"\xE2", "\x88", "θ"}, false},
    {"\xB8\xB8", {"\xB8", "\xB8"}, false}, {"\xFF\xFE", {"\xFF", "\xFE"}, false},
    // longer than needed
    {"\xC0\x80", {"\xC0", "\x80"}, false}, {"\xE0\x80\x80", {"\xE0", "\x80", "\x80"}, false},
    {"\xF0\x8F\xBF\xBF", {"\xF0", "\x8F", "\xBF", "\xBF"}, false},
    // a surrogate; beyond U+10FFFF
    {"\xED\xA0\x80", {"\xED", "\xA0", "\x80"}, false},
    {"\xF4\x90\x80\x80", {"\xF4", "\x90", "\x80", "\x80"}, false},
};
// clang-format on

TEST(Utf8, countsAndCutsByCodePoint) {
    for (const SplitCase& c : kSplitCases) {
        SCOPED_TRACE(testing::PrintToString(c.text));
        EXPECT_EQ(splitCodePoints(c.text), c.codePoints);
        EXPECT_EQ(codePointCount(c.text), c.codePoints.size());
        EXPECT_EQ(isValidUtf8(c.text), c.valid);
        EXPECT_TRUE(isValidUtf8(validUtf8(c.text)) && (validUtf8(c.text) == c.text) == c.valid);
        EXPECT_EQ(firstCodePoint(c.text), c.codePoints.empty() ? "" : c.codePoints.front());
        EXPECT_EQ(lastCodePoint(c.text), c.codePoints.empty() ? "" : c.codePoints.back());
        for (std::size_t count = 0; count <= c.codePoints.size() + 1; ++count) {
            EXPECT_EQ(std::string(takeFirst(c.text, count)) + std::string(dropFirst(c.text, count)), c.text);
            EXPECT_EQ(codePointCount(takeFirst(c.text, count)), std::min(count, c.codePoints.size()));
            EXPECT_EQ(dropLast(c.text, count),
                      takeFirst(c.text, c.codePoints.size() - std::min(count, c.codePoints.size())));
        }
    }
    EXPECT_EQ(validUtf8("2θ\xCE+\xFFπ"), "2θ\uFFFD+\uFFFDπ");
}

} // namespace
} // namespace velmora
