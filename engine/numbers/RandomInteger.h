#pragma once

namespace velmora {

/// A random whole number from 0 to n − 1, where n is the magnitude of a rounded to the nearest integer,
/// halves away from zero; 0 when a rounds to 0. The numbers have 32 bits, so larger bounds do not give larger
/// numbers. NaN for NaN and infinite bounds.
double randomInteger(double a);

} // namespace velmora
