#pragma once

namespace velmora {

// The 1976 standard atmosphere (U.S. Standard Atmosphere, 1976, NOAA-S/T 76-1562; below 32 km also ISO 2533)
// by altitude in metres. NaN outside −2000 to 84852 m.

/// Air temperature in °C.
double atmosphereTemperature(double altitude);
/// Air pressure in Pa.
double atmospherePressure(double altitude);
/// Air density in kg/m³.
double atmosphereDensity(double altitude);
/// Air density in slugs per cubic foot.
double atmosphereDensityInSlugs(double altitude);

} // namespace velmora
