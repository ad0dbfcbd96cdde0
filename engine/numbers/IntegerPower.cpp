#include "engine/numbers/IntegerPower.h"

namespace velmora {

namespace {

ComplexValue naturalPower(ComplexValue z, std::int64_t n) {
    if (n == 0) {
        return 1;
    }
    if (n == 1) {
        return z;
    }
    const ComplexValue w = naturalPower(z, n / 2);
    const ComplexValue square{w.real() * w.real() - w.imag() * w.imag(),
                              w.real() * w.imag() + w.real() * w.imag()};
    return n % 2 == 1 ? square * z : square;
}

} // namespace

ComplexValue integerPower(ComplexValue z, std::int32_t n) {
    const auto wide = std::int64_t{n}; // the smallest 32-bit number has no 32-bit negative
    if (n >= 0) {
        return naturalPower(z, wide);
    }
    const ComplexValue w = naturalPower(z, -wide);
    const double norm = w.real() * w.real() + w.imag() * w.imag();
    return {w.real() / norm, -w.imag() / norm};
}

} // namespace velmora
