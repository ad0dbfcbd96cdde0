#include "engine/functions/BivarTable.h"

#include "engine/functions/Logarithm.h"
#include "engine/functions/NormalDistribution.h"
#include "engine/functions/TokenIndex.h"
#include "engine/numbers/Arithmetic.h"
#include "engine/numbers/Comparison.h"
#include "engine/numbers/IntegerFunctions.h"
#include "engine/numbers/Modulo.h"
#include "engine/numbers/Power.h"
#include "engine/numbers/Quotient.h"
#include "engine/numbers/Roots.h"

#include <algorithm>
#include <array>
#include <limits>

namespace velmora {

namespace {

constexpr std::string_view kNoComplexInequalities =
    "This calculator does not define inequalities on complex numbers.";

/// Intended behaviour: the Bessel functions can be typed and shown, but no evaluation stands behind them.
double undefinedForAll(double /*order*/, double /*x*/) { return std::numeric_limits<double>::quiet_NaN(); }

using enum BivarType;
constexpr std::uint32_t kUsual = 20;
constexpr std::uint32_t kSlow = 200;

// The names "unknown" are intended behaviour of descriptions.
// clang-format off
constexpr std::array kBivarTable{
    BivarRow{Add, "+", "+", nullptr, sum, complexSum, ""},
    BivarRow{Subtract, "-", "-", nullptr, difference, complexDifference, ""},
    BivarRow{Multiply, "*", "*", nullptr, product, complexProduct, ""},
    BivarRow{Divide, "/", "/", nullptr, quotient, quotient, "", 5},
    BivarRow{Power, "^", "^", realPowerApplies, realPower, complexPower, "", kUsual},
    BivarRow{LogarithmToBase, "logbase(", "logbase", areInLogarithmDomain, logarithmToBase, complexLogarithmToBase, "", kSlow},
    BivarRow{Permutations, "perm(", "perm", nullptr, perm, nullptr, "", kSlow, permSteps},
    BivarRow{Combinations, "comb(", "comb", nullptr, comb, nullptr, "", kSlow, combSteps},
    BivarRow{Modulo, "mod(", "mod", nullptr, modulo, nullptr, "", kUsual, moduloSteps},
    BivarRow{PositiveModulo, "modPos(", "modPos", nullptr, positiveModulo, nullptr, "", kUsual, moduloSteps},
    BivarRow{NthRoot, "nroot(", "nroot", nullptr, nthRoot, complexNthRoot, "", kSlow},
    BivarRow{NormalBetween, "normVarBetween(", "unknown", nullptr, normalBetween, nullptr, "", kSlow},
    BivarRow{LeastCommonMultiple, "lcm(", "lcm", nullptr, lcm, nullptr, "", kSlow, gcdSteps},
    BivarRow{GreatestCommonDivisor, "gcd(", "gcd", nullptr, gcd, nullptr, "", kSlow, gcdSteps},
    BivarRow{Minimum, "min(", "min", nullptr, minimum, nullptr, ""},
    BivarRow{Maximum, "max(", "max", nullptr, maximum, nullptr, ""},
    BivarRow{BesselJ, "BesselJ_n(", "unknown", nullptr, undefinedForAll, nullptr, ""},
    BivarRow{BesselY, "BesselY_n(", "unknown", nullptr, undefinedForAll, nullptr, ""},
    BivarRow{GreaterOrEqual, "", "≥", nullptr, isGreaterOrEqual, nullptr, kNoComplexInequalities},
    BivarRow{Greater, "", ">", nullptr, isGreater, nullptr, kNoComplexInequalities},
    BivarRow{LessOrEqual, "", "≤", nullptr, isLessOrEqual, nullptr, kNoComplexInequalities},
    BivarRow{Less, "", "<", nullptr, isLess, nullptr, kNoComplexInequalities},
    BivarRow{NoOperator, "", "", nullptr, nullptr, nullptr, ""},
};
// clang-format on

constexpr const BivarRow& row(BivarType type) { return kBivarTable[static_cast<std::size_t>(type)]; }
static_assert(kBivarTable.size() == static_cast<std::size_t>(NoOperator) + 1 &&
                  std::ranges::all_of(kBivarTable, [](const BivarRow& r) { return &row(r.type) == &r; }),
              "rows stand in the order of BivarType");

constexpr auto kTokenIndex = [] {
    using Index = TokenIndex<kBivarTable.size()>;
    std::array<Index::Entry, kBivarTable.size()> entries;
    for (std::size_t i = 0; i < kBivarTable.size(); ++i) {
        entries[i] = {kBivarTable[i].token, static_cast<std::uint8_t>(kBivarTable[i].type)};
    }
    return Index(entries);
}();

} // namespace

const BivarRow& bivarRow(BivarType type) { return row(type); }

BivarType bivarTypeWithToken(std::string_view token) {
    return static_cast<BivarType>(kTokenIndex.find(token, static_cast<std::uint8_t>(NoOperator)));
}

} // namespace velmora
