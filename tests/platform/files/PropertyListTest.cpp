#include "platform/files/PropertyList.h"

#include "platform/files/KeyedArchive.h"
#include "tests/platform/machine/DecimalCommaLocale.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>

namespace velmora {
namespace {

std::string xml(const std::string& content) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + content + "</plist>";
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

PropertyList nested(int depth) {
    PropertyList list("innermost");
    for (int level = 0; level < depth; ++level) {
        list = level % 2 == 0 ? PropertyList(PropertyArray{list})
                              : PropertyList(PropertyDictionary{{"key", list}});
    }
    return list;
}

TEST(PropertyList, survivesTheBinaryForm) {
    using Limits = std::numeric_limits<std::int64_t>;
    // clang-format off
    const PropertyList lists[] = {
        true, false, 0, -1, 255, 65536, Limits::max(), Limits::min(), 0.5,
        "", "plain", "θ π √ – 1,5", "beyond sixteen bits: 𝜃😀", std::string(300, 'a'),
        PropertyData{}, PropertyData{0, 255, 10}, PropertyArray{}, PropertyDictionary{}, PropertyList(),
        PropertyArray{1, PropertyList(), "1", 1.0, true},
        PropertyDictionary{{"", 1}, {"θ", PropertyArray{PropertyDictionary{{"a", "b"}}}}},
        PropertyDictionary{{"none", PropertyList()}}, PropertyArray(1000, "the same text"),
        PropertyArray(1000, PropertyList(PropertyArray{1, 2})), nested(kMaximumPropertyListDepth),
    };
    // clang-format on
    for (const PropertyList& list : lists) {
        EXPECT_EQ(readPropertyList(binaryPropertyList(list)), list) << "row " << &list - lists;
    }
}

TEST(PropertyList, keepsEveryBitOfADouble) {
    using Limits = std::numeric_limits<double>;
    // All in one array: equal values are stored once, and 0.0 == -0.0.
    PropertyArray array{0.0, -0.0, 0.1, 1.0 / 3, 1.5, 1e-40, 16777217.0, 3.4028235e38, 1e39};
    for (const double extreme : {Limits::max(), Limits::min(), Limits::denorm_min(), Limits::infinity()}) {
        array.emplace_back(extreme);
        array.emplace_back(-extreme);
    }
    const auto list = readPropertyList(binaryPropertyList(array)).value();
    ASSERT_EQ(list.asArray()->size(), array.size());
    for (std::size_t row = 0; row < array.size(); ++row) {
        const double written = std::get<double>(array[row].value());
        const double read = std::get<double>(list.asArray()->at(row).value());
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(written)) << written;
    }
    const auto nothing = readPropertyList(binaryPropertyList(Limits::quiet_NaN()));
    EXPECT_TRUE(std::isnan(nothing->asDouble().value_or(0)));
}

TEST(PropertyList, replacesWhatTextCannotHold) {
    const std::pair<std::string, const char*> cases[] = {
        {std::string("a\0b", 3), "a\uFFFDb"},
        {"\xFF", "\uFFFD"},
        {"2\xCE", "2\uFFFD"},                   // a code point cut short
        {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"}, // a lone surrogate
    };
    for (const auto& [text, read] : cases) {
        EXPECT_EQ(readPropertyList(binaryPropertyList(text)), PropertyList(read));
        EXPECT_EQ(readPropertyList(binaryPropertyList(PropertyDictionary{{text, 1}})),
                  PropertyList(PropertyDictionary{{read, 1}}));
    }
}

TEST(PropertyList, readsXml) {
    using Limits = std::numeric_limits<std::int64_t>;
    // clang-format off
    const std::pair<const char*, PropertyList> cases[] = {
        {"<string>m=1|metres#m++0</string>", "m=1|metres#m++0"}, {"<string></string>", ""}, {"<string/>", ""},
        {"<string> a &lt;&amp;&gt; &quot;b&quot; θ </string>", " a <&> \"b\" θ "},
        {"<integer>-42</integer>", -42}, {"<integer>9223372036854775807</integer>", Limits::max()},
        {"<integer>-9223372036854775808</integer>", Limits::min()},
        {"<integer>18446744073709551615</integer>", 18446744073709551615.0},
        {"<real>0.1</real>", 0.1}, {"<real>-2.5E-10</real>", -2.5e-10}, {"<true/>", true},
        {"<false/>", false},
        {"<data>AP8K</data>", PropertyData{0, 255, 10}}, {"<array/>", PropertyArray{}},
        {"<dict/>", PropertyDictionary{}},
        {"<array><string>sin(</string>\n  <dict><key>content</key><string>cos(</string></dict></array>",
         PropertyArray{"sin(", PropertyDictionary{{"content", "cos("}}}},
        {"<!-- <array> --><array><!-- </array> --><true/></array>", PropertyArray{true}},
    };
    // clang-format on
    for (const auto& [content, list] : cases) {
        EXPECT_EQ(readPropertyList(xml(content)), list) << content;
    }
    EXPECT_EQ(readPropertyList("\xEF\xBB\xBF\n" + xml("<true/>")), PropertyList(true));
}

TEST(PropertyList, refusesXmlThatIsNone) {
    // clang-format off
    const std::string texts[] = {
        "", " ", "plain text", "<", "<plist>", xml(""), xml("<array>"), xml("<unknown/>"),
        xml("<array><string>a</array>"), xml("<dict><string>no key</string></dict>"),
        xml("<string>\xFF</string>"),
        xml(repeated("<array>", kMaximumPropertyListDepth + 1)),
        xml(repeated("<array><!-- </array> -->", kMaximumPropertyListDepth + 1)),
        repeated("<dict><key>k</key>", 300'000), std::string(200'000, ' '),
    };
    // clang-format on
    for (const std::string& text : texts) {
        EXPECT_EQ(readPropertyList(text), std::nullopt) << text.substr(0, 100);
    }
}

TEST(PropertyList, doesNotDependOnTheLocale) {
    const DecimalCommaLocale locale;
    EXPECT_EQ(readPropertyList(xml("<real>2.75</real>")), PropertyList(2.75));
    EXPECT_EQ(std::strtod("1,5", nullptr), 1.5) << "the locale in force must come back";
}

TEST(KeyedArchive, tellsAbsentFromZeroAndFromOtherTypes) {
    KeyedArchiver archiver;
    archiver.encode("zero", 0);
    archiver.encode("off", false);
    archiver.encode("empty", "");
    archiver.encode("half", 0.25);
    archiver.encode("half", 0.5);
    archiver.encode("none", PropertyList());
    archiver.encode("list", PropertyArray{1, 2});
    const auto read = readPropertyList(binaryPropertyList(archiver.propertyList()));
    ASSERT_TRUE(read);
    const KeyedUnarchiver unarchiver(*read);
    EXPECT_EQ(unarchiver.integer("zero"), 0);
    EXPECT_EQ(unarchiver.number("zero"), 0.0);
    EXPECT_EQ(unarchiver.boolean("off"), false);
    EXPECT_EQ(unarchiver.text("empty"), "");
    EXPECT_EQ(unarchiver.number("half"), 0.5); // the later one
    EXPECT_EQ(unarchiver.array("list")->size(), 2U);
    EXPECT_FALSE(unarchiver.boolean("zero") || unarchiver.integer("half") || unarchiver.number("empty"));
    EXPECT_FALSE(unarchiver.array("half") || unarchiver.text("off") || unarchiver.integer("absent"));
    EXPECT_FALSE(unarchiver.containsValueForKey("none") || unarchiver.containsValueForKey("absent"));
}

} // namespace
} // namespace velmora
