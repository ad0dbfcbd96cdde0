#include "calculator/keyboard/TypedName.h"

#include "platform/text/Utf8.h"

namespace velmora {

void TypedName::dropLast() { m_text = velmora::dropLast(m_text); }

std::optional<std::vector<std::string>> TypedName::add(std::string_view character,
                                                       const TypeableNames& names) {
    m_text += character;
    return names.canContinue(m_text) ? std::nullopt : finish(names);
}

bool TypedName::canTake(std::string_view character, const TypeableNames& names) const {
    constexpr std::string_view kMayStandInNames = "(0123456789";
    const bool mayStand = character.size() == 1 && kMayStandInNames.find(character) != std::string_view::npos;
    const std::string longer = m_text + std::string(character);
    return !isEmpty() && mayStand && (names.insertedTexts(longer) || names.canContinue(longer));
}

std::optional<std::vector<std::string>> TypedName::finish(const TypeableNames& names) {
    auto texts = names.insertedTexts(m_text);
    if (texts) {
        m_text.clear();
    }
    return texts;
}

} // namespace velmora
