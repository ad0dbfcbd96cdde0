// Roots, intersections and extrema of an expression, for the trace line of the graph.

#include "engine/numbers/ShortNumber.h"
#include "engine/tree/Expression.h"
#include "engine/tree/Number.h"
#include "platform/text/Log.h"

#include <cmath>
#include <string>

namespace velmora {

namespace {

constexpr double kTouching = 1e-9; // how far apart two values may be where the halving ends
constexpr int kFlat = 0;
constexpr int kMinimum = 1;
constexpr int kMaximum = 2;
constexpr int kRising = 3;
constexpr int kFalling = 4;
constexpr int kUndetermined = 5;

std::string listed(double a, double b, double c) {
    return shortNumber(a) + ", " + shortNumber(b) + ", " + shortNumber(c);
}

bool isWithin(double value, double least, double greatest) { return value >= least && value <= greatest; }

/// The end of an interval without a double between its ends, of whose differences (other minus own) the
/// smaller one decides. Whole parts are compared and the sign counts: intended, so that the steep sides of
/// a pole, where both differences are large, are no crossing on one side only.
std::optional<double> closerEnd(double a, double differenceAtA, double b, double differenceAtB) {
    if (std::fabs(std::trunc(differenceAtA)) < std::fabs(std::trunc(differenceAtB))) {
        return differenceAtA < kTouching ? std::optional(a) : std::nullopt;
    }
    return differenceAtB < kTouching ? std::optional(b) : std::nullopt;
}

} // namespace

std::optional<double> Expression::zero(double a, double b) const {
    static const Number zeroExpression(ComplexValue(0));
    return intersectionWithExpression(zeroExpression, a, b);
}

std::optional<double> Expression::intersectionWithExpression(const Expression& other, double a,
                                                             double b) const {
    double fa = roundedRealValueWithVariableValue(a);
    double fb = roundedRealValueWithVariableValue(b);
    double ga = other.roundedRealValueWithVariableValue(a);
    double gb = other.roundedRealValueWithVariableValue(b);
    while (true) {
        if (std::isnan(fa) || std::isnan(fb) || std::isnan(ga) || std::isnan(gb)) {
            return std::nullopt;
        }
        if (fa == ga) {
            return a;
        }
        if (fb == gb) {
            return b;
        }
        if (std::signbit(fa - ga) == std::signbit(fb - gb)) {
            return std::nullopt;
        }
        const double middle = (a + b) * 0.5;
        if (middle == a || middle == b) {
            return closerEnd(a, ga - fa, b, gb - fb);
        }
        const double fm = roundedRealValueWithVariableValue(middle);
        const double gm = other.roundedRealValueWithVariableValue(middle);
        if (std::isnan(fm) || std::isnan(gm)) {
            return std::nullopt;
        }
        if (std::signbit(fm - gm) == std::signbit(fa - ga)) {
            a = middle;
            fa = fm;
            ga = gm;
        } else {
            b = middle;
            fb = fm;
            gb = gm;
        }
    }
}

int Expression::classifyMinMax(double left, double middle, double right) {
    if (left == middle && middle == right) {
        return kFlat;
    }
    if (left <= middle && middle <= right) {
        return kRising;
    }
    if (left >= middle && middle >= right) {
        return kFalling;
    }
    if (left > middle && middle < right) {
        return kMinimum;
    }
    return left < middle && middle > right ? kMaximum : kUndetermined;
}

std::optional<MinMaxReturn> Expression::investigateReversal(double a, double b, double c, double yMin,
                                                            double yMax, bool isMin) const {
    const double sigma = isMin ? 1 : -1;
    const auto f = [this](double x) { return roundedRealValueWithVariableValue(x); };
    while (true) {
        const double m1 = (a + b) * 0.5;
        const double m2 = (b + c) * 0.5;
        if (m1 == a || m1 == b) {
            return MinMaxReturn{m1, isMin, this};
        }
        if (m2 == b || m2 == c) {
            return MinMaxReturn{m2, isMin, this};
        }
        const double fm1 = f(m1);
        const double fb = f(b);
        const double fm2 = f(m2);
        const double fc = f(c);
        if (std::isnan(f(a)) || std::isnan(fm1) || std::isnan(fb) || std::isnan(fm2) || std::isnan(fc) ||
            !isWithin(fm1, yMin, yMax)) {
            return std::nullopt;
        }
        if (sigma * fb > sigma * fm1) {
            c = b;
            b = m1;
            continue;
        }
        if (!isWithin(fm2, yMin, yMax)) {
            return std::nullopt;
        }
        if (sigma * fm2 > sigma * fb) {
            a = m1;
            c = m2;
            continue;
        }
        if (!(sigma * fc > sigma * fm2)) {
            return std::nullopt;
        }
        a = b;
        b = m2;
    }
}

std::optional<MinMaxReturn> Expression::findMinMax(double lo, double hi, double yMin, double yMax, double x0,
                                                   double h) const {
    const auto f = [this](double x) { return roundedRealValueWithVariableValue(x); };
    const double left = f(x0 - h);
    const double centre = f(x0);
    const double right = f(x0 + h);
    if (!(h > 0) || std::isnan(left) || std::isnan(right)) {
        return std::nullopt;
    }
    bool searchesRight = isWithin(right, yMin, yMax);
    bool searchesLeft = isWithin(left, yMin, yMax);
    double trend = 0;
    switch (const int kind = classifyMinMax(left, centre, right)) {
    case kFlat:
        log("flat");
        return std::nullopt;
    case kMinimum:
    case kMaximum:
        log("reversal found: " + listed(x0 - h, x0, x0 + h));
        if (const auto found = investigateReversal(x0 - h, x0, x0 + h, yMin, yMax, kind == kMinimum)) {
            return found;
        }
        break;
    case kRising:
        trend = 1;
        break;
    case kFalling:
        trend = -1;
        break;
    default:
        log("NaN");
        return std::nullopt;
    }
    for (int i = 0; searchesRight || searchesLeft; ++i) {
        if (searchesRight) {
            const double a = x0 + i * h;
            const double b = a + h;
            const double c = b + h;
            const double fb = f(b);
            const double fc = f(c);
            if (std::isnan(fb) || std::isnan(fc)) {
                return std::nullopt;
            }
            if (!(trend * fc > trend * fb)) {
                log("lookup: reversal found: " + listed(a, b, c));
                searchesRight = false;
                if (const auto found = investigateReversal(a, b, c, yMin, yMax, trend == -1)) {
                    return found;
                }
            }
            searchesRight = searchesRight && c < hi;
        }
        if (searchesLeft) {
            const double a = x0 - i * h;
            const double b = a - h;
            const double c = b - h;
            const double fb = f(b);
            const double fc = f(c);
            if (std::isnan(fc) || std::isnan(fb)) {
                return std::nullopt;
            }
            if (!(trend * fc < trend * fb)) {
                log("lookDown reversal found: " + listed(c, b, a));
                searchesLeft = false;
                if (const auto found = investigateReversal(a, b, c, yMin, yMax, trend == 1)) {
                    return found;
                }
            }
            searchesLeft = searchesLeft && c > lo;
        }
    }
    return std::nullopt;
}

} // namespace velmora
