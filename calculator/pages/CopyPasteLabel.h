#pragma once

#include "calculator/keyboard/CalculatorLabel.h"
#include "platform/screens/Geometry.h"

#include <functional>
#include <optional>
#include <string>

namespace velmora {

/// A label whose text can be copied, as on the screens of formulas. Its menu offers only Copy; the other
/// commands work when they are sent to it directly.
class CopyPasteLabel {
public:
    const std::string& text() const { return m_text; }
    void setText(std::string text);

    /// Called when the text, the menu or the first responder has changed.
    std::function<void()> onChange;

    static bool canPerformAction(EditCommand command) { return command == EditCommand::Copy; }
    /// The text goes to the pasteboard as plain text.
    void copy();
    /// Copies, then empties the text.
    void cut();
    void deleteText();
    /// The text becomes the description of what the pasteboard holds under its first type: text as it is,
    /// bytes in hexadecimal. An empty pasteboard changes nothing.
    void paste();

    /// The label becomes the first responder and shows the menu at that point.
    void doubleTapped(Point point);
    /// Hides the menu. False when none was shown, so the tap means something else.
    bool tapped();
    /// Where the menu points to; nothing while it is hidden.
    const std::optional<Point>& menuPoint() const { return m_menuPoint; }
    bool isFirstResponder() const { return m_menuPoint.has_value(); }

private:
    void changed();

    std::string m_text;
    std::optional<Point> m_menuPoint;
};

} // namespace velmora
