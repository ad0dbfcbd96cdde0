#include "calculator/keyboard/EntryLineText.h"

#include "calculator/keyboard/EditingMode.h"
#include "calculator/keyboard/WrappedText.h"
#include "engine/lines/ExpressionList.h"
#include "engine/lines/ExpressionWithLevelCurveHeightsList.h"
#include "engine/lines/ExpressionWithTokenArray.h"
#include "platform/machine/TextMeasure.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace velmora {

namespace {

double widthInLabel(std::string_view text, const LabelRecord& label) {
    return textWidth(text, label.fontSize, label.fontName);
}

/// As many characters from the start as the label holds before an ellipsis.
std::string startFittedToLabel(std::string_view text, const LabelRecord& label) {
    const std::string ellipsis = "…";
    std::string fitted;
    for (const std::string& character : splitCodePoints(text)) {
        if (widthInLabel(fitted + character + ellipsis, label) > label.frame.width) {
            break;
        }
        fitted += character;
    }
    return fitted + ellipsis;
}

/// What a label of one line draws: its text, cut so that the cursor shows. Where what stands before the
/// cursor fits, the tail gives way; else the line ends at the cursor and its head does.
std::string lineWithCursor(const EntryLineText& text, const LabelRecord& label) {
    std::string fitted = textFittedToLabel(text, label);
    if (widthInLabel(fitted, label) <= label.frame.width || text.beforeCursor.size() == text.line.size()) {
        return fitted;
    }
    const std::string start = startFittedToLabel(fitted, label);
    const bool showsCursor = codePointCount(start) > codePointCount(text.prefix + text.beforeCursor) + 1;
    return showsCursor ? start : text.beforeCursor;
}

/// Where the tokens of a line begin in its text with the cursor mark and the letters typed there, which go
/// with the token before them.
std::vector<std::size_t> tokenStarts(const ExpressionWithTokenArray& buffer, std::size_t typedLetters) {
    std::vector<std::size_t> starts;
    std::size_t next = 0;
    for (int gap = 0; gap < buffer.count(); ++gap) {
        const bool isAtCursor = gap == buffer.cursorPosition();
        next += isAtCursor ? typedLetters : 0;
        starts.push_back(next);
        next += (isAtCursor ? 1 : 0) +
                codePointCount(buffer.tokenArray()[static_cast<std::size_t>(gap)].toDisplayString());
    }
    starts.push_back(next);
    return starts;
}

/// The lines that a label shows of a text that may have more than its frame holds.
struct LinesShown {
    int first = 0;
    int count = 1;
};

LinesShown linesShown(const EntryLineText& text, const WrappedText& wrapped, const LabelRecord& label) {
    const double lineHeight = textLineHeight(label.fontSize, label.fontName);
    const double held = lineHeight > 0 ? std::floor(label.frame.height / lineHeight) : 1;
    const int most =
        label.lineCount > 0 ? std::min(label.lineCount, wrapped.lineCount()) : wrapped.lineCount();
    const int count = std::max(1, static_cast<int>(std::min(held, static_cast<double>(most))));
    const std::size_t cursor = codePointCount(text.prefix) + codePointCount(text.beforeCursor);
    const int lineOfCursor = wrapped.placeBefore(cursor).line;
    return {std::min(lineOfCursor, wrapped.lineCount() - count), count};
}

/// Where the text begins: one line too wide gives way at its head, so its end stands at the right.
double startOfLine(const LabelRecord& label, double lineWidth) {
    const bool fromTheRight =
        label.alignment == TextAlignment::Right || (label.lineCount == 1 && lineWidth > label.frame.width);
    return fromTheRight ? label.frame.x + label.frame.width - lineWidth : label.frame.x;
}

int lineAtHeight(double y, const LabelRecord& label, const LinesShown& shown) {
    const double lineHeight = textLineHeight(label.fontSize, label.fontName);
    if (!(lineHeight > 0)) {
        return shown.first;
    }
    const double top = label.frame.y + (label.frame.height - shown.count * lineHeight) / 2;
    const double line = std::floor((y - top) / lineHeight);
    return shown.first + static_cast<int>(std::clamp(line, 0.0, static_cast<double>(shown.count - 1)));
}

/// How many characters stand before each gap between tokens, up to the last gap that is shown.
std::vector<std::size_t> charactersBeforeGaps(const EntryLineText& text,
                                              const ExpressionWithTokenArray& buffer, bool endsAtCursor) {
    const int lastGap = endsAtCursor ? buffer.cursorPosition() : buffer.count();
    std::vector<std::size_t> counts{endsAtCursor ? 0 : codePointCount(text.prefix)};
    for (int gap = 1; gap <= lastGap; ++gap) {
        const bool isBehindCursorMark = gap - 1 == buffer.cursorPosition();
        const TokenElement& token = buffer.tokenArray()[static_cast<std::size_t>(gap - 1)];
        counts.push_back(counts.back() + (isBehindCursorMark ? 1 : 0) +
                         codePointCount(token.toDisplayString()));
    }
    return counts;
}

/// Lines first, then points; from another line the nearest place is the one that is read last before it, or
/// first behind it.
std::pair<int, double> distance(const WrappedText::Place& place, int line, double x) {
    if (place.line == line) {
        return {0, std::abs(place.x - x)};
    }
    return place.line < line ? std::pair(line - place.line, -place.x) : std::pair(place.line - line, place.x);
}

} // namespace

