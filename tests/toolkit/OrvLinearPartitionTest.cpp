#include "toolkit/OrvLinearPartition.h"

#include "toolkit/LabelRecord.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace velmora {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct PartitionCase {
    const char* what;
    double length;
    std::vector<OrvLengthRange> members;
    OrvPartitionMargins margins;
    std::vector<OrvLengthPart> parts;
};

const PartitionCase kPartitionCases[] = {
    {"no members", 100, {}, {5, 5, 5}, {}},
    {"one takes all", 100, {{}}, {}, {{0, 100}}},
    {"equal shares", 90, {{}, {}, {}}, {}, {{0, 30}, {30, 30}, {60, 30}}},
    {"margins", 100, {{}, {}}, {10, 20, 30}, {{10, 20}, {50, 20}}},
    {"what a full one leaves goes to the others", 100, {{0, 10}, {}, {}}, {}, {{0, 10}, {10, 45}, {55, 45}}},
    {"one after another fills up", 100, {{0, 10}, {0, 30}, {}}, {}, {{0, 10}, {10, 30}, {40, 60}}},
    {"shares come on top of the minima", 100, {{50}, {10}}, {}, {{0, 70}, {70, 30}}},
    {"fixed lengths", 100, {{30, 30}, {}, {20, 20}}, {}, {{0, 30}, {30, 50}, {80, 20}}},
    {"all full: the rest stays empty", 100, {{0, 10}, {0, 20}}, {0, 5, 0}, {{0, 10}, {15, 20}}},
    {"the minima just fit", 60, {{20}, {40}}, {}, {{0, 20}, {20, 40}}},
    {"the minima do not fit", 30, {{20}, {40}}, {}, {{0, 10}, {10, 20}}},
    {"nothing is left of the margins", 20, {{20}, {40}}, {10, 10, 0}, {{10, 0}, {20, 0}}},
    {"the margins do not fit", 10, {{20}, {40}}, {10, 5, 5}, {{5, 0}, {7.5, 0}}},
    {"no length", 0, {{20}, {}}, {10, 5, 5}, {{0, 0}, {0, 0}}},
    {"a negative length", -50, {{20}}, {}, {{0, 0}}},
    {"an undefined length", kNotANumber, {{}}, {}, {{0, 0}}},
    {"a maximum below the minimum", 100, {{30, 10}, {}}, {}, {{0, 30}, {30, 70}}},
    {"undefined bounds", 100, {{kNotANumber, kNotANumber}, {-5}}, {kNotANumber, -1, 0}, {{0, 0}, {0, 100}}},
};

TEST(OrvLinearPartition, dividesALength) {
    for (const PartitionCase& c : kPartitionCases) {
        SCOPED_TRACE(c.what);
        const auto parts = linearPartition(c.length, c.members, c.margins);
        ASSERT_EQ(parts.size(), c.parts.size());
        for (std::size_t index = 0; index < parts.size(); ++index) {
            EXPECT_DOUBLE_EQ(parts[index].start, c.parts[index].start) << index;
            EXPECT_DOUBLE_EQ(parts[index].length, c.parts[index].length) << index;
        }
    }
}

TEST(OrvLinearPartition, keepsItsPromisesForAnyMembers) {
    std::mt19937 random(7);
    const auto draw = [&](int limit) {
        return static_cast<double>(random() % static_cast<unsigned>(limit)) / 3;
    };
    for (int round = 0; round < 5'000; ++round) {
        std::vector<OrvLengthRange> members(1 + random() % 6);
        double minima = 0;
        double maxima = 0;
        for (OrvLengthRange& member : members) {
            member.minimum = draw(60);
            member.maximum = random() % 3 == 0 ? kInfinity : member.minimum + draw(90);
            minima += member.minimum;
            maxima += member.maximum;
        }
        const double length = draw(900);
        const auto parts = linearPartition(length, members);
        double total = 0;
        for (std::size_t index = 0; index < parts.size(); ++index) {
            EXPECT_NEAR(parts[index].start, total, 1e-9);
            EXPECT_LE(parts[index].length, members[index].maximum + 1e-9);
            if (minima <= length) {
                EXPECT_GE(parts[index].length, members[index].minimum - 1e-9);
            }
            total += parts[index].length;
        }
        EXPECT_NEAR(total, std::min(length, maxima), 1e-9) << "no space is wasted while any member can grow";
    }
}

TEST(LabelRecord, shrinksItsFontToTheFrame) {
    struct FontCase {
        const char* text; // in the plain face each code point is 0.6 of the size wide
        double frameWidth;
        std::optional<double> minimum;
        double size;
    };
    const FontCase cases[] = {
        {"12345", 60, 10, 20},      // just fits
        {"1234567890", 60, 5, 10},  // half as wide as needed
        {"θπθπθπθπθπ", 60, 5, 10},  // counted by code point
        {"1234567890", 60, 15, 15}, // not below the minimum
        {"1234567890", 60, std::nullopt, 20},
        {"1234567890", 60, 30, 20}, // a minimum above the size never enlarges
        {"1234567890", -5, 4, 4},
        {"", 0, 5, 20},
    };
    for (const FontCase& c : cases) {
        LabelRecord label;
        label.text = c.text;
        label.frame.width = c.frameWidth;
        label.fontSize = 20;
        label.minimumFontSize = c.minimum;
        EXPECT_DOUBLE_EQ(fittedFontSize(label), c.size) << c.text << " in " << c.frameWidth;
    }
}

} // namespace
} // namespace velmora
