#pragma once

#include "engine/lines/TokenElement.h"
#include "engine/numbers/ComplexValue.h"
#include "engine/tree/MinMaxReturn.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

class DescriptionWriter;
class Expression;
class RealProgramBuilder;
class References;
struct ComplexEvaluation;

/// The nodes of a line while it is being parsed.
using ExpressionArray = std::vector<std::unique_ptr<Expression>>;

/// A node of the tree of one line, and so the tree below it. Trees are built by the parser and then
/// only read. No tree is higher than kMaximumHeight, so walking one never exhausts the stack.
class Expression {
public:
    virtual ~Expression() = default;
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;

    /// Builds the tree of one typed line. Parentheses that the user left open stay open. Always returns
    /// a tree: a line that cannot be read gives an ErrorExpression whose text is the message to show.
    static std::unique_ptr<Expression> newExpressionWithTokens(std::span<const TokenElement> tokens);
    /// The node of one token or named expression; null for a token that no rule knows.
    static std::unique_ptr<Expression> newExpressionWithToken(const TokenElement& element);
    /// The expression of one token given by its text.
    static std::unique_ptr<Expression> newExpressionWithString(std::string text);

    /// The steps of the parse, in their order: implied multiplication, parentheses, exponents,
    /// negations, the other operators. Each consumes its nodes and goes on to the next step; an array
    /// of one node is the result as it stands.
    static std::unique_ptr<Expression> newExpressionWithExpressions(ExpressionArray nodes);
    static std::unique_ptr<Expression> newExpressionNextStepParens(ExpressionArray nodes);
    static std::unique_ptr<Expression> newExpressionNextStepExponentsAndNegations(ExpressionArray nodes);
    static std::unique_ptr<Expression> newExpressionNextStepNegations(ExpressionArray nodes);
    static std::unique_ptr<Expression> newExpressionNextStepBivarFunctions(ExpressionArray nodes,
                                                                           bool multiplicationDivisionDone);

    /// The value without variables, with the variable given (whatever its name), or with the
    /// independent variable and "y" given. NaN where there is none.
    ComplexValue value() const;
    ComplexValue valueWithVariableValue(ComplexValue z) const;
    ComplexValue valueWithVariableValues(ComplexValue x, ComplexValue y) const;
    /// The real part of the value where that is almost real, else NaN.
    double roundedRealValueWithVariableValue(ComplexValue z) const;

    // Numeric analysis of the expression as a function f of its variable, by the rounded real values. All
    // searches are local and end by themselves.

    /// A root in [a, b]; nothing where f does not change its sign.
    std::optional<double> zero(double a, double b) const;
    /// An abscissa in [a, b] where both expressions are equal, found by halving until the doubles between
    /// the ends are used up; nothing where their difference does not change its sign.
    std::optional<double> intersectionWithExpression(const Expression& other, double a, double b) const;
    /// How three neighbouring values lie: 0 flat, 1 a minimum in the middle, 2 a maximum, 3 rising,
    /// 4 falling, 5 undetermined (one is NaN).
    static int classifyMinMax(double left, double middle, double right);
    /// The local extremum nearest to x0 in [lo, hi] whose value lies in [yMin, yMax], searched outward in
    /// steps of h > 0; nothing where there is none, or a value on the way is NaN.
    std::optional<MinMaxReturn> findMinMax(double lo, double hi, double yMin, double yMax, double x0,
                                           double h) const;
    /// Narrows a, b, c (in either order) around a minimum or maximum near b until nothing lies between
    /// them. Nothing when it leaves [yMin, yMax], meets a NaN, or there is none.
    std::optional<MinMaxReturn> investigateReversal(double a, double b, double c, double yMin, double yMax,
                                                    bool isMin) const;

    /// The text shown as a result: the value, "Undefined", or the error.
    std::string formattedValueOrErrorDescription() const;
    /// The same for a value computed earlier.
    virtual std::string formattedValue(ComplexValue value) const;
    /// The first error text found in the tree, that of an unreadable line where the equations that it calls
    /// stand higher on one another than can be evaluated, or nothing.
    std::optional<std::string> errorDescription() const;
    bool isGraphable() const { return m_isGraphable; }

