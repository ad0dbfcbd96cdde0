// Lines of tokens, as a person or a file may bring them: edited, shown, parsed, evaluated, archived.
// An input is a series of bytes; each names a token of the table below or an edit of the line.

#include "engine/environment/Environment.h"
#include "engine/lines/ExpressionList.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/tree/Expression.h"
#include "engine/tree/Number.h"
#include "fuzz/FuzzTarget.h"
#include "platform/files/KeyedArchive.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

using namespace velmora;

namespace {

constexpr std::array kTokens{"0",
                             "1",
                             "2",
                             "9",
                             ".",
                             "E",
                             "+",
                             "-",
                             "*",
                             "/",
                             "^",
                             "(",
                             ")",
                             ",",
                             "x",
                             "y",
                             "t",
                             "θ",
                             "i",
                             "e",
                             "π",
                             "N",
                             "",
                             "_",
                             "@k1",
                             "@k2",
                             "@k50",
                             "@k999",
                             "@",
                             "y1(",
                             "y4(",
                             "y99999999999(",
                             "yx(",
                             "G=6.6742(8)",
                             "c=3E8",
                             "E=",
                             "conditional(",
                             "abs(",
                             "sin(",
                             "cos(",
                             "tan(",
                             "asin(",
                             "acos(",
                             "atan(",
                             "csc(",
                             "sec(",
                             "cot(",
                             "cosh(",
                             "sinh(",
                             "tanh(",
                             "coth(",
                             "sech(",
                             "csch(",
                             "ln(",
                             "log(",
                             "cbrt(",
                             "sqrt(",
                             "fact(",
                             "rand(",
                             "round(",
                             "cSoundInAir(",
                             "ISATemp(",
                             "ISAPressure(",
                             "ISADensitySlugsFt3(",
                             "ISADensityKgM3(",
                             "bell(",
                             "cumNormDist(",
                             "toFraction(",
                             "toMixedNumber(",
                             "roundUp(",
                             "roundDown(",
                             "Re(",
                             "im(",
                             "conj(",
                             "arg(",
                             "erf(",
                             "mod(",
                             "modPos(",
                             "logbase(",
                             "comb(",
                             "nroot(",
                             "perm(",
                             "lcm(",
                             "gcd(",
                             "min(",
                             "max(",
                             "BesselJ_n(",
                             "normVarBetween(",
                             "nonsense",
                             "\xff\xfe",
                             "=",
                             "==",
                             "a=(b)"};

constexpr std::array kValues{0.0, 1.0, -1.0, 0.5, 1e300, -1e-300};

[[noreturn]] void fail() { std::abort(); }

/// Applies one byte to the line: an edit, or the token that it names.
void apply(ExpressionWithTokenArray& line, std::uint8_t byte) {
    switch (byte) {
    case 255:
        line.deleteAtCursor();
        return;
    case 254:
        line.moveCursor(-3);
        return;
    case 253:
        line.moveCursorTo(line.count());
        return;
    case 252:
        line.insertTokenArray(Token::tokenArrayWithString("normVarBetween(,,"));
        return;
    case 251:
        line.insertToken(NamedExpression(std::make_shared<Number>(ComplexValue(0.1, -2)), "ans"));
        return;
    case 250:
        line.insertToken(std::shared_ptr<const Expression>(std::make_shared<Number>(1e99)));
        return;
    case 249:
        line.insertToken(std::string("plain text"));
        return;
    default:
        line.insertToken(Token(kTokens[byte % kTokens.size()]));
    }
}

void evaluate(const Expression& tree) {
    for (const double value : kValues) {
        static_cast<void>(tree.valueWithVariableValue(value));
        static_cast<void>(tree.valueWithVariableValues({value, 1}, value));
    }
    static_cast<void>(tree.description());
    static_cast<void>(tree.hasRecursion());
}

/// What is read back must show and parse as what was written.
void checkArchive(const ExpressionWithTokenArray& line) {
    KeyedArchiver coder;
    line.encodeWithCoder(coder);
    const auto read = readPropertyList(binaryPropertyList(coder.propertyList()));
    if (!read) {
        fail();
    }
    const auto again = ExpressionWithTokenArray::decode(KeyedUnarchiver(*read));
    if (again.count() != line.count() ||
        again.expression()->description() != line.expression()->description()) {
        fail();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LogScope quiet([](std::string_view) {});
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    ExpressionList equations(4);
    NamedExpressionList constants(50);
    constants.setFunctionName("@k");
    environment.equationsList = &equations;
    environment.constantsList = &constants;

    // The last piece is the line; the ones before it are constants and equations, stored without a
    // check, as a file would bring them.
    constexpr std::uint8_t kNextLine = 248;
    // Many short lines find more than few long ones; very long ones have tests of their own.
    size = std::min<std::size_t>(size, 300);
    ExpressionWithTokenArray line;
    int stored = 0;
    for (std::size_t i = 0; i < size; ++i) {
        if (data[i] != kNextLine) {
            apply(line, data[i]);
            continue;
        }
        ExpressionList& list = stored % 2 == 0 ? static_cast<ExpressionList&>(constants) : equations;
        list.setExpressionAtIndex(stored / 2 % 4, line, (stored & 8) != 0);
        ++stored;
        line.reset();
    }

    const std::string shown = line.beforeCursorString() + line.afterCursorString();
    if (shown != line.toDisplayString()) {
        fail();
    }
    static_cast<void>(line.displayStringWithCursor());
    static_cast<void>(line.enoughRightParens());
    const auto tree = line.expression();
    if (line.resultText().empty() && !tree->errorDescription()) {
        fail();
    }
    evaluate(*tree);
    environment.setAngleMode(AngleMode::Degrees);
    evaluate(*tree);
    checkArchive(line);
    line.keepResult();
    checkArchive(line);
    return 0;
}

std::vector<std::string> seedCorpus() {
    std::vector<std::string> seeds;
    // Every token once behind a number and inside a parenthesis, and a constant that names itself.
    for (std::size_t i = 0; i < kTokens.size(); ++i) {
        const char token = static_cast<char>(i);
        seeds.push_back({2, 8, token, 11, 14, 12});
        seeds.push_back({token, 14, 13, 1, 13, 2, 12});
    }
    seeds.push_back({24, 6, 1, static_cast<char>(248), 29, 14, 12, static_cast<char>(248), 24});
    return seeds;
}

std::vector<std::string> fuzzDictionary() {
    return {std::string(200, '\x0b'),
            std::string(200, '\x07'),
            std::string(100, '\x0a'),
            {24, 6, 24},
            {1, 4, 2, 5, 7, 3}};
}
