#pragma once

#include "calculator/keyboard/TypeableNames.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Characters typed one by one that stand in the line, at its cursor, and are no tokens yet: the start of a
/// name, or what cannot be read at all. As soon as they can only mean one thing they are its tokens ("asin("
/// at the parenthesis), and at the latest when something else is done.
class TypedName {
public:
    const std::string& text() const { return m_text; }
    bool isEmpty() const { return m_text.empty(); }
    void setText(std::string text) { m_text = std::move(text); }
    void clear() { m_text.clear(); }
    void dropLast();

    /// Adds a character, whatever it is. The texts to insert when with it the text can only mean one thing;
    /// the text is empty then.
    std::optional<std::vector<std::string>> add(std::string_view character, const TypeableNames& names);
    /// Whether the character goes on with what may become a name, so that it is no key by itself.
    bool canTake(std::string_view character, const TypeableNames& names) const;
    /// The texts to insert for the text as it stands, which is empty then; nothing when it is no name.
    std::optional<std::vector<std::string>> finish(const TypeableNames& names);

private:
    std::string m_text;
};

} // namespace velmora
