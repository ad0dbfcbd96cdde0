#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cstdint>
#include <string_view>

namespace velmora {

/// The operators, functions of two inputs and comparisons, numbered as listed.
enum class BivarType : unsigned char {
    Add = 0,
    Subtract = 1,
    Multiply = 2,
    Divide = 3,
    Power = 4,
    LogarithmToBase = 5,
    Permutations = 6,
    Combinations = 7,
    Modulo = 8,
    PositiveModulo = 9,
    NthRoot = 10,
    NormalBetween = 11,
    LeastCommonMultiple = 12,
    GreatestCommonDivisor = 13,
    Minimum = 14,
    Maximum = 15,
    BesselJ = 16,
    BesselY = 17,
    GreaterOrEqual = 18,
    Greater = 19,
    LessOrEqual = 20,
    Less = 21,
    NoOperator = 22,
};

/// One operation on two inputs. A function pointer that is null means: no such rule.
struct BivarRow {
    BivarType type;
    std::string_view token;               ///< what the key inserts; empty when no token selects the type
    std::string_view name;                ///< how a tree describes the node
    bool (*inRealDomain)(double, double); ///< where `real` holds; null: for every pair
    double (*real)(double, double);       ///< the real rule
    ComplexValue (*complex)(ComplexValue, ComplexValue); ///< used outside the real rule; null: NaN
    std::string_view complexMessage;                     ///< raised once for a complex input, or empty
    std::uint32_t cost = 2;                              ///< in steps of arithmetic (EvaluationBudget)
    /// What it costs above that for these inputs; null: nothing.
    std::int64_t (*realSteps)(double, double) = nullptr;
};

/// The row of a type; every type has one.
const BivarRow& bivarRow(BivarType type);

/// The type that a token selects by its whole text, NoOperator when none does. Comparisons have no token.
BivarType bivarTypeWithToken(std::string_view token);

} // namespace velmora
