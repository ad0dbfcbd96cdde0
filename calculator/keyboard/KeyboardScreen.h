#pragma once

#include <string>

namespace velmora {

/// What draws a keyboard screen. The controller calls it after the change; the drawing side then reads the
/// controller's KeyboardView and history table.
class KeyboardScreen {
public:
    virtual ~KeyboardScreen() = default;

    /// Rows, their height or their texts have changed.
    virtual void reloadHistory() = 0;
    /// The last row goes to the bottom.
    virtual void scrollHistoryToEnd(bool animated) = 0;
    /// The text of the entry line, or its highlight, has changed.
    virtual void showEntry() = 0;
    /// The face of the tall key has changed.
    virtual void showEqualsKey() = 0;
    /// Which sign of inequality is in force has changed.
    virtual void showChosenSign() = 0;
    /// The keys are other objects than before.
    virtual void keysChanged() = 0;
    /// Frames and fonts have changed.
    virtual void layoutChanged() = 0;
    /// The edit menu of the entry line has come or gone.
    virtual void showEditMenu(bool shown) = 0;
    /// Something to tell the user that needs no answer.
    virtual void showNotice(const std::string& text) = 0;
    /// The same with a button "Undo" beside it, for so many seconds. A press of it is for the controller's
    /// bringHistoryBack().
    virtual void offerUndo(const std::string& text, double seconds) = 0;
};

} // namespace velmora
