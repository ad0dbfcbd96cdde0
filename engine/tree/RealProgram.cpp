#include "engine/tree/RealProgram.h"

#include "engine/environment/Environment.h"
#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "engine/numbers/Roots.h"
#include "engine/tree/UnivarFunction.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Lines that people type need a few places; only machine-made ones need more than these.
constexpr std::size_t kUsualStackDepth = 32;

// The roots that people write as x^(1/2) and x^(1/3), without the cost of finding out which root it is.
double secondRoot(double radicand) { return nthRoot(2, radicand); }
double thirdRoot(double radicand) { return nthRoot(3, radicand); }

} // namespace

void RealProgram::GeneralEvaluationDeleter::operator()(GeneralEvaluation* general) const { delete general; }

RealProgram::RealProgram(const Expression& tree) {
    RealProgramBuilder builder(*this);
    builder.append(tree);
}

double RealProgram::valueOfNode(const Expression& node, Run& run) {
    if (run.general == nullptr) {
        const auto& [x, y, none] = run.variable;
        run.general.reset(new GeneralEvaluation(
            VariableValues{.byType = {x, y, none}, .areGiven = true, .areTwo = run.areTwo}, run.budget));
    }
    const ComplexValue value = complexOf(node, run.general->evaluation);
    run.leftReals = run.leftReals || !isReal(value);
    return value.real();
}

double RealProgram::valueOfOneInput(const UnivarRow& row, double a, Run& run) {
    run.leftReals = run.leftReals || !row.realDomain.contains(a);
    return univarRealRule(row, a);
}

double RealProgram::valueOfTwoInputs(const BivarRow& row, double a, double b, Run& run) {
    run.leftReals = run.leftReals || (row.inRealDomain != nullptr && !row.inRealDomain(a, b));
    if (row.realSteps != nullptr && !run.budget.spend(row.realSteps(a, b))) {
        return kNaN;
    }
    return row.real(a, b);
}

// The value on top of the stack stays in a register; `below` points past the values under it.
[[gnu::always_inline]] inline double RealProgram::valueOnStack(Run& run, double* below) const {
    double top = 0;
    for (const Step& step : m_steps) {
        switch (step.operation) {
        case Operation::PushConstant:
            *below++ = top;
            top = step.constant;
            break;
        case Operation::PushVariable:
            *below++ = top;
            top = run.variable[step.variable];
            break;
        case Operation::Add:
            top = *--below + top;
            break;
        case Operation::AddConstant:
            top += step.constant;
            break;
        case Operation::AddVariable:
            top += run.variable[step.variable];
            break;
        case Operation::Subtract:
            top = *--below - top;
            break;
        case Operation::SubtractConstant:
            top -= step.constant;
            break;
        case Operation::SubtractVariable:
            top -= run.variable[step.variable];
            break;
        case Operation::Multiply:
            top = *--below * top;
            break;
        case Operation::MultiplyConstant:
            top *= step.constant;
            break;
        case Operation::MultiplyVariable:
            top *= run.variable[step.variable];
            break;
        case Operation::Divide:
            --below;
            top = top == 0 ? kNaN : *below / top;
            break;
        case Operation::DivideConstant:
            top = step.constant == 0 ? kNaN : top / step.constant;
            break;
        case Operation::DivideVariable: {
            const double divisor = run.variable[step.variable];
            top = divisor == 0 ? kNaN : top / divisor;
            break;
        }
        case Operation::Square:
            top = top * top;
            break;
        case Operation::Cube:
            top = top * top * top;
            break;
        case Operation::Negate:
            top = -top;
            break;
        case Operation::Function:
            top = step.function(top);
            break;
        case Operation::FunctionOfAngle: {
            const bool isInDegrees = Environment::current().angleMode() == AngleMode::Degrees;
            top = isInDegrees ? step.univar->realInDegrees(top) : step.univar->real(top);
            break;
        }
        case Operation::FunctionOnDomain:
            if (!step.univar->realDomain.contains(top)) {
                run.leftReals = true;
            }
            top = step.univar->real(top);
            break;
        case Operation::OneInput:
            top = valueOfOneInput(*step.univar, top, run);
            break;
        case Operation::TwoInputs:
            --below;
            top = valueOfTwoInputs(*step.bivar, *below, top, run);
            break;
        case Operation::OtherNode:
            *below++ = top;
            top = valueOfNode(*step.node, run);
            break;
        }
    }
    return top;
}

double RealProgram::value(Run& run) const {
    if (m_stackDepth > kUsualStackDepth) {
        return valueOnLargeStack(run);
    }
    std::array<double, kUsualStackDepth> stack; // NOLINT: every place is written before it is read
    return valueOnStack(run, stack.data());
}

