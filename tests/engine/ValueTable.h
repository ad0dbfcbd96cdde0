#pragma once

#include "engine/tree/BivarFunction.h"
#include "engine/tree/UnivarFunction.h"
#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/UlpDistance.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>

namespace velmora {

/// A function, its input and the value that it must give.
struct UnivarCase {
    UnivarType function;
    ComplexValue input;
    ComplexValue value;

    ComplexValue computed() const { return UnivarFunction(function).valueWithComplex(input); }
    friend std::ostream& operator<<(std::ostream& stream, const UnivarCase& c) {
        return stream << univarRow(c.function).token << c.input << ")";
    }
};

/// An operation, its inputs and the value that it must give.
struct BivarCase {
    BivarType function;
    ComplexValue a;
    ComplexValue b;
    ComplexValue value;

    ComplexValue computed() const { return BivarFunction(function).valueWithComplex(a, b); }
    friend std::ostream& operator<<(std::ostream& stream, const BivarCase& c) {
        return stream << c.a << " " << bivarRow(c.function).name << " " << c.b;
    }
};

/// Every value lies within so many units of the last place of its reference, and none that is real carries a
/// minus zero, which would choose the other branch of the next function.
template <class Case, std::size_t count> void expectValues(const Case (&cases)[count], double ulps) {
    for (const Case& c : cases) {
        const ComplexValue value = c.computed();
        EXPECT_LE(ulpDistance(value, c.value), ulps) << c << " = " << value;
        EXPECT_FALSE(isReal(value) && std::signbit(value.imag())) << c;
    }
}

} // namespace velmora
