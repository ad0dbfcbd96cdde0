// The parser: the class operations of Expression that turn a line into its tree, in fixed passes over
// an array of nodes. Every pass is linear in the number of nodes, however deep they nest.

#include "engine/tree/BivarFunction.h"
#include "engine/tree/ErrorExpression.h"
#include "engine/tree/ErrorTexts.h"
#include "engine/tree/Expression.h"
#include "engine/tree/GroupingMarks.h"
#include "engine/tree/Number.h"
#include "engine/tree/TriFunction.h"
#include "engine/tree/UnivarFunction.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace velmora {

namespace {

using Node = std::unique_ptr<Expression>;

Node error(std::string_view text) { return ErrorExpression::newErrorExpressionWithString(text); }

/// A tree too high to be walked safely becomes an error here, the one place where trees grow.
Node limited(Node node) {
    return node->height() > Expression::kMaximumHeight ? error(kUnableToParse) : std::move(node);
}

Node popBack(ExpressionArray& nodes) {
    Node node = std::move(nodes.back());
    nodes.pop_back();
    return node;
}

ExpressionArray takeRange(ExpressionArray& nodes, std::size_t begin, std::size_t end) {
    return {std::make_move_iterator(nodes.begin() + static_cast<std::ptrdiff_t>(begin)),
            std::make_move_iterator(nodes.begin() + static_cast<std::ptrdiff_t>(end))};
}

/// Parses what stands between an opener and its ")". An empty place is no operand.
Node parsedContents(ExpressionArray contents) {
    return contents.empty() ? error(kUnableToParse)
                            : Expression::newExpressionNextStepParens(std::move(contents));
}

/// The commas of one level, as positions in the node array.
struct CommaPositions {
    std::optional<std::size_t> farthest; ///< from the ")"
    std::optional<std::size_t> nearest;
};

/// Closes the group whose opener stands at `opener` in `nodes` and whose contents are all nodes behind
/// it: they become one node in the opener's place. Gives the error text when the opener lacks commas.
std::optional<std::string_view> closeGroup(ExpressionArray& nodes, std::size_t opener,
                                           CommaPositions commas) {
    const std::size_t begin = opener + 1;
    const std::size_t end = nodes.size();
    Node group = std::move(nodes[opener]);
    switch (group->kind()) {
    case Expression::Kind::OneInput:
        static_cast<UnivarFunction&>(*group).setInput(parsedContents(takeRange(nodes, begin, end)));
        break;
    case Expression::Kind::TwoInputs: {
        if (!commas.nearest) {
            return kMissingCommaError;
        }
        Node first = parsedContents(takeRange(nodes, begin, *commas.nearest));
        Node second = parsedContents(takeRange(nodes, *commas.nearest + 1, end));
        static_cast<BivarFunction&>(*group).setInputs(std::move(first), std::move(second));
        break;
    }
    case Expression::Kind::ThreeInputs: {
        if (!commas.nearest || commas.nearest == commas.farthest) {
            return kMissingCommaError;
        }
        Node first = parsedContents(takeRange(nodes, begin, *commas.farthest));
        Node second = parsedContents(takeRange(nodes, *commas.farthest + 1, *commas.nearest));
        Node third = parsedContents(takeRange(nodes, *commas.nearest + 1, end));
        static_cast<TriFunction&>(*group).setInputs(std::move(first), std::move(second), std::move(third));
        break;
    }
    default: // a plain parenthesis leaves its contents in its place
        group = parsedContents(takeRange(nodes, begin, end));
        break;
    }
    nodes.resize(begin);
    nodes[opener] = limited(std::move(group));
    return std::nullopt;
}

/// An operator of one of the two types that still lacks an input, or null.
BivarFunction* operatorLackingInput(Expression& node, BivarType one, BivarType other) {
    if (node.kind() != Expression::Kind::TwoInputs) {
        return nullptr;
    }
    auto& operation = static_cast<BivarFunction&>(node);
    const bool isSought = operation.function() == one || operation.function() == other;
    const bool lacks = operation.input1() == nullptr || operation.input2() == nullptr;
    return isSought && lacks ? &operation : nullptr;
}

UnivarFunction* negationLackingInput(Expression& node) {
    if (node.kind() != Expression::Kind::OneInput) {
        return nullptr;
    }
    auto& function = static_cast<UnivarFunction&>(node);
    return function.function() == UnivarType::Negation && function.input() == nullptr ? &function : nullptr;
}

/// One scan, left to right, in which the operators of one precedence take their neighbours.
ExpressionArray withOperatorsApplied(ExpressionArray nodes, BivarType one, BivarType other) {
    ExpressionArray result;
    result.reserve(nodes.size());
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        Node node = std::move(nodes[i]);
        if (BivarFunction* operation = operatorLackingInput(*node, one, other)) {
            if (operation->input2() == nullptr && i + 1 < nodes.size()) {
                operation->setInput2(std::move(nodes[++i]));
            }
            if (operation->input1() == nullptr && !result.empty()) {
                operation->setInput1(popBack(result));
            }
            node = limited(std::move(node));
        }
        result.push_back(std::move(node));
    }
    return result;
}

} // namespace

