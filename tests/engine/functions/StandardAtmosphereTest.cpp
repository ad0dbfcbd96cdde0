#include "engine/functions/StandardAtmosphere.h"

#include "engine/functions/SpeedOfSound.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

TEST(StandardAtmosphere, agreesWithThePublishedTables) {
    struct Row {
        double altitude;
        double celsius;
        double pressure;
        double density;
    };
    // U.S. Standard Atmosphere, 1976, and ISO 2533 by geopotential altitude.
    // clang-format off
    const Row rows[] = {
        {-2000, 28, 127774, 1.4782}, {0, 15, 101325, 1.2250}, {5000, -17.5, 54019.9, 0.736116},
        {10000, -50, 26436.3, 0.412707}, {11000, -56.5, 22632.1, 0.363918}, {15000, -56.5, 12044.6, 0.193674},
        {20000, -56.5, 5474.89, 0.0880349}, {30000, -46.5, 1171.87, 0.0180119},
        {32000, -44.5, 868.019, 0.0132250}, {47000, -2.5, 110.906, 0.00142753},
        {51000, -2.5, 66.9389, 0.000861605}, {71000, -58.5, 3.95642, 0.0000642110},
        {84852, -86.204, 0.37338, 0.0000069578},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_NEAR(atmosphereTemperature(row.altitude), row.celsius, 1e-9) << row.altitude;
        EXPECT_NEAR(atmospherePressure(row.altitude) / row.pressure, 1, 3e-4) << row.altitude;
        EXPECT_NEAR(atmosphereDensity(row.altitude) / row.density, 1, 3e-4) << row.altitude;
    }
    EXPECT_EQ(atmospherePressure(0), 101325);
    EXPECT_EQ(atmosphereTemperature(11000), -56.5);
    EXPECT_NEAR(atmosphereDensityInSlugs(0), 0.0023769, 5e-8); // the usual sea-level value in British units
}

TEST(StandardAtmosphere, changesLayersAboveTheirUpperBounds) {
    // Each bound still belongs to the layer below it, so the published base pressure begins just above.
    // clang-format off
    const std::pair<double, double> bases[] = {{11000, 22632.1}, {20000, 5474.89}, {32000, 868.019},
                                               {47000, 110.906}, {51000, 66.9389}, {71000, 3.956642}};
    // clang-format on
    for (const auto& [bound, pressure] : bases) {
        const double above = std::nextafter(bound, 1e5);
        EXPECT_NEAR(atmospherePressure(above), pressure, 1e-9 * pressure) << bound;
        EXPECT_NE(atmospherePressure(bound), pressure) << bound;
        EXPECT_NEAR(atmosphereTemperature(above), atmosphereTemperature(bound), 1e-9) << bound;
    }
}

TEST(StandardAtmosphere, endsAtItsLimits) {
    for (const double outside : {-2000.1, 84852.1, 84853.0, std::nan(""), HUGE_VAL}) {
        for (const auto function :
             {atmosphereTemperature, atmospherePressure, atmosphereDensity, atmosphereDensityInSlugs}) {
            EXPECT_TRUE(std::isnan(function(outside))) << outside;
        }
    }
}

TEST(SpeedOfSound, agreesWithPublishedValues) {
    EXPECT_NEAR(speedOfSoundInAir(15), 340.294, 0.02); // sea level of the standard atmosphere
    EXPECT_NEAR(speedOfSoundInAir(-56.5), 295.07, 0.02);
}

} // namespace
} // namespace velmora
