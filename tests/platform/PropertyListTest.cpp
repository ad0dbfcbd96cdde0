#include "platform/PropertyList.h"

#include "tests/platform/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>

namespace velmora {
namespace {

std::string xml(const std::string& content) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + content + "</plist>";
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
    const PropertyList lists[] = {
        true,
        false,
        0,
        -1,
        255,
        65536,
        Limits::max(),
        Limits::min(),
        0.5,
        "",
        "plain",
        "θ π √ – 1,5",
        "beyond sixteen bits: 𝜃😀",
        std::string(300, 'a'),
        PropertyData{},
        PropertyData{0, 255, 10},
        PropertyArray{},
        PropertyDictionary{},
        PropertyList(),
        PropertyArray{1, PropertyList(), "1", 1.0, true},
        PropertyDictionary{
            {"", 1}, {"θ", PropertyArray{PropertyDictionary{{"a", "b"}}}}, {"none", PropertyList()}},
        PropertyArray(1000, "the same text"),
        PropertyArray(1000, PropertyList(PropertyArray{1, 2})),
        nested(kMaximumPropertyListDepth),
    };
    for (std::size_t row = 0; row < std::size(lists); ++row) {
        SCOPED_TRACE(row);
        EXPECT_EQ(readPropertyList(binaryPropertyList(lists[row])), lists[row]);
    }
}

TEST(PropertyList, keepsEveryBitOfADouble) {
    using Limits = std::numeric_limits<double>;
    // All in one array: equal values are stored once, and 0.0 == -0.0.
    const std::vector<double> values{0.0,
                                     -0.0,
                                     0.1,
                                     1.0 / 3,
                                     1.5,
                                     Limits::max(),
                                     Limits::min(),
                                     -Limits::min(),
                                     Limits::denorm_min(),
                                     1e-40,
                                     16777217.0,
                                     Limits::infinity(),
                                     3.4028235e38,
                                     1e39,
                                     -Limits::infinity()};
    PropertyArray array;
    for (const double value : values) {
        array.emplace_back(value);
    }
    array.emplace_back(Limits::quiet_NaN());
    const std::optional<PropertyList> read = readPropertyList(binaryPropertyList(array));
    ASSERT_TRUE(read && read->asArray() && read->asArray()->size() == array.size());
    for (std::size_t row = 0; row < values.size(); ++row) {
        const double* value = std::get_if<double>(&(*read->asArray())[row].value());
        ASSERT_TRUE(value) << row;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*value), std::bit_cast<std::uint64_t>(values[row])) << row;
    }
    EXPECT_TRUE(std::isnan(read->asArray()->back().asDouble().value_or(0)));
}

TEST(PropertyList, replacesWhatTextCannotHold) {
    struct TextCase {
        std::string text;
        const char* read;
    };
    const TextCase cases[] = {
        {std::string("a\0b", 3), "a\uFFFDb"},
        {"\xFF", "\uFFFD"},
        {"2\xCE", "2\uFFFD"},                   // a code point cut short
        {"\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"}, // a lone surrogate
    };
    for (const TextCase& c : cases) {
        SCOPED_TRACE(c.read);
        EXPECT_EQ(readPropertyList(binaryPropertyList(c.text)), PropertyList(c.read));
        EXPECT_EQ(readPropertyList(binaryPropertyList(PropertyDictionary{{c.text, 1}})),
                  PropertyList(PropertyDictionary{{c.read, 1}}));
    }
}

TEST(PropertyList, readsXml) {
    struct XmlCase {
        std::string content;
        PropertyList list;
    };
    const XmlCase cases[] = {
        {"<string>m=1|metres#m++0</string>", "m=1|metres#m++0"},
        {"<string> a &lt;&amp;&gt; &quot;b&quot; θ </string>", " a <&> \"b\" θ "},
        {"<string></string>", ""},
        {"<string/>", ""},
        {"<integer>-42</integer>", -42},
        {"<integer>9223372036854775807</integer>", std::numeric_limits<std::int64_t>::max()},
        {"<integer>-9223372036854775808</integer>", std::numeric_limits<std::int64_t>::min()},
        {"<integer>18446744073709551615</integer>", 18446744073709551615.0},
        {"<real>0.1</real>", 0.1},
        {"<real>-2.5E-10</real>", -2.5e-10},
        {"<true/>", true},
        {"<false/>", false},
        {"<data>AP8K</data>", PropertyData{0, 255, 10}},
        {"<array/>", PropertyArray{}},
        {"<dict/>", PropertyDictionary{}},
        {"<array><string>sin(</string>\n  <dict><key>content</key><string>cos(</string></dict></array>",
         PropertyArray{"sin(", PropertyDictionary{{"content", "cos("}}}},
        {"<!-- <array> --><array><!-- </array> --><true/></array>", PropertyArray{true}},
    };
    for (const XmlCase& c : cases) {
        SCOPED_TRACE(c.content);
        EXPECT_EQ(readPropertyList(xml(c.content)), c.list);
    }
    EXPECT_EQ(readPropertyList("\xEF\xBB\xBF\n" + xml("<true/>")), PropertyList(true));
}

TEST(PropertyList, refusesXmlThatIsNone) {
    const std::string deep(200'000, ' ');
    std::string arrays;
    std::string hidden;
    for (int level = 0; level <= kMaximumPropertyListDepth; ++level) {
        arrays += "<array>";
        hidden += "<array><!-- </array> -->";
    }
    std::string endless;
    for (int level = 0; level < 300'000; ++level) {
        endless += "<dict><key>k</key>";
    }
    const std::string texts[] = {"",
                                 " ",
                                 "plain text",
                                 "<",
                                 "<plist>",
                                 xml(""),
                                 xml("<array>"),
                                 xml("<unknown/>"),
                                 xml("<array><string>a</array>"),
                                 xml("<dict><string>no key</string></dict>"),
                                 xml(arrays),
                                 xml(hidden),
                                 endless,
                                 xml("<string>\xFF</string>"),
                                 deep};
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 100));
        EXPECT_EQ(readPropertyList(text), std::nullopt);
    }
}

TEST(PropertyList, doesNotDependOnTheLocale) {
    const DecimalCommaLocale locale;
    if (!locale.inForce()) {
        GTEST_SKIP() << "this machine offers no locale with a decimal comma";
    }
    EXPECT_EQ(readPropertyList(xml("<real>2.75</real>")), PropertyList(2.75));
    EXPECT_EQ(std::strtod("1,5", nullptr), 1.5) << "the locale in force must come back";
}

} // namespace
} // namespace velmora