std::unique_ptr<Expression> Expression::newExpressionWithExpressions(ExpressionArray nodes) {
    ExpressionArray result;
    result.reserve(nodes.size() + nodes.size() / 2);
    for (Node& node : nodes) {
        if (!result.empty() && result.back()->canBeFollowedByImpliedMultiplication() &&
            node->canBePrecededByImpliedMultiplication()) {
            result.push_back(std::make_unique<BivarFunction>(BivarType::Multiply));
        }
        result.push_back(std::move(node));
    }
    return newExpressionNextStepParens(std::move(result));
}

std::unique_ptr<Expression> Expression::newExpressionNextStepParens(ExpressionArray nodes) {
    if (nodes.size() == 1) {
        return popBack(nodes);
    }
    // Every ")" takes its opener and what stands between off the end of `result`, so no node is
    // looked at more often than it is grouped.
    ExpressionArray result;
    result.reserve(nodes.size());
    for (Node& node : nodes) {
        if (node->kind() != Kind::RightParen) {
            result.push_back(std::move(node));
            continue;
        }
        CommaPositions commas;
        std::size_t opener = result.size();
        while (opener > 0 && !result[opener - 1]->needsToBePairedWithARightParen()) {
            --opener;
            if (result[opener]->kind() == Kind::Comma) {
                commas.farthest = opener;
                commas.nearest = commas.nearest.value_or(opener);
            }
        }
        if (opener == 0) {
            return error(kParenthesesError);
        }
        if (const auto problem = closeGroup(result, opener - 1, commas)) {
            return error(*problem);
        }
    }
    return newExpressionNextStepExponentsAndNegations(std::move(result));
}

std::unique_ptr<Expression> Expression::newExpressionNextStepExponentsAndNegations(ExpressionArray nodes) {
    if (nodes.size() == 1) {
        return popBack(nodes);
    }
    if (nodes.empty()) {
        return error(kUnableToParse);
    }
    // Right to left, so powers group to the right and a minus inside an exponent binds first. The nodes
    // already passed wait in `passed`, the next one on the right at its end. The first node is never
    // visited: a minus at the very front takes the whole power behind it, in the next step.
    ExpressionArray passed;
    passed.reserve(nodes.size());
    passed.push_back(popBack(nodes));
    while (!nodes.empty()) {
        Node node = popBack(nodes);
        if (!nodes.empty()) {
            if (operatorLackingInput(*node, BivarType::Power, BivarType::Power) != nullptr) {
                std::unique_ptr<BivarFunction> power(static_cast<BivarFunction*>(node.release()));
                if (power->input2() == nullptr) {
                    power->setInput2(popBack(passed));
                }
                if (power->input1() == nullptr) {
                    power->setInput1(popBack(nodes));
                }
                node = limited(BivarFunction::checkForFractionalPower(std::move(power)));
            } else if (UnivarFunction* negation = negationLackingInput(*node)) {
                negation->setInput(popBack(passed));
                node = limited(std::move(node));
            }
        }
        passed.push_back(std::move(node));
    }
    std::reverse(passed.begin(), passed.end());
    return newExpressionNextStepNegations(std::move(passed));
}

std::unique_ptr<Expression> Expression::newExpressionNextStepNegations(ExpressionArray nodes) {
    if (nodes.size() == 1) {
        return popBack(nodes);
    }
    ExpressionArray passed;
    passed.reserve(nodes.size());
    while (!nodes.empty()) {
        Node node = popBack(nodes);
        UnivarFunction* negation = negationLackingInput(*node);
        if (negation != nullptr && !passed.empty()) {
            negation->setInput(popBack(passed));
            node = limited(std::move(node));
        }
        passed.push_back(std::move(node));
    }
    std::reverse(passed.begin(), passed.end());
    return newExpressionNextStepBivarFunctions(std::move(passed), false);
}

std::unique_ptr<Expression> Expression::newExpressionNextStepBivarFunctions(ExpressionArray nodes,
                                                                            bool multiplicationDivisionDone) {
    if (nodes.size() == 1) {
        return popBack(nodes);
    }
    if (!multiplicationDivisionDone) {
        return newExpressionNextStepBivarFunctions(
            withOperatorsApplied(std::move(nodes), BivarType::Multiply, BivarType::Divide), true);
    }
    ExpressionArray rest = withOperatorsApplied(std::move(nodes), BivarType::Add, BivarType::Subtract);
    return rest.size() == 1 ? popBack(rest) : error(kUnableToParse);
}

} // namespace velmora
