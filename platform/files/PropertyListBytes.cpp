#include "platform/files/PropertyList.h"

#include "platform/files/PropertyListCheck.h"
#include "platform/text/Log.h"
#include "platform/text/Utf8.h"

#include <plist/plist.h>

#include <algorithm>
#include <limits>
#include <locale.h>
#include <memory>
#include <type_traits>

namespace velmora {

namespace {

struct NodeDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

/// The library reads numbers with the functions of the C locale in force, which after the toolkit has
/// started may expect a decimal comma.
class PlainLocaleScope {
public:
    PlainLocaleScope() : m_former(uselocale(plainLocale())) {}
    ~PlainLocaleScope() { uselocale(m_former); }
    PlainLocaleScope(const PlainLocaleScope&) = delete;
    PlainLocaleScope& operator=(const PlainLocaleScope&) = delete;

private:
    static locale_t plainLocale() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_former;
};

/// How deep containers nest; stops counting just past the limit, so it never recurses further.
int containerDepth(const PropertyList& list, int limit = kMaximumPropertyListDepth + 1) {
    if (limit == 0) {
        return 0;
    }
    int deepest = 0;
    if (const PropertyArray* array = list.asArray()) {
        for (const PropertyList& element : *array) {
            deepest = std::max(deepest, containerDepth(element, limit - 1));
        }
        return deepest + 1;
    }
    if (const PropertyDictionary* dictionary = list.asDictionary()) {
        for (const auto& [key, element] : *dictionary) {
            deepest = std::max(deepest, containerDepth(element, limit - 1));
        }
        return deepest + 1;
    }
    return 0;
}

plist_t makeNode(const PropertyList& list) {
    return std::visit(
        [](const auto& value) -> plist_t {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::monostate>) {
                return plist_new_uid(0); // the format's own empty value cannot be written by the library
            } else if constexpr (std::is_same_v<Value, bool>) {
                return plist_new_bool(value ? 1 : 0);
            } else if constexpr (std::is_same_v<Value, std::int64_t>) {
                return plist_new_uint(static_cast<std::uint64_t>(value));
            } else if constexpr (std::is_same_v<Value, double>) {
                return plist_new_real(value);
            } else if constexpr (std::is_same_v<Value, std::string>) {
                return plist_new_string(textAsWritten(value).c_str());
            } else if constexpr (std::is_same_v<Value, PropertyData>) {
                return plist_new_data(reinterpret_cast<const char*>(value.data()), value.size());
            } else if constexpr (std::is_same_v<Value, PropertyArray>) {
                plist_t node = plist_new_array();
                for (const PropertyList& element : value) {
                    plist_array_append_item(node, makeNode(element));
                }
                return node;
            } else {
                plist_t node = plist_new_dict();
                for (const auto& [key, element] : value) {
                    plist_dict_set_item(node, textAsWritten(key).c_str(), makeNode(element));
                }
                return node;
            }
        },
        list.value());
}

/// The library keeps whole numbers as 64 bits without sign and remembers apart whether they have one.
PropertyList wholeNumber(plist_t node) {
    std::uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    const auto value = static_cast<std::int64_t>(bits);
    if (value >= 0) {
        return value;
    }
    const Node negative(plist_new_uint(bits));
    return plist_compare_node_value(node, negative.get()) ? PropertyList(value)
                                                          : PropertyList(static_cast<double>(bits));
}

std::optional<PropertyList> fromNode(plist_t node, int depth);

std::optional<PropertyList> fromArray(plist_t node, int depth) {
    PropertyArray array;
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&free)> iterator(rawIterator, &free);
    plist_t item = nullptr;
    for (plist_array_next_item(node, iterator.get(), &item); item;
         plist_array_next_item(node, iterator.get(), &item)) {
        std::optional<PropertyList> element = fromNode(item, depth + 1);
        if (!element) {
            return std::nullopt;
        }
        array.push_back(std::move(*element));
    }
    return array;
}

std::optional<PropertyList> fromDictionary(plist_t node, int depth) {
    PropertyDictionary dictionary;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const std::unique_ptr<void, decltype(&free)> iterator(rawIterator, &free);
    while (true) {
        char* rawKey = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator.get(), &rawKey, &item);
        const std::unique_ptr<char, decltype(&free)> key(rawKey, &free);
        if (!item) {
            return dictionary;
        }
        std::optional<PropertyList> element = fromNode(item, depth + 1);
        if (!key || !isValidUtf8(key.get()) || !element) {
            return std::nullopt;
        }
        dictionary.insert_or_assign(key.get(), std::move(*element));
    }
}

std::optional<PropertyList> fromNode(plist_t node, int depth) {
    if (depth > kMaximumPropertyListDepth) {
        return std::nullopt;
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return PropertyList(value != 0);
    }
    case PLIST_UINT:
        return wholeNumber(node);
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return PropertyList(value);
    }
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        if (!text || !isValidUtf8(text)) {
            return std::nullopt;
        }
        return PropertyList(text);
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char* bytes = plist_get_data_ptr(node, &length);
        return PropertyList(bytes ? PropertyData(bytes, bytes + length) : PropertyData());
    }
    case PLIST_ARRAY:
        return fromArray(node, depth);
    case PLIST_DICT:
        return fromDictionary(node, depth);
    default:
        return PropertyList();
    }
}

std::string_view withoutLeadingBlanks(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) { // a byte order mark, which some editors write
        text.remove_prefix(3);
    }
    return text.substr(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

Node nodeFromBytes(std::string_view bytes) {
    plist_t node = nullptr;
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max() / 2) {
        return nullptr;
    }
    if (bytes.starts_with("bplist")) {
        if (isSoundBinaryPropertyList(bytes)) {
            plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &node);
        }
        return Node(node);
    }
    const std::string_view xml = withoutLeadingBlanks(bytes);
    if (xml.starts_with('<') && isXmlNestingWithinLimit(xml) && isXmlSizeWithinLimit(xml)) {
        const PlainLocaleScope plainLocale;
        const std::string terminated(xml);
        plist_from_xml(terminated.c_str(), static_cast<std::uint32_t>(terminated.size()), &node);
    }
    return Node(node);
}

} // namespace

std::string textAsWritten(const std::string& text) {
    std::string result = validUtf8(text);
    for (std::size_t at = result.find('\0'); at != std::string::npos; at = result.find('\0', at)) {
        result.replace(at, 1, "\uFFFD");
    }
    return result;
}

PropertyData binaryPropertyList(const PropertyList& list) {
    if (containerDepth(list) > kMaximumPropertyListDepth) {
        log("property list nested too deep to be written");
        return {};
    }
    const Node node(makeNode(list));
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node.get(), &bytes, &length);
    PropertyData result;
    if (bytes) {
        result.assign(bytes, bytes + length);
        plist_to_bin_free(bytes);
    }
    return result;
}

std::optional<PropertyList> readPropertyList(std::string_view bytes) {
    const Node node = nodeFromBytes(bytes);
    return node ? fromNode(node.get(), 0) : std::nullopt;
}

std::optional<PropertyList> readPropertyList(const PropertyData& bytes) {
    return readPropertyList(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

} // namespace velmora
