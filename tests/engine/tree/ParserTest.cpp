#include "engine/tree/Expression.h"

#include "engine/tree/Number.h"
#include "engine/tree/Variable.h"
#include "tests/engine/TokenLine.h"
#include "tests/platform/machine/DecimalCommaLocale.h"
#include "tests/platform/text/LogRecorder.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Parser, buildsTheTreeAUserMeans) {
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        // precedence and grouping
        {"1 + 2 * 3 - 4 / 5", "((1)+((2)*(3)))-((4)/(5))"}, {"8 - 2 - 1", "((8)-(2))-(1)"},
        {"8 / 2 * 4 / x", "(((8)/(2))*(4))/(x)"}, {"2 ^ 3 ^ 2", "(2)^((3)^(2))"},
        {"2 * 3 ^ 2 x", "((2)*((3)^(2)))*(x)"}, {"( 1 + 2 ) ^ 2", "((1)+(2))^(2)"}, {"( ( ( x ) ) )", "x"},
        // negations
        {"- 2 ^ 2", "N[(2)^(2)]"}, {"- 2 * 3", "(N[2])*(3)"}, {"- - x", "N[N[x]]"}, {"1 - - 1", "(1)-(N[1])"},
        {"1 - - 2 ^ 2", "(1)-(N[(2)^(2)])"}, {"3 * - 2 ^ 2", "(3)*(N[(2)^(2)])"},
        {"2 ^ - 3 ^ 2", "(2)^(N[(3)^(2)])"}, {"2 ^ - - 3", "(2)^(N[N[3]])"}, {"( - 2 ) ^ 2", "(N[2])^(2)"},
        {"( x ) - 1", "(x)-(1)"}, {"sin( - x ) - 1", "(sin[N[x]])-(1)"},
        {"gcd( - 1 , - 2 )", "(N[1])gcd(N[2])"},
        {"conditional( x - 1 , - 2 , 3 )", "conditional((x)-(1), N[2], 3)"},
        {"x N 2", "(x)*(N[2])"}, // a typed negation is an operand of a product
        // implied products
        {"2 x", "(2)*(x)"}, {"x y t θ", "(((x)*(y))*(x))*(x)"},
        {"2 sin( x ) cos( x )", "((2)*(sin[x]))*(cos[x])"}, {"( x ) ( x )", "(x)*(x)"},
        {"( x ) 2", "(x)*(2)"}, {"2 gcd( x , 3 ) 4", "((2)*((x)gcd(3)))*(4)"},
        {"x conditional( 1 , 2 , 3 )", "(x)*(conditional(1, 2, 3))"}, {"2 ( x + 1 )", "(2)*((x)+(1))"},
        {"1 / 2 x", "((1)/(2))*(x)"}, // no tighter than a typed one
        {"2 ^ 3 x", "((2)^(3))*(x)"}, {"2 ''", "(2)*()"},
        // several arguments
        {"mod( x + 1 , sin( x ) )", "((x)+(1))mod(sin[x])"},
        {"normVarBetween( 1 , nroot( 2 , 3 ) )", "(1)unknown((2)nroot(3))"},
        {"gcd( gcd( 1 , 2 ) , gcd( 3 , 4 ) )", "((1)gcd(2))gcd((3)gcd(4))"},
        {"conditional( 1 , gcd( 2 , 3 ) , ( 4 ) )", "conditional(1, (2)gcd(3), 4)"},
        // fractional powers, by shape alone
        {"x ^ ( 1 / 3 )", "((3)nroot(x))^(1)"}, {"x ^ ( 2 / 4 )", "((4)nroot(x))^(2)"},
        {"x ^ ( y / 2 / 3 )", "((3)nroot(x))^((y)/(2))"}, {"x ^ ( - ( 1 / 3 ) )", "(x)^(N[(1)/(3)])"},
        {"x ^ 1 / 3", "((x)^(1))/(3)"}, {"x ^ 2 ^ ( 1 / 3 )", "(x)^(((3)nroot(2))^(1))"},
        {"y2( 3 x ) ^ 2", "(y2([(3)*(x)])^(2)"},
    };
    // clang-format on
    for (const auto& [line, tree] : rows) {
        EXPECT_EQ(parsed(line)->description(), tree) << line;
    }
}

