// Bytes that a damaged or a hostile file may hold. Most rows check that reading neither crashes nor
// exhausts memory or stack, which the sanitizers watch.

#include "platform/files/PropertyList.h"
#include "platform/files/PropertyListCheck.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace velmora {
namespace {

/// A binary list put together by hand: objects with one-byte references, the first one on top.
std::string binary(const std::vector<std::string>& objects, std::uint64_t top = 0) {
    const auto bigEndian = [](std::uint64_t value, int size) {
        std::string text;
        for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
            text += static_cast<char>(value >> shift & 0xFF);
        }
        return text;
    };
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += bigEndian(bytes.size(), 2);
        bytes += object;
    }
    return bytes + offsets + std::string(6, '\0') + '\x02' + '\x01' + bigEndian(objects.size(), 8) +
           bigEndian(top, 8) + bigEndian(bytes.size(), 8);
}

/// An array or a dictionary whose references stand in the text.
std::string container(char marker, const std::string& references) {
    return marker + std::string("\x10", 1) + static_cast<char>(references.size()) + references;
}

PropertyData smallList() {
    const PropertyArray inner{true, "π", PropertyData{1, 2, 3}};
    return binaryPropertyList(
        PropertyDictionary{{"number", 0.1}, {"θ", -5}, {"text", "y1(x)="}, {"list", inner}});
}

TEST(DamagedPropertyList, refusesEveryTruncationAndSurvivesEveryFlippedBit) {
    const PropertyData whole = smallList();
    const std::optional<PropertyList> sound = readPropertyList(whole);
    int changed = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        const PropertyData cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at));
        EXPECT_EQ(readPropertyList(cut), std::nullopt) << at;
        for (unsigned bit = 0; bit < 8; ++bit) {
            PropertyData flipped = whole;
            flipped[at] ^= static_cast<std::uint8_t>(1U << bit);
            changed += readPropertyList(flipped) != sound ? 1 : 0;
        }
    }
    EXPECT_GT(changed, 0);
}

