#include "engine/tree/UnreadableToken.h"

#include "platform/text/Log.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

constexpr std::size_t kNone = 999;

std::size_t failure(const TokenArray& line) { return firstUnreadableToken(line).value_or(kNone); }
std::size_t failure(const std::string& line) { return failure(tokens(line)); }

TEST(UnreadableToken, isTheFirstThatNoLineHasThere) {
    Definitions user;
    user.load(user.constants, 0, "2 +"); // cannot be read itself
    const std::pair<const char*, std::size_t> rows[] = {
        {"", kNone},
        {"2 x ( 3 ) sin( x ) ^ - 2", kNone},
        {"conditional( 1 , x , gcd( 4 , 6 ) )", kNone},
        {"- - 2 * - x N x", kNone},
        {"@k2 x", kNone}, // an empty constant
        // what only lacks its end
        {"2 +", 2},
        {"( 2 + 3", 4},
        {"gcd( 1 , 2", 4},
        {"sin(", 1},
        {"-", 1},
        // operators without a left operand
        {"+ 3", 0},
        {"2 * / 3", 2},
        {"( ^ 2 )", 1},
        {"conditional( - 1 , 2 , 3 )", 1}, // a subtraction there
        // parentheses and commas
        {") + 1", 0},
        {"( 2 ) ) + 1 . 2 . 3", 3},
        {"( ) x", 1},
        {"2 + ( 1 , 2 )", 4},
        {"sin( 1 , 2 )", 2},
        {"gcd( 1 )", 2},
        {"gcd( , 2 )", 1},
        {"gcd( 1 , 2 , 3 )", 4},
        {"conditional( 1 , 2 )", 4},
        // numbers, and what is none
        {"x + 1 . 2 . 3", 5},
        {"1 E 2 E 3", 3},
        {"1 . E . 2", 3},
        {"2 + foo + bar )", 2},
        {"2 + ) foo", 2},
        {"x + 2 @k1 + 1", 3},
        {"x + @k0", 2},
    };
    for (const auto& [line, position] : rows) {
        EXPECT_EQ(failure(line), position) << line;
    }
}

class RandomTokens {
public:
    TokenArray next(std::size_t count) {
        static const TokenArray known = tokens("x 2 . E - - + ^ ( ( ) ) ) , , sin( gcd( conditional( foo");
        TokenArray line;
        for (std::size_t i = 0; i < count; ++i) {
            line.push_back(known[m_random() % known.size()]);
        }
        return line;
    }

private:
    std::mt19937 m_random{20260101};
};

bool isReadable(const TokenArray& line) {
    const auto tree = Expression::newExpressionWithTokens(line);
    return tree->errorText() == nullptr && !tree->isMark(); // a lone mark has no text of its own
}

TokenArray joined(TokenArray line, const TokenArray& end) {
    line.insert(line.end(), end.begin(), end.end());
    return line;
}

/// The line with what it lacks at its end, as long as each token takes it further.
TokenArray completed(TokenArray line) {
    for (bool goesOn = true; goesOn && failure(line) == line.size();) {
        goesOn = false;
        for (const char* next : {")", ",", "x"}) {
            const TokenArray longer = joined(line, tokens(next));
            if (failure(longer) >= longer.size()) {
                line = longer;
                goesOn = true;
                break;
            }
        }
    }
    return line;
}

TEST(UnreadableToken, agreesWithTheParserOnEveryLine) {
    const LogScope quiet([](std::string_view) {});
    RandomTokens random;
    int readable = 0;
    for (int i = 0; i < 3000; ++i) {
        const TokenArray line = random.next(1 + static_cast<std::size_t>(i) % 9);
        SCOPED_TRACE(toDisplayString(line));
        const std::size_t position = failure(line);
        ASSERT_EQ(position == kNone, isReadable(line));
        readable += position == kNone ? 1 : 0;
        if (position < line.size()) {
            const auto end = line.begin() + static_cast<std::ptrdiff_t>(position);
            ASSERT_TRUE(isReadable(completed({line.begin(), end})));
            for (const std::size_t more : {1, 2, 3, 5}) { // but no end mends it with that token
                ASSERT_FALSE(isReadable(joined({line.begin(), end + 1}, random.next(more))));
            }
        }
    }
    EXPECT_GT(readable, 80); // or the lines would prove little
}

} // namespace
} // namespace velmora
