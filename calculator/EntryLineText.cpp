#include "calculator/EntryLineText.h"

#include "calculator/Entering.h"
#include "engine/ExpressionList.h"
#include "engine/ExpressionWithLevelCurveHeightsList.h"
#include "engine/ExpressionWithTokenArray.h"
#include "platform/TextMeasure.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace velmora {

namespace {

double widthInLabel(std::string_view text, const LabelRecord& label) {
    return textWidth(text, label.fontSize, label.fontName);
}

/// A place in wrapped text: the line, counted from 0, and the distance from the line's start.
struct Place {
    int line = 0;
    double x = 0;
};

/// Walks through text as it is drawn, breaking lines between any two characters.
class TextWalk {
public:
    explicit TextWalk(const LabelRecord& label) : m_label(label) {}

    void walk(std::string_view text) {
        for (const std::string& character : splitCodePoints(text)) {
            const double width = widthInLabel(character, m_label);
            if (m_label.lineCount != 1 && m_place.x > 0 && m_place.x + width > m_label.frame.width) {
                ++m_place.line;
                m_place.x = 0;
            }
            m_place.x += width;
        }
    }
    const Place& place() const { return m_place; }

private:
    const LabelRecord& m_label;
    Place m_place;
};

/// Where the text begins: one line too wide gives way at its head, so its end stands at the right.
double startOfLine(const LabelRecord& label, double lineWidth) {
    const bool fromTheRight =
        label.alignment == TextAlignment::Right || (label.lineCount == 1 && lineWidth > label.frame.width);
    return fromTheRight ? label.frame.x + label.frame.width - lineWidth : label.frame.x;
}

int lineAtHeight(double y, const LabelRecord& label, int lines) {
    const double lineHeight = textLineHeight(label.fontSize, label.fontName);
    if (!(lineHeight > 0)) {
        return 0;
    }
    const double top = label.frame.y + (label.frame.height - lines * lineHeight) / 2;
    const double line = std::floor((y - top) / lineHeight);
    return static_cast<int>(std::clamp(line, 0.0, static_cast<double>(lines - 1)));
}

} // namespace

EntryLineText entryLineText(const ExpressionWithTokenArray& buffer, int entering,
                            const ExpressionList* target, int whichEquation, const std::string& typedName) {
    EntryLineText text;
    text.line = buffer.displayStringWithCursor();
    const std::string beforeCursor = buffer.beforeCursorString();
    text.line.insert(beforeCursor.size(), typedName);
    text.beforeCursor = beforeCursor + typedName;
    if (target && entering >= kEnteringFunction && entering <= kEnteringPolar) {
        text.prefix = target->fullFunctionNameWithIndex(whichEquation) + "=";
    }
    if (entering == kEnteringImpliedFunction) {
        const auto* functions = dynamic_cast<const ExpressionWithLevelCurveHeightsList*>(target);
        const auto* heights = functions ? functions->levelCurveHeightsAtIndex(whichEquation) : nullptr;
        if (heights) {
            text.suffix = "= " + heights->heightsAsString();
        }
    }
    return text;
}

std::string textFittedToLabel(const EntryLineText& text, const LabelRecord& label) {
    std::string whole = text.whole();
    if (label.lineCount == 1 && widthInLabel(whole, label) > label.frame.width &&
        widthInLabel(text.beforeCursor, label) > label.frame.width) {
        return text.beforeCursor;
    }
    return whole;
}

int tokenGapAtPoint(Point point, const LabelRecord& label, const EntryLineText& text,
                    const ExpressionWithTokenArray& buffer) {
    const bool endsAtCursor = textFittedToLabel(text, label) != text.whole();
    const bool showsCursorMark = !endsAtCursor && buffer.cursorPosition() < buffer.count();
    const int lastGap = endsAtCursor ? buffer.cursorPosition() : buffer.count();

    TextWalk walk(label);
    if (!endsAtCursor) {
        walk.walk(text.prefix);
    }
    std::vector<Place> gaps{walk.place()};
    for (int gap = 1; gap <= lastGap; ++gap) {
        if (showsCursorMark && gap - 1 == buffer.cursorPosition()) {
            walk.walk("_");
        }
        walk.walk(buffer.tokenArray()[static_cast<std::size_t>(gap - 1)].toDisplayString());
        gaps.push_back(walk.place());
    }
    if (!endsAtCursor) {
        walk.walk(text.suffix);
    }

    const int line = lineAtHeight(point.y, label, walk.place().line + 1);
    const double x = point.x - startOfLine(label, walk.place().x);
    const auto nearest = std::ranges::min_element(gaps, [&](const Place& first, const Place& second) {
        const int firstLines = std::abs(first.line - line);
        const int secondLines = std::abs(second.line - line);
        return firstLines != secondLines ? firstLines < secondLines
                                         : std::abs(first.x - x) < std::abs(second.x - x);
    });
    return static_cast<int>(nearest - gaps.begin());
}

} // namespace velmora
