#pragma once

#include "engine/tree/Evaluation.h"
#include "engine/tree/Expression.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace velmora {

struct BivarRow;
struct UnivarRow;
enum class BivarType : unsigned char;

/// A tree in real arithmetic, flattened into a list of steps over a stack: the fast way to evaluate one
/// line at very many points. It gives up as soon as a value leaves the reals; then the tree itself is
/// evaluated. Where both have a value it is the same to the last bit.
class RealProgram {
public:
    explicit RealProgram(const Expression& tree);

    /// Frees out of line what few evaluations need, so that the others stay short.
    struct GeneralEvaluationDeleter {
        [[gnu::noinline]] void operator()(GeneralEvaluation* general) const;
    };

    /// One evaluation: the variables by type, and whether a value had to leave the reals.
    struct Run {
        Run(double x, double y, double none, bool two, EvaluationBudget& within)
            : variable{x, y, none}, areTwo(two), budget(within) {}

        std::array<double, 3> variable;
        bool areTwo;
        bool leftReals = false;
        EvaluationBudget& budget;
        std::unique_ptr<GeneralEvaluation, GeneralEvaluationDeleter>
            general; ///< made for the first node without a step of its own
    };

    double value(Run& run) const;

private:
    friend class RealProgramBuilder;

    enum class Operation : std::uint8_t {
        PushConstant,
        PushVariable,
        Add,
        AddConstant,
        AddVariable,
        Subtract,
        SubtractConstant,
        SubtractVariable,
        Multiply,
        MultiplyConstant,
        MultiplyVariable,
        Divide,
        DivideConstant,
        DivideVariable,
        Square,
        Cube,
        Negate,
        Function,         ///< a real rule that holds everywhere and knows no angle
        FunctionOfAngle,  ///< one that takes an angle and holds everywhere
        FunctionOnDomain, ///< one that knows no angle
        OneInput,         ///< any other function of one input
        TwoInputs,        ///< a function of two inputs
        OtherNode,        ///< a node without a step of its own
    };

    struct Step {
        explicit Step(Operation what, double value = 0) : operation(what), constant(value) {}
        Step(Operation what, double (*rule)(double)) : operation(what), function(rule) {}
        Step(Operation what, const UnivarRow& row) : operation(what), univar(&row) {}
        Step(Operation what, const BivarRow& row) : operation(what), bivar(&row) {}
        Step(Operation what, const Expression& tree) : operation(what), node(&tree) {}
        static Step ofVariable(Operation what, std::uint8_t index) {
            Step step(what);
            step.variable = index;
            return step;
        }

        Operation operation;
        std::uint8_t variable = 0;
        // Which one holds follows from the operation; the steps of a curve should share few cache lines.
        union {
            double constant;
            double (*function)(double);
            const UnivarRow* univar;
            const BivarRow* bivar;
            const Expression* node;
        };
    };

    double valueOnStack(Run& run, double* stack) const;
    // Out of line, so that the loop over the steps stays small.
    [[gnu::noinline]] double valueOnLargeStack(Run& run) const;
    [[gnu::noinline]] static double valueOfOneInput(const UnivarRow& row, double a, Run& run);
    [[gnu::noinline]] static double valueOfTwoInputs(const BivarRow& row, double a, double b, Run& run);
    [[gnu::noinline]] static double valueOfNode(const Expression& node, Run& run);

    std::vector<Step> m_steps;
    std::size_t m_stackDepth = 0;
};

/// Gathers the steps of a tree; its nodes describe themselves to it.
class RealProgramBuilder {
public:
    explicit RealProgramBuilder(RealProgram& program) : m_program(program) {}

    void append(const Expression& node);
    /// Applies an operation to what was appended last, on the left, and a node on the right.
    void appendOperation(BivarType type, const BivarRow& row, const Expression& right);
    /// Applies a square or cube root written with a fixed degree; false, and nothing done, for another
    /// degree.
    bool appendRoot(const Expression& degree, const Expression& radicand);
    /// Applies a function to what was appended last.
    void appendFunction(const UnivarRow& row);
    /// Has the node evaluate itself.
    void appendOtherNode(const Expression& node);

private:
    using Operation = RealProgram::Operation;

    void push(RealProgram::Step step);
    bool appendArithmeticWithLeaf(BivarType type, const Expression& right);

    RealProgram& m_program;
    std::size_t m_depth = 0;
};

} // namespace velmora