TEST(DamagedPropertyList, refusesUnsoundObjects) {
    const std::pair<const char*, std::string> cases[] = {
        {"no objects", binary({})},
        {"top object out of range", binary({"\x09"}, 1)},
        {"top object beyond 63 bits", binary({"\x09"}, ~std::uint64_t{0})},
        {"an array that holds itself", binary({"\xA1" + std::string(1, '\0')})},
        {"a dictionary that holds itself", binary({"\xD1\x01" + std::string(1, '\0'), "\x51k"})},
        {"a circle of three", binary({"\xA1\x01", "\xA1\x02", "\xA1" + std::string(1, '\0')})},
        {"a reference out of range", binary({"\xA1\x05"})},
        {"a key that is a number", binary({"\xD1\x01\x01", "\x10\x07"})},
        {"a key that is an array", binary({"\xD1\x01\x01", "\xA0"})},
        {"a text longer than the file", binary({"\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})},
        {"an array longer than the file", binary({"\xAF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})},
        {"a dictionary whose length overflows", binary({"\xDF\x13\x80" + std::string(7, '\0')})},
        {"data longer than the file", binary({"\x4F\x12\xFF\xFF\xFF\xFF"})},
        {"a length that is no number", binary({"\x5F\x51\x61"})},
        {"a length of 16 bytes", binary({"\x5F\x14" + std::string(16, '\0')})},
        {"a real of 16 bytes", binary({"\x24" + std::string(16, '\0')})},
        {"an unknown kind", binary({"\x71\x61"})},
        {"a fill byte", binary({"\x0F"})},
        {"bytes above 7F in a plain text", binary({"\x51\xE9"})},
        {"U+0000 in a text", binary({"\x51" + std::string(1, '\0')})},
        {"a lone high surrogate", binary({"\x61\xD8" + std::string(1, '\0')})},
        {"a lone low surrogate", binary({"\x61\xDC" + std::string(1, '\0')})},
    };
    for (const auto& [what, bytes] : cases) {
        EXPECT_EQ(readPropertyList(bytes), std::nullopt) << what;
    }
}

/// Each object is a container that holds the next that many times; the last is a leaf.
std::string chain(int depth, std::size_t references = 1) {
    std::vector<std::string> objects;
    for (int level = 0; level < depth; ++level) {
        objects.push_back(container('\xAF', std::string(references, static_cast<char>(level + 1))));
    }
    objects.emplace_back("\x09");
    return binary(objects);
}

TEST(DamagedPropertyList, limitsNestingAlsoThroughASharedContainer) {
    EXPECT_TRUE(readPropertyList(chain(kMaximumPropertyListDepth)));
    EXPECT_EQ(readPropertyList(chain(kMaximumPropertyListDepth + 1)), std::nullopt);
    EXPECT_EQ(readPropertyList(chain(250)), std::nullopt);
    // The shared chain is first met high up, where it is not too deep, and then again at the bottom.
    std::vector<std::string> objects{container('\xAF', "\x01\x28")};
    for (int level = 1; level < 79; ++level) {
        objects.push_back(container('\xAF', std::string(1, static_cast<char>(level + 1))));
    }
    objects.emplace_back("\x09");
    EXPECT_FALSE(isSoundBinaryPropertyList(binary(objects)));
    objects[0] = container('\xAF', "\x28\x01");
    EXPECT_FALSE(isSoundBinaryPropertyList(binary(objects)));
}

TEST(DamagedPropertyList, limitsWhatSharedReferencesUnfoldInto) {
    EXPECT_TRUE(readPropertyList(chain(10, 2))) << "1024 values are harmless";
    EXPECT_EQ(readPropertyList(chain(40, 2)), std::nullopt) << "a million million are not";
    EXPECT_EQ(readPropertyList(chain(60, 100)), std::nullopt);

    // Few values, but each a text of 60,000 characters.
    EXPECT_EQ(readPropertyList(binary({container('\xAF', std::string(100, '\x01')),
                                       container('\xAF', std::string(100, '\x02')),
                                       "\x5F\x11\xEA\x60" + std::string(60'000, 'a')})),
              std::nullopt);
}

TEST(DamagedPropertyList, boundsXmlNestingWhateverHidesIt) {
    // The library crashes on what is nested a million deep, also when the text proves ill-formed later.
    struct NestingCase {
        std::string start;
        std::string repeated;
        bool within;
    };
    // clang-format off
    const NestingCase cases[] = {
        {"", "<array>", false}, {"", "<dict ><key>k</key>", false}, {"", "<array></array>", true},
        {"", "<array/><dict />", true}, {"", "<!-- <array></array> -->", true},
        {"", "<!DOCTYPE plist PUBLIC \"-//a//b\" \"c\"><dict></dict>", true},
        {"", "<array><!-- </array> -->", false}, {"", "<array><![CDATA[</array>]]>", false},
        {"", "<array><?x </array>?>", false},
        {"<!--", "<array>", false},                     // a comment without an end
        {"<array '>", "<array>", false},                // a quote without an end
        {"", "<array a='></array>'>", false},           // whether or not the quote hides the end
        {"<array '><!-- '>", "<array></array>", true},  // closes what it has opened itself
        {"</array></array></array>", "<array>", false}, // closing ahead earns nothing
        {"", "<array <array ", false},                  // tags without an end
        {"", "<!--", true}, {"", "<string '", true},    // and without costing the square of the length
    };
    // clang-format on
    for (const NestingCase& c : cases) {
        SCOPED_TRACE(c.start + c.repeated);
        std::string text = "<plist version=\"1.0\">" + c.start;
        for (int level = 0; level < 200'000; ++level) {
            text += c.repeated;
        }
        EXPECT_EQ(isXmlNestingWithinLimit(text), c.within);
        if (!c.within) {
            EXPECT_EQ(readPropertyList(text), std::nullopt);
        }
    }
}

} // namespace
} // namespace velmora
