#include "calculator/pages/CopyPasteLabel.h"

#include "platform/machine/Pasteboard.h"

#include <utility>

namespace velmora {

namespace {

/// Bytes as people write them: "<0fa2b3c4 05>".
std::string descriptionOfBytes(const PropertyData& bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    constexpr std::size_t kBytesAGroup = 4;
    std::string text = "<";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        text += i > 0 && i % kBytesAGroup == 0 ? " " : "";
        text += kDigits[byte >> 4U];
        text += kDigits[byte & 15U];
    }
    return text + ">";
}

} // namespace

void CopyPasteLabel::changed() {
    if (onChange) {
        onChange();
    }
}

void CopyPasteLabel::setText(std::string text) {
    m_text = std::move(text);
    changed();
}

void CopyPasteLabel::copy() {
    generalPasteboard().setText(m_text);
    tapped();
}

void CopyPasteLabel::cut() {
    copy();
    deleteText();
}

void CopyPasteLabel::deleteText() { setText({}); }

void CopyPasteLabel::paste() {
    const std::vector<PasteboardItem> items = generalPasteboard().items();
    if (items.empty() || items.front().empty()) {
        return;
    }
    const PasteboardRepresentation& first = items.front().begin()->second;
    const auto* text = std::get_if<std::string>(&first);
    setText(text ? *text : descriptionOfBytes(std::get<PropertyData>(first)));
}

void CopyPasteLabel::doubleTapped(Point point) {
    m_menuPoint = point;
    changed();
}

bool CopyPasteLabel::tapped() {
    const bool wasShown = std::exchange(m_menuPoint, std::nullopt).has_value();
    if (wasShown) {
        changed();
    }
    return wasShown;
}

} // namespace velmora
