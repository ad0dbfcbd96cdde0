#include "engine/intervals/IntervalProgram.h"

#include "engine/environment/Environment.h"
#include "engine/intervals/IntervalArithmetic.h"
#include "engine/tree/BivarFunction.h"
#include "engine/tree/SharedExpression.h"
#include "engine/tree/TriFunction.h"
#include "engine/tree/UnivarFunction.h"
#include "engine/tree/UnivarUserdefinedFunction.h"

#include <array>
#include <cmath>

namespace velmora {

/// Lays a tree out as steps. Gives up, once and for all, where it does not fit.
class IntervalProgramBuilder {
public:
    explicit IntervalProgramBuilder(IntervalProgram& program) : m_program(program) {}

    /// The slots that hold the two variables and what is neither.
    struct Variables {
        std::array<std::uint8_t, 3> slot;
        bool hasThird = true;
    };

    bool lay(const Expression& tree, Variables variables) {
        append(tree, variables, 0);
        return m_fits;
    }

private:
    using Operation = IntervalProgram::Operation;
    using Step = IntervalProgram::Step;

    static constexpr std::size_t kMaximumSteps = 20'000;
    static constexpr int kMaximumCalls = 40;

    void push(const Step& step, int growth) {
        m_depth += growth;
        m_fits = m_fits && m_depth <= static_cast<int>(IntervalProgram::kStackDepth) &&
                 m_program.m_steps.size() < kMaximumSteps;
        if (m_fits) {
            m_program.m_steps.push_back(step);
        }
    }

    void pushConstant(const DecoratedInterval& value) {
        push({.operation = Operation::PushConstant, .constant = value}, 1);
    }

    void append(const Expression& node, const Variables& variables, int calls) {
        if (!m_fits) {
            return;
        }
        switch (node.leaf()) {
        case Expression::Leaf::RealConstant: {
            const double value = node.constant().real();
            pushConstant(std::isnan(value) ? DecoratedInterval::nowhere() : DecoratedInterval::point(value));
            return;
        }
        case Expression::Leaf::ComplexConstant:
            pushConstant(DecoratedInterval::nowhere(!isNaN(node.constant())));
            return;
        case Expression::Leaf::Variable:
            if (node.variableIndex() == 2 && !variables.hasThird) {
                pushConstant(DecoratedInterval::nowhere());
            } else {
                push({.operation = Operation::PushSlot, .slot = variables.slot[node.variableIndex()]}, 1);
            }
            return;
        case Expression::Leaf::None:
            break;
        }
        appendFunction(node, variables, calls);
    }

    void appendFunction(const Expression& node, const Variables& variables, int calls) {
        switch (node.kind()) {
        case Expression::Kind::OneInput:
            appendOneInput(static_cast<const UnivarFunction&>(node), variables, calls);
            break;
        case Expression::Kind::TwoInputs:
            appendTwoInputs(static_cast<const BivarFunction&>(node), variables, calls);
            break;
        case Expression::Kind::ThreeInputs: {
            const auto& conditional = static_cast<const TriFunction&>(node);
            append(*conditional.input1(), variables, calls);
            append(*conditional.input2(), variables, calls);
            append(*conditional.input3(), variables, calls);
            push({.operation = Operation::Conditional, .slot = variables.slot[0]}, -2);
            break;
        }
        case Expression::Kind::Shared:
            append(static_cast<const SharedExpression&>(node).tree(), variables, calls);
            break;
        default:
            pushConstant(DecoratedInterval::nowhere());
            break;
        }
    }

    void appendOneInput(const UnivarFunction& function, const Variables& variables, int calls) {
        append(*function.input(), variables, calls);
        if (function.function() == UnivarType::UserDefined) {
            appendCall(static_cast<const UnivarUserdefinedFunction&>(function), calls);
            return;
        }
        push({.operation = Operation::OneInput, .univar = &univarIntervalRow(function.function())}, 0);
    }

    /// The equation's own steps, with the argument in place of all its variables.
    void appendCall(const UnivarUserdefinedFunction& function, int calls) {
        const std::shared_ptr<const Expression> equation = function.equation();
        m_fits =
            m_fits && m_usedSlots < IntervalProgram::kSlots && calls < kMaximumCalls && equation != nullptr;
        if (!m_fits) {
            return;
        }
        const auto slot = static_cast<std::uint8_t>(m_usedSlots++);
        push({.operation = Operation::StoreSlot, .slot = slot}, -1);
        append(*equation, {.slot = {slot, slot, slot}}, calls + 1);
        --m_usedSlots;
    }

