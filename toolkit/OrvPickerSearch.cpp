#include "toolkit/OrvPickerSearch.h"

#include "platform/machine/Clock.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double kSecondsBetweenLetters = 1;

std::string lowered(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

std::optional<int> find(const std::string& typed, const PickerRows& rows, int first) {
    std::optional<int> beginsSo;
    for (int i = 0; i < rows.count; ++i) {
        const int row = (first + i) % rows.count;
        const std::string text = lowered(rows.text(row));
        if (text == typed) {
            return row;
        }
        if (!beginsSo && text.starts_with(typed)) {
            beginsSo = row;
        }
    }
    return beginsSo;
}

} // namespace

std::optional<int> OrvPickerSearch::rowFor(std::string_view character, const PickerRows& rows, int selected) {
    const double now = monotonicSeconds();
    const std::string letter = lowered(std::string(character));
    if (letter.empty() || rows.count <= 0) {
        return std::nullopt;
    }
    const bool continues = now - m_lastTime < kSecondsBetweenLetters;
    m_lastTime = now;
    const int here = std::clamp(selected, 0, rows.count - 1);
    if (continues && !m_typed.empty()) {
        if (const auto row = find(m_typed + letter, rows, here)) {
            m_typed += letter;
            return row;
        }
    }
    m_typed = letter;
    return find(letter, rows, here + 1);
}

} // namespace velmora
