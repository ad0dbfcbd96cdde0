#include "platform/machine/Pasteboard.h"

#include <utility>

namespace velmora {

namespace {

template <class Representation>
std::optional<Representation> firstOfType(const std::vector<PasteboardItem>& items, std::string_view type) {
    for (const PasteboardItem& item : items) {
        const auto entry = item.find(type);
        if (entry != item.end()) {
            if (const auto* representation = std::get_if<Representation>(&entry->second)) {
                return *representation;
            }
        }
    }
    return std::nullopt;
}

} // namespace

void Pasteboard::setText(std::string text) { setItems({{{std::string(kPlainTextType), std::move(text)}}}); }

std::optional<std::string> Pasteboard::text() const {
    return firstOfType<std::string>(items(), kPlainTextType);
}

std::optional<PropertyData> Pasteboard::data(std::string_view type) const {
    return firstOfType<PropertyData>(items(), type);
}

Pasteboard& generalPasteboard() {
    static PlainPasteboard plain;
    return PasteboardScope::installedOr(plain);
}

} // namespace velmora