    void appendTwoInputs(const BivarFunction& function, const Variables& variables, int calls) {
        append(*function.input1(), variables, calls);
        const Expression& right = *function.input2();
        const double exponent = right.leaf() == Expression::Leaf::RealConstant ? right.constant().real() : 0;
        if (function.function() == BivarType::Power && (exponent == 2 || exponent == 3)) {
            push({.operation = exponent == 2 ? Operation::Square : Operation::Cube}, 0);
            return;
        }
        append(right, variables, calls);
        push({.operation = Operation::TwoInputs, .bivar = bivarIntervalRule(function.function())}, -1);
    }

    IntervalProgram& m_program;
    int m_depth = 0;
    std::size_t m_usedSlots = 3; // of the caller's x, y and what is neither
    bool m_fits = true;
};

namespace {

/// Memory for an interval that costs nothing until it is used.
union Place {
    Place() {} // NOLINT: every place is written before it is read
    DecoratedInterval interval;
};

/// The first value while the variable is at most the bound, else the second.
DecoratedInterval conditionalInterval(const DecoratedInterval& variable, const DecoratedInterval& bound,
                                      const DecoratedInterval& first, const DecoratedInterval& second) {
    if (variable.mayBeComplex || bound.isEmpty() || variable.isEmpty()) {
        return variable.mayBeComplex ? DecoratedInterval::unknown() : DecoratedInterval::nowhere();
    }
    DecoratedInterval range = variable.highest <= bound.lowest ? first
                              : variable.lowest > bound.highest
                                  ? second
                                  : hull(first, second).atMost(Decoration::Defined);
    if (bound.mayBeComplex || bound.decoration < Decoration::Defined) {
        range = range.atMost(Decoration::PossiblyUndefined);
    }
    return range;
}

} // namespace

IntervalProgram::IntervalProgram(const Expression& tree, Variables variables)
    : m_angleMode(Environment::current().angleMode()) {
    const bool isOfOne = variables == Variables::One;
    const IntervalProgramBuilder::Variables slots =
        isOfOne ? IntervalProgramBuilder::Variables{.slot = {0, 0, 0}}
                : IntervalProgramBuilder::Variables{.slot = {0, 1, 2}, .hasThird = false};
    if (!IntervalProgramBuilder(*this).lay(tree, slots)) {
        m_steps.clear();
    }
}

DecoratedInterval IntervalProgram::value(double xLowest, double xHighest) const {
    return value({xLowest, xHighest}, {xLowest, xHighest});
}

DecoratedInterval IntervalProgram::value(const DecoratedInterval& x, const DecoratedInterval& y) const {
    if (m_steps.empty()) {
        return DecoratedInterval::unknown();
    }
    std::array<Place, kStackDepth> stack;
    std::array<Place, kSlots> slots;
    slots[0].interval = x;
    slots[1].interval = y;
    std::size_t height = 0;
    const auto place = [&](std::size_t below) -> DecoratedInterval& {
        return stack[height - below].interval;
    };
    for (const Step& step : m_steps) {
        switch (step.operation) {
        case Operation::PushConstant:
            ++height;
            place(1) = step.constant;
            break;
        case Operation::PushSlot:
            ++height;
            place(1) = slots[step.slot].interval;
            break;
        case Operation::StoreSlot:
            slots[step.slot].interval = place(1);
            --height;
            break;
        case Operation::OneInput:
            place(1) = univarInterval(*step.univar, place(1), m_angleMode);
            break;
        case Operation::TwoInputs:
            place(2) = step.bivar(place(2), place(1));
            --height;
            break;
        case Operation::Square:
            place(1) = square(place(1));
            break;
        case Operation::Cube:
            place(1) = cube(place(1));
            break;
        case Operation::Conditional:
            place(3) = conditionalInterval(slots[step.slot].interval, place(3), place(2), place(1));
            height -= 2;
            break;
        }
    }
    return place(1);
}

} // namespace velmora
