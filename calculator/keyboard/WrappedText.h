#pragma once

#include "toolkit/LabelRecord.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Text in the lines in which a label draws it. A line breaks behind the last blank that fits, and where
/// there is none, at the last place between two words; a word longer than a line breaks inside. Blanks may
/// stand out at its end. A label of one line breaks nothing.
class WrappedText {
public:
    /// A place between characters: the line, counted from 0, and the distance from its start in points.
    struct Place {
        int line = 0;
        double x = 0;
    };

    /// `wordStarts` are the characters, counted from 0 and ascending, that a line may begin with.
    WrappedText(std::string_view text, const LabelRecord& label, const std::vector<std::size_t>& wordStarts);

    int lineCount() const { return static_cast<int>(m_lineStarts.size()); }
    std::size_t characterCount() const { return m_characters.size(); }
    /// The place in front of a character; the end of the text for one beyond it. Where a line breaks it is
    /// the start of the new line.
    Place placeBefore(std::size_t character) const;
    /// The place behind the character before this one, which is another where a line breaks.
    Place placeBehindPrevious(std::size_t character) const;
    /// Some of the lines, with a line feed between them.
    std::string lines(int first, int count) const;

private:
    std::vector<std::string> m_characters;
    std::vector<double> m_widths; // of the characters
    std::vector<Place> m_places;  // in front of each character and behind the last
    std::vector<std::size_t> m_lineStarts;
};

} // namespace velmora
