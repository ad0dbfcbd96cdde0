#pragma once

#include "engine/environment/AngleMode.h"
#include "engine/intervals/BivarIntervals.h"
#include "engine/intervals/DecoratedInterval.h"
#include "engine/intervals/UnivarIntervals.h"
#include "engine/tree/Expression.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace velmora {

/// A tree evaluated on boxes: encloses all its real values there and says how far it is defined and
/// continuous (after IEEE 1788-2015). Equations that the tree calls and the angle mode are those of the time
/// when the program was made. A tree too large to lay out flat, or one that leads round a circle, has unknown
/// values.
class IntervalProgram {
public:
    /// Whether the tree is a function of one variable, whatever its name, or of x and y.
    enum class Variables { One, Two };

    explicit IntervalProgram(const Expression& tree, Variables variables = Variables::One);

    /// The values for x in the interval; both ends are finite and in order. Allocates nothing.
    DecoratedInterval value(double xLowest, double xHighest) const;
    /// The values for x and y in a box.
    DecoratedInterval value(const DecoratedInterval& x, const DecoratedInterval& y) const;

private:
    friend class IntervalProgramBuilder;

    enum class Operation : std::uint8_t {
        PushConstant,
        PushSlot,  ///< a variable, or the argument of an equation that is called
        StoreSlot, ///< takes the argument of a call off the stack
        OneInput,
        TwoInputs,
        Square,
        Cube,
        Conditional, ///< of bound, first and second value; looks at the slot as its variable
    };

    struct Step {
        Operation operation;
        std::uint8_t slot = 0;
        DecoratedInterval constant{0, 0};
        const UnivarIntervalRow* univar = nullptr;
        BivarIntervalRule bivar = nullptr;
    };

    static constexpr std::size_t kStackDepth = 48;
    static constexpr std::size_t kSlots = 48;

    std::vector<Step> m_steps; ///< none where the values are unknown
    AngleMode m_angleMode;
};

} // namespace velmora