    /// True when the tree refers to the other one through the user's equations.
    bool dependsOnExpression(const Expression& other) const;
    /// True when evaluating the tree would lead round a circle of equations or constants.
    bool hasRecursion() const;

    /// The tree as text, in the notation of debugging. Constants that repeat constants would grow
    /// without bound, so very long texts end in "…".
    std::string description() const;

    /// Whether "*" is implied when this node follows a number, variable or ")".
    virtual bool canBePrecededByImpliedMultiplication() const { return true; }
    /// Whether "*" can be implied after this node.
    virtual bool canBeFollowedByImpliedMultiplication() const { return false; }
    /// Whether a following "-" is a subtraction rather than a negation.
    virtual bool canBeFollowedBySubtraction() const { return true; }
    /// An opener still waiting for its ")".
    virtual bool needsToBePairedWithARightParen() const { return false; }
    /// A grouping mark, which is no operand.
    virtual bool isMark() const { return false; }

    /// No node has more levels below it; what would be higher becomes an error.
    static constexpr std::uint32_t kMaximumHeight = 4000;

    // What nodes ask of one another; the public face above wraps these.

    virtual ComplexValue complexValue(ComplexEvaluation& evaluation) const;
    /// Appends the steps by which the node is evaluated in real arithmetic.
    virtual void describeToProgram(RealProgramBuilder& builder) const;
    virtual void addReferences(References& references) const;
    virtual void describe(DescriptionWriter& writer) const = 0;

    /// What the parser has to tell apart at every node, faster than the language's own type queries.
    enum class Kind : std::uint8_t { Leaf, OneInput, TwoInputs, ThreeInputs, Shared, RightParen, Comma };
    Kind kind() const { return m_kind; }
    /// Whether the node is a FunctionExpression.
    bool isFunction() const { return m_kind >= Kind::OneInput && m_kind <= Kind::Shared; }

    /// How a parent may read the node without a call.
    enum class Leaf : std::uint8_t { None, RealConstant, ComplexConstant, Variable };
    Leaf leaf() const { return m_leaf; }
    /// The value of a constant leaf, or of a tree whose value can never change.
    ComplexValue constant() const { return m_constant; }
    std::uint8_t variableIndex() const { return m_variableIndex; }
    std::uint32_t height() const { return m_height; }
    /// What evaluating the tree costs at least, in the units of EvaluationBudget.
    std::uint32_t cost() const { return m_cost; }
    bool isConstant() const { return m_leaf == Leaf::RealConstant || m_leaf == Leaf::ComplexConstant; }
    /// Known without a search, unlike the text.
    bool hasError() const { return m_hasError; }
    /// The first error text found in the tree; null when there is none.
    const std::string* errorText() const { return m_hasError ? findErrorText() : nullptr; }
    bool holdsRecursion() const { return m_holdsRecursion; }

protected:
    explicit Expression(Kind kind = Kind::Leaf) : m_kind(kind) {}

    /// Takes over what a parent inherits from an input: height, cost, errors, graphability. A missing
    /// input or a grouping mark in its place makes the node unreadable. It then has the constant value
    /// NaN, so that evaluation need not look for what is missing.
    void adoptTraits(const Expression* input);
    /// Forgets what was inherited, before new inputs are adopted. The node itself costs that much.
    void resetTraits(std::uint32_t ownCost = 1);
    void setConstant(ComplexValue value);

    /// Asked only of a node that has an error: the text in the first of its inputs that has one.
    virtual const std::string* findErrorText() const;
    /// The error text that an input gives its parent; null when it has none.
    static const std::string* errorTextOfInput(const Expression* input);

    // A line holds a node a token, so these are kept small.
    ComplexValue m_constant;
    std::uint32_t m_cost = 1;
    std::uint16_t m_height = 1;
    Kind m_kind;
    Leaf m_leaf = Leaf::None;
    std::uint8_t m_variableIndex = 0;
    bool m_isGraphable : 1 = true;
    bool m_hasError : 1 = false;
    bool m_holdsRecursion : 1 = false;
};

} // namespace velmora