TEST(Parser, joinsDigitsIntoNumbers) {
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"1 2 3", "123"}, {"1 . 5 E - 3", "0.0015"}, {". 5", "0.5"}, {"5 .", "5"}, {".", "0"},
        {"1 E 2", "100"}, {"1 E", "1"}, {"1 E - - 2", "(1)-(2)"}, // one sign belongs to the exponent
        {"1 E + 2", "(1)+(2)"}, // a plus never does
        {"1 E x", "(1)*(x)"}, {"1 E 2 . 5", "100"}, // the exponent is whole
        {"E", "0"}, {"E 5", "(0)*(5)"}, {"1 12", "112"},
        {"12 3", "(12)*(3)"}, // only a single digit starts a number
        {"1 E 9 9 9", "inf"}, {"1 E - 9 9 9", "0"}, {"e", "2.71828"}, {"π", "3.14159"},
        {"2 Eh=4.5", "(2)*(0)"}, // a label never joins the number before it
        {"G=6.6742(8)", "6.67428"}, {"c=3E8", "3e+08"}, {"a=b=5", "5"},
        {"one=i", "0"}, // the description knows real parts only
    };
    // clang-format on
    for (const auto& [line, tree] : rows) {
        EXPECT_EQ(parsed(line)->description(), tree) << line;
    }
    EXPECT_EQ(parsed("one=i")->value(), ComplexValue(0, 1));
    EXPECT_EQ(parsed("u=1.0(7)")->value(), 1.07);
    EXPECT_EQ(parsed("2 . 2 2 5 0 7 3 8 5 8 5 0 7 2 0 1 4 E - 3 0 8")->value(), 0x1p-1022);
}

TEST(Parser, namesWhatIsWrong) {
    Definitions user;
    user.load(user.constants, 3, ". .");
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"1 . 2 . 3", "Too many decimal points"}, {"1 + . .", "Too many decimal points"},
        {"1 E . 5 .", "Too many decimal points"}, {"1 E 2 E 3", "Too many Es"},
        {") + 1 E E", "Too many Es"}, // numbers are read before brackets
        {"2 )", "Parse error (parentheses?)"}, {"( 1 ) ) (", "Parse error (parentheses?)"},
        {") (", "Parse error (parentheses?)"}, {"mod( 7 )", "Parse error (missing comma?)"},
        {"gcd( )", "Parse error (missing comma?)"},
        {"gcd( ( 1 , 2 ) )", "Parse error (missing comma?)"}, // the comma of another level
        {"conditional( 1 )", "Parse error (missing comma?)"},
        {"conditional( 1 , 2 )", "Parse error (missing comma?)"},
        {"mod( 7 ) )", "Parse error (missing comma?)"}, // the first from the left
        {"2 ) mod( 7 )", "Parse error (parentheses?)"},
        // everything else
        {"sin( x", "Unable to parse"}, {"( 1", "Unable to parse"}, {"1 , 2", "Unable to parse"},
        {"sin( 1 , 2 )", "Unable to parse"}, {"gcd( 1 , 2 , 3 )", "Unable to parse"},
        {"conditional( 1 , 2 , 3 , 4 )", "Unable to parse"}, {"2 +", "Unable to parse"},
        {"+ 3", "Unable to parse"}, {"* 3", "Unable to parse"}, {"^ 2", "Unable to parse"},
        {"2 ^", "Unable to parse"}, {"1 + * 2", "Unable to parse"}, {"-", "Unable to parse"},
        {"sin(", "Unable to parse"}, {"gcd(", "Unable to parse"}, {"conditional(", "Unable to parse"},
        {"conditional( - 1 , 2 , 3 )", "Unable to parse"}, // a subtraction, as intended
        {"( )", "Unable to parse"}, {"sin( )", "Unable to parse"}, {"gcd( , )", "Unable to parse"},
        {"gcd( 1 , )", "Unable to parse"}, {"conditional( , , )", "Unable to parse"},
        {"( + 2", "Unable to parse"}, // a mark is no operand
        {"1 + ,", "Unable to parse"}, {"sin( , )", "Unable to parse"}, {"2 foo", "Unable to parse"},
        {"q=-1", "Unable to parse"}, {"yx( 1 )", "Unable to parse"}, {"y( 1 )", "Unable to parse"},
        {"@k", "Unable to parse"}, {"@k0", "Unable to parse"}, {"@k51", "Unable to parse"},
        {"@k-2147483648", "Unable to parse"}, {"1 + @k99999999999", "Unable to parse"},
        // found again inside a tree, the first from the left
        {"gcd( 1 , sin( 2 * @k4 ) )", "Too many decimal points"}, {"@k4 + @k99", "Too many decimal points"},
        {"@k99 + @k4", "Unable to parse"}, {"conditional( 1 , 2 , @k4 )", "Too many decimal points"},
    };
    // clang-format on
    for (const auto& [line, text] : rows) {
        const auto tree = parsed(line);
        EXPECT_EQ(tree->formattedValueOrErrorDescription(), text) << line;
        EXPECT_EQ(tree->errorDescription(), text) << line;
        EXPECT_FALSE(tree->isGraphable()) << line;
    }
}