EntryLineText entryLineText(const ExpressionWithTokenArray& buffer, const EditingMode& mode,
                            const ExpressionList* target, int whichEquation, const std::string& typedName) {
    EntryLineText text;
    text.line = buffer.displayStringWithCursor();
    const std::string beforeCursor = buffer.beforeCursorString();
    text.line.insert(beforeCursor.size(), typedName);
    text.beforeCursor = beforeCursor + typedName;
    text.tokenStarts = tokenStarts(buffer, codePointCount(typedName));
    if (target && mode.namesSlot) {
        text.prefix = target->fullFunctionNameWithIndex(whichEquation) + "=";
    }
    if (mode.showsHeights) {
        const auto* functions = dynamic_cast<const ExpressionWithLevelCurveHeightsList*>(target);
        const auto* heights = functions ? functions->levelCurveHeightsAtIndex(whichEquation) : nullptr;
        if (heights) {
            text.suffix = "= " + heights->heightsAsString();
        }
    }
    for (std::size_t& start : text.tokenStarts) {
        start += codePointCount(text.prefix);
    }
    return text;
}

std::string textFittedToLabel(const EntryLineText& text, const LabelRecord& label) {
    std::string whole = text.whole();
    const bool isCut = label.lineCount == 1 && widthInLabel(whole, label) > label.frame.width &&
                       widthInLabel(text.beforeCursor, label) > label.frame.width;
    return isCut ? text.beforeCursor : whole;
}

std::string linesInLabel(const EntryLineText& text, const LabelRecord& label) {
    if (label.lineCount == 1) {
        return lineWithCursor(text, label);
    }
    const WrappedText wrapped(textFittedToLabel(text, label), label, text.tokenStarts);
    const LinesShown shown = linesShown(text, wrapped, label);
    return wrapped.lines(shown.first, shown.count);
}

int tokenGapAtPoint(Point point, const LabelRecord& label, const EntryLineText& text,
                    const ExpressionWithTokenArray& buffer) {
    const std::string fitted =
        label.lineCount == 1 ? lineWithCursor(text, label) : textFittedToLabel(text, label);
    const WrappedText wrapped(fitted, label, text.tokenStarts);
    const int line = lineAtHeight(point.y, label, linesShown(text, wrapped, label));
    const double x = point.x - startOfLine(label, wrapped.placeBefore(wrapped.characterCount()).x);
    int nearest = 0;
    std::pair<int, double> smallest{std::numeric_limits<int>::max(), 0};
    const auto gaps =
        charactersBeforeGaps(text, buffer, fitted == text.beforeCursor && fitted != text.whole());
    for (std::size_t gap = 0; gap < gaps.size(); ++gap) {
        // A gap where a line breaks is in reach from both lines.
        for (const auto& place : {wrapped.placeBefore(gaps[gap]), wrapped.placeBehindPrevious(gaps[gap])}) {
            if (distance(place, line, x) < smallest) {
                smallest = distance(place, line, x);
                nearest = static_cast<int>(gap);
            }
        }
    }
    return nearest;
}

} // namespace velmora
