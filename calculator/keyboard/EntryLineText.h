#pragma once

#include "toolkit/LabelRecord.h"

#include <string>
#include <vector>

namespace velmora {

class ExpressionList;
class ExpressionWithTokenArray;
struct EditingMode;

/// What an entry line shows: a prefix such as "y1(x)=", the line with its cursor mark, and a suffix such as
/// "= 0".
struct EntryLineText {
    std::string prefix;
    std::string line;
    std::string suffix;
    std::string beforeCursor; ///< the part of the line before the cursor
    /// The characters of the whole text, from 0, at which a token begins: a name is never torn apart.
    std::vector<std::size_t> tokenStarts;
    std::string whole() const { return prefix + line + suffix; }
};

/// The text for a buffer in an editing mode; `target` may be null, and then there is no prefix or suffix.
/// The letters of a name being typed stand before the cursor.
EntryLineText entryLineText(const ExpressionWithTokenArray& buffer, const EditingMode& mode,
                            const ExpressionList* target, int whichEquation,
                            const std::string& typedName = {});

/// The text of a label of one line: where both the whole and the text up to the cursor are too wide, only
/// the latter, so that the end on screen is where the next key goes. A label of more lines has the whole.
std::string textFittedToLabel(const EntryLineText& text, const LabelRecord& label);

/// What the label draws of it, always with the cursor: one line that is too wide is cut at its head, at its
/// tail or at both; more are wrapped into as many lines as its frame holds, with line feeds between them. Of
/// more lines it shows the last ones, or those from the cursor's line on.
std::string linesInLabel(const EntryLineText& text, const LabelRecord& label);

/// The gap between tokens (0 to count) nearest to a point of the label, which must show this text.
int tokenGapAtPoint(Point point, const LabelRecord& label, const EntryLineText& text,
                    const ExpressionWithTokenArray& buffer);

} // namespace velmora