double RealProgram::valueOnLargeStack(Run& run) const {
    std::vector<double> stack(m_stackDepth);
    return valueOnStack(run, stack.data());
}

void RealProgramBuilder::push(RealProgram::Step step) {
    m_program.m_steps.push_back(step);
    switch (step.operation) {
    case Operation::PushConstant:
    case Operation::PushVariable:
    case Operation::OtherNode:
        ++m_depth;
        m_program.m_stackDepth = std::max(m_program.m_stackDepth, m_depth);
        break;
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::TwoInputs:
        --m_depth;
        break;
    default:
        break;
    }
}

void RealProgramBuilder::append(const Expression& node) {
    switch (node.leaf()) {
    case Expression::Leaf::Variable:
        push(RealProgram::Step::ofVariable(Operation::PushVariable, node.variableIndex()));
        break;
    case Expression::Leaf::RealConstant:
        push(RealProgram::Step(Operation::PushConstant, node.constant().real()));
        break;
    case Expression::Leaf::ComplexConstant:
        appendOtherNode(node);
        break;
    case Expression::Leaf::None:
        node.describeToProgram(*this);
        break;
    }
}

void RealProgramBuilder::appendOtherNode(const Expression& node) {
    push(RealProgram::Step(Operation::OtherNode, node));
}

bool RealProgramBuilder::appendArithmeticWithLeaf(BivarType type, const Expression& right) {
    struct Forms {
        BivarType type;
        Operation withConstant;
        Operation withVariable;
    };
    constexpr std::array kForms{
        Forms{BivarType::Add, Operation::AddConstant, Operation::AddVariable},
        Forms{BivarType::Subtract, Operation::SubtractConstant, Operation::SubtractVariable},
        Forms{BivarType::Multiply, Operation::MultiplyConstant, Operation::MultiplyVariable},
        Forms{BivarType::Divide, Operation::DivideConstant, Operation::DivideVariable},
    };
    const auto* const form = std::ranges::find(kForms, type, &Forms::type);
    if (form != kForms.end() && right.leaf() == Expression::Leaf::RealConstant) {
        push(RealProgram::Step(form->withConstant, right.constant().real()));
        return true;
    }
    if (form != kForms.end() && right.leaf() == Expression::Leaf::Variable) {
        push(RealProgram::Step::ofVariable(form->withVariable, right.variableIndex()));
        return true;
    }
    const double exponent = right.leaf() == Expression::Leaf::RealConstant ? right.constant().real() : 0;
    if (type == BivarType::Power && (exponent == 2 || exponent == 3)) {
        push(RealProgram::Step(exponent == 2 ? Operation::Square : Operation::Cube));
        return true;
    }
    return type == BivarType::Power && exponent == 1;
}

void RealProgramBuilder::appendOperation(BivarType type, const BivarRow& row, const Expression& right) {
    if (appendArithmeticWithLeaf(type, right)) {
        return;
    }
    append(right);
    switch (type) {
    case BivarType::Add:
        push(RealProgram::Step(Operation::Add));
        break;
    case BivarType::Subtract:
        push(RealProgram::Step(Operation::Subtract));
        break;
    case BivarType::Multiply:
        push(RealProgram::Step(Operation::Multiply));
        break;
    case BivarType::Divide:
        push(RealProgram::Step(Operation::Divide));
        break;
    default:
        push(RealProgram::Step(Operation::TwoInputs, row));
        break;
    }
}

bool RealProgramBuilder::appendRoot(const Expression& degree, const Expression& radicand) {
    const double number = degree.leaf() == Expression::Leaf::RealConstant ? degree.constant().real() : 0;
    if (number != 2 && number != 3) {
        return false;
    }
    append(radicand);
    push(RealProgram::Step(Operation::Function, number == 2 ? secondRoot : thirdRoot));
    return true;
}

void RealProgramBuilder::appendFunction(const UnivarRow& row) {
    const RealInterval everywhere;
    const bool holdsEverywhere =
        row.realDomain.lowest == everywhere.lowest && row.realDomain.highest == everywhere.highest;
    if (row.type == UnivarType::Negation) {
        push(RealProgram::Step(Operation::Negate));
    } else if (row.angle == AngleUse::None && holdsEverywhere) {
        push(RealProgram::Step(Operation::Function, row.real));
    } else if (row.angle == AngleUse::None) {
        push(RealProgram::Step(Operation::FunctionOnDomain, row));
    } else if (row.angle == AngleUse::Taken && holdsEverywhere) {
        push(RealProgram::Step(Operation::FunctionOfAngle, row));
    } else {
        push(RealProgram::Step(Operation::OneInput, row));
    }
}

} // namespace velmora
