#pragma once

#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"

#include <optional>
#include <string>

namespace velmora {

enum class TextAlignment { Left, Centre, Right };

/// What happens to text that is too wide: its start or its end gives way to an ellipsis, it goes on in the
/// next line at a blank, or it is cut off at the frame.
enum class TextTruncation { Head, Tail, WordWrap, Clip };

/// A piece of text on a screen: all that a view needs to draw it, and all that a test needs to read it.
struct LabelRecord {
    // Each member has a value of its own, so that a label can be made by naming only some of them.
    std::string text{};
    Rect frame{};
    /// An empty name is the system font. Sizes are in points.
    std::string fontName{};
    double fontSize = 17;
    /// Text too wide for the frame is drawn smaller, down to this size; nothing keeps the size.
    std::optional<double> minimumFontSize{};
    Color textColor{};
    Color backgroundColor{0, 0, 0, 0};
    TextAlignment alignment = TextAlignment::Left;
    /// The most lines drawn; 0 is as many as the frame holds.
    int lineCount = 1;
    TextTruncation truncation = TextTruncation::Tail;
    bool hidden = false;

    bool operator==(const LabelRecord&) const = default;
};

/// The size at which one line of the label's text fits its frame: the font size where that fits, otherwise
/// smaller, but not below the minimum size.
double fittedFontSize(const LabelRecord& label);

/// The space that the label's text takes on one line at its font size.
Size textSize(const LabelRecord& label);

} // namespace velmora
