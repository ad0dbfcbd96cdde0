#include "calculator/keyboard/WrappedText.h"

#include "platform/machine/TextMeasure.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <map>

namespace velmora {

namespace {

constexpr std::string_view kBlank = " ";

} // namespace

WrappedText::WrappedText(std::string_view text, const LabelRecord& label,
                         const std::vector<std::size_t>& wordStarts)
    : m_characters(splitCodePoints(text)), m_lineStarts{0} {
    std::map<std::string_view, double> known; // measuring costs, and a line repeats few characters
    for (const std::string& character : m_characters) {
        const auto [entry, isNew] = known.try_emplace(character, 0);
        if (isNew) {
            entry->second = textWidth(character, label.fontSize, label.fontName);
        }
        m_widths.push_back(entry->second);
    }
    double x = 0;
    std::size_t behindBlank = 0; // where the present line can break best; its start when nowhere
    std::size_t wordStart = 0;   // where it can break else
    auto nextWord = wordStarts.begin();
    for (std::size_t i = 0; i < m_characters.size(); ++i) {
        const bool isBlank = m_characters[i] == kBlank;
        for (; nextWord != wordStarts.end() && *nextWord <= i; ++nextWord) {
            wordStart = *nextWord;
        }
        const bool overflows = i > m_lineStarts.back() && !isBlank && x + m_widths[i] > label.frame.width;
        if (label.lineCount != 1 && overflows) {
            const std::size_t last = m_lineStarts.back();
            const std::size_t start = behindBlank > last ? behindBlank : wordStart > last ? wordStart : i;
            m_lineStarts.push_back(start);
            x = 0;
            for (std::size_t moved = start; moved < i; ++moved) {
                m_places[moved] = {lineCount() - 1, x};
                x += m_widths[moved];
            }
        }
        m_places.push_back({lineCount() - 1, x});
        x += m_widths[i];
        behindBlank = isBlank ? i + 1 : behindBlank;
    }
    m_places.push_back({lineCount() - 1, x});
}

WrappedText::Place WrappedText::placeBefore(std::size_t character) const {
    return m_places[std::min(character, m_characters.size())];
}

WrappedText::Place WrappedText::placeBehindPrevious(std::size_t character) const {
    if (character == 0 || character > m_characters.size()) {
        return placeBefore(character);
    }
    const Place& previous = m_places[character - 1];
    return {previous.line, previous.x + m_widths[character - 1]};
}

std::string WrappedText::lines(int first, int count) const {
    std::string text;
    for (std::size_t i = 0; i < m_characters.size(); ++i) {
        const int line = m_places[i].line;
        if (line < first || line >= first + count) {
            continue;
        }
        text += line > first && m_lineStarts[static_cast<std::size_t>(line)] == i ? "\n" : "";
        text += m_characters[i];
    }
    return text;
}

} // namespace velmora
