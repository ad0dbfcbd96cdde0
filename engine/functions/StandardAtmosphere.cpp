#include "engine/functions/StandardAtmosphere.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace velmora {

namespace {

struct Layer {
    double baseAltitude;    ///< m
    double upperBound;      ///< m, belonging to this layer
    double lapse;           ///< K/km
    double basePressure;    ///< Pa
    double baseTemperature; ///< °C
};

constexpr std::array kLayers{
    Layer{0, 11000, -6.5, 101325, 15},          //
    Layer{11000, 20000, 0, 22632.1, -56.5},     //
    Layer{20000, 32000, 1.0, 5474.89, -56.5},   //
    Layer{32000, 47000, 2.8, 868.019, -44.5},   //
    Layer{47000, 51000, 0, 110.906, -2.5},      //
    Layer{51000, 71000, -2.8, 66.9389, -2.5},   //
    Layer{71000, 84852, -2.0, 3.956642, -58.5}, //
};

constexpr double kLowest = -2000;
constexpr double kHighest = 84852;
constexpr double kKelvinAtZeroCelsius = 273.15;
constexpr double kMolarMass = 0.0289644;            ///< of air, kg/mol
constexpr double kGravityTimesMass = 0.28404373326; ///< 9.80665 m/s² · kMolarMass
constexpr double kGasConstant = 8.31432;            ///< of the model atmosphere, N·m/(mol·K)
constexpr double kKilogramsPerSlug = 14.5939029;
constexpr double kCubicMetresPerCubicFoot = 0.3048 * 0.3048 * 0.3048;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isCovered(double altitude) { return altitude >= kLowest && altitude <= kHighest; }

const Layer& layerAt(double altitude) {
    std::size_t index = 0;
    while (index + 1 < kLayers.size() && kLayers[index].upperBound < altitude) {
        ++index;
    }
    return kLayers[index];
}

} // namespace

double atmosphereTemperature(double altitude) {
    if (!isCovered(altitude)) {
        return kNaN;
    }
    double temperature = kLayers.front().baseTemperature;
    for (const Layer& layer : kLayers) {
        if (layer.upperBound >= altitude) {
            return temperature + (altitude - layer.baseAltitude) * layer.lapse / 1000;
        }
        temperature += (layer.upperBound - layer.baseAltitude) * layer.lapse / 1000;
    }
    return kNaN; // not reached: the last layer ends at the highest altitude covered
}

double atmospherePressure(double altitude) {
    if (!isCovered(altitude)) {
        return kNaN;
    }
    const Layer& layer = layerAt(altitude);
    const double height = altitude - layer.baseAltitude;
    const double lapse = layer.lapse / 1000;
    const double temperature = layer.baseTemperature + kKelvinAtZeroCelsius;
    if (lapse == 0) {
        return layer.basePressure * std::exp(-kGravityTimesMass * height / (kGasConstant * temperature));
    }
    return layer.basePressure *
           std::pow(temperature / (temperature + lapse * height), kGravityTimesMass / (kGasConstant * lapse));
}

double atmosphereDensity(double altitude) {
    const double kelvin = atmosphereTemperature(altitude) + kKelvinAtZeroCelsius;
    return atmospherePressure(altitude) * kMolarMass / (kelvin * kGasConstant);
}

double atmosphereDensityInSlugs(double altitude) {
    return atmosphereDensity(altitude) / kKilogramsPerSlug * kCubicMetresPerCubicFoot;
}

} // namespace velmora
