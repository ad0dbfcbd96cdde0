#pragma once

#include <cstdint>

namespace velmora {

/// Greatest common divisor of two whole numbers of any size and sign; never negative, gcd(0, 0) = 0.
/// NaN when an argument is further than 1e-8 from a whole number. Source: Euclid's algorithm.
double gcd(double a, double b);

/// Least common multiple; 0 when an argument is 0, NaN as for gcd. The sign is that of a·b: intended
/// behaviour.
double lcm(double a, double b);

/// Permutations: ways to arrange k of n things; 0 for k > n. Arguments that are not whole or below 0 are
/// answered by the gamma extension Γ(n + 1) / Γ(n − k + 1). Grows to infinity, never fails.
double perm(double n, double k);

/// Combinations: ways to choose k of n things, exactly while that is below 2^53; extended as
/// Γ(n + 1) / (Γ(k + 1)·Γ(n − k + 1)).
double comb(double n, double k);

// How many steps of arithmetic the above take for these arguments, roughly; at most some thousands.

std::int64_t gcdSteps(double a, double b);
std::int64_t permSteps(double n, double k);
std::int64_t combSteps(double n, double k);

/// Γ(a + 1), the factorial of any real number; NaN at the negative whole numbers, where it has poles.
double factorial(double a);

} // namespace velmora
