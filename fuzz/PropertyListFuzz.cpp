#include "fuzz/FuzzTarget.h"
#include "platform/files/PropertyList.h"

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <variant>

using namespace velmora;

namespace {

// Not ==, for which a NaN in the file would differ from itself.
bool isSame(const PropertyList& a, const PropertyList& b) {
    if (a.value().index() != b.value().index()) {
        return false;
    }
    if (const auto* number = std::get_if<double>(&a.value())) {
        const double other = std::get<double>(b.value());
        return std::isnan(*number) ? std::isnan(other)
                                   : *number == other && std::signbit(*number) == std::signbit(other);
    }
    if (const PropertyArray* array = a.asArray()) {
        const PropertyArray& other = *b.asArray();
        if (array->size() != other.size()) {
            return false;
        }
        for (std::size_t i = 0; i < array->size(); ++i) {
            if (!isSame((*array)[i], other[i])) {
                return false;
            }
        }
        return true;
    }
    if (const PropertyDictionary* dictionary = a.asDictionary()) {
        const PropertyDictionary& other = *b.asDictionary();
        if (dictionary->size() != other.size()) {
            return false;
        }
        for (auto left = dictionary->begin(), right = other.begin(); left != dictionary->end();
             ++left, ++right) {
            if (left->first != right->first || !isSame(left->second, right->second)) {
                return false;
            }
        }
        return true;
    }
    return a == b;
}

std::string xmlDocument(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content + "\n</plist>\n";
}

} // namespace

// Whatever can be read can be written, and reads back as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::optional<PropertyList> list = readPropertyList(bytes);
    if (!list) {
        return 0;
    }
    const std::optional<PropertyList> again = readPropertyList(binaryPropertyList(*list));
    if (!again || !isSame(*list, *again)) {
        std::cerr << "the list changed on its way through the binary form\n";
        std::abort();
    }
    return 0;
}

std::vector<std::string> seedCorpus() {
    const PropertyList state = PropertyDictionary{
        {"angleMode", 1},
        {"displayDigits", std::int64_t{5}},
        {"history", PropertyArray{"sin(", "x", ")", "θ", ""}},
        {"nested", PropertyArray{PropertyArray{PropertyDictionary{{"k", 2.5}}}}},
        {"picture", PropertyData{0, 1, 254, 255}},
        {"soundIsOn", true},
        {"xMin", -0.1},
    };
    const PropertyData binary = binaryPropertyList(state);
    return {
        std::string(binary.begin(), binary.end()),
        xmlDocument("<dict><key>title</key><string>Area &amp; "
                    "volume</string><key>count</key><integer>-3</integer></dict>"),
        xmlDocument(
            "<array><real>6.62607015e-34</real><real>nan</real><true/><false/><data>AAEC/w==</data></array>"),
        xmlDocument("<array><array><array/></array><dict/></array>"),
        xmlDocument("<date>2001-01-01T00:00:00Z</date>"),
        "",
    };
}

std::vector<std::string> fuzzDictionary() {
    return {
        "bplist00",
        "<array>",
        "</array>",
        "<dict>",
        "</dict>",
        "<key>",
        "</key>",
        "<string>",
        "</string>",
        "<integer>",
        "</integer>",
        "<real>",
        "</real>",
        "<true/>",
        "<data>",
        "</data>",
        "<date>",
        "</date>",
        "<![CDATA[",
        "]]>",
        "<!--",
        "-->",
        "&#x0;",
        "&lt;",
        "inf",
        "1e400",
        "0x7fffffffffffffff",
        "-9223372036854775808",
        "18446744073709551615",
    };
}