TEST(Parser, whatHasNoValueIsUndefinedWithoutAnError) {
    Definitions user;
    // clang-format off
    const std::pair<const char*, bool> rows[] = { // whether it may be drawn
        {"", false}, {"''", false}, {"@k1", false}, {"2 @k1", false}, {")", true}, {"(", true}, {",", true},
        {"1 / 0", true}, {"x", true}, {"y9( 1 )", true}, {"conditional( 1 , 2 , 3 )", true},
    };
    // clang-format on
    for (const auto& [line, graphable] : rows) {
        EXPECT_EQ(shown(line), "Undefined") << line;
        EXPECT_EQ(parsed(line)->errorDescription(), std::nullopt) << line;
        EXPECT_EQ(parsed(line)->isGraphable(), graphable) << line;
    }
}

TEST(Parser, logsEveryUnknownToken) {
    const LogRecorder log;
    EXPECT_EQ(shown("foo + 1 bar("), "Unable to parse");
    EXPECT_EQ(log.lines(),
              (std::vector<std::string>{"failed to parse token foo", "failed to parse token bar("}));
}

TEST(Parser, aConstantIsOneOperandWhateverItsTree) {
    Definitions user;
    user.load(user.constants, 0, "1 + 2");
    user.load(user.constants, 1, "@k1 x");
    user.load(user.constants, 2, "1 / 3");
    user.load(user.constants, 3, "sin(");
    const auto shared = user.constants.expressionAtIndex(0);
    struct Row {
        const char* line;
        double value; ///< at x = 5
        const char* tree;
    };
    // clang-format off
    const Row rows[] = {
        {"2 @k1", 6, "(2)*((1)+(2))"}, {"@k1 x", 15, "((1)+(2))*(x)"}, {"@k1 @k1", 9, "((1)+(2))*((1)+(2))"},
        {"@k1 ^ 2", 9, "((1)+(2))^(2)"}, {"- @k1 ^ 2", -9, "N[((1)+(2))^(2)]"},
        {"@k1 - 1", 2, "((1)+(2))-(1)"},
        {"6 / @k1 * 2", 4, "((6)/((1)+(2)))*(2)"}, {"@k2 + @k1", 18, "(((1)+(2))*(x))+((1)+(2))"},
        {"@k1 ( 2 )", 6, "((1)+(2))*(2)"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(valueAt(row.line, 5), row.value) << row.line;
        EXPECT_EQ(parsed(row.line)->description(), row.tree);
    }
    // A quotient in a constant is a value, not the shape of an exponent.
    EXPECT_NEAR(valueAt("( - 8 ) ^ @k3", 0).imag(), 1.7320508075688772, 1e-14);
    EXPECT_EQ(shown("@k4 x )"), "Parse error (parentheses?)"); // its bracket closes nothing here
    EXPECT_EQ(user.constants.expressionAtIndex(0), shared);
    EXPECT_EQ(shared->description(), "(1)+(2)");
}

TEST(Parser, takesFinishedExpressionsAsOperands) {
    const std::shared_ptr<const Expression> sum = parsed("x + 1");
    TokenArray line = tokens("2");
    line.emplace_back(sum);
    line.emplace_back(Token("^"));
    line.emplace_back(NamedExpression(std::make_shared<const Number>(2), "ans"));
    line.emplace_back(NamedExpression(nullptr, "x")); // none yet: the node for its name
    line.emplace_back(Token("-"));
    line.emplace_back(std::make_shared<const Variable>(2));
    const auto tree = Expression::newExpressionWithTokens(line);
    EXPECT_EQ(tree->description(), "(((2)*(((x)+(1))^(2)))*(x))-(xD)");
    EXPECT_EQ(toDisplayString(line), "2^ansx-"); // what has no text is left out
    EXPECT_EQ(NamedExpression(tokens("1 +"), "wrong").expression()->errorDescription(), "Unable to parse");
    EXPECT_EQ(tree->valueWithVariableValue(2.0), 34.0); // one variable given: every variable is it
    EXPECT_TRUE(isNaN(tree->valueWithVariableValues(2.0, 3.0)));
    TokenArray digits = tokens("1");
    digits.emplace_back(std::make_shared<const Number>(5)); // joins no digits
    digits.emplace_back(Token("2"));
    EXPECT_EQ(Expression::newExpressionWithTokens(digits)->value(), 10.0);
}

TEST(Parser, readsAndWritesAPointInEveryLanguage) {
    const DecimalCommaLocale locale;
    EXPECT_EQ(shown("1 . 5 + a=0.25"), "1.75");
    EXPECT_EQ(parsed("2 . 5")->description(), "2.5");
    EXPECT_EQ(shown("1 . 5 + i / 2"), "1.5+0.5i");
}

} // namespace
} // namespace velmora
