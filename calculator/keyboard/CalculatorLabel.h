#pragma once

#include "platform/screens/Geometry.h"
#include "toolkit/LabelRecord.h"

#include <functional>

namespace velmora {

class ExpressionWithTokenArray;

enum class EditCommand { Cut, Copy, Paste };

/// The entry line: shows an editing buffer and offers the edit menu over it.
class CalculatorLabel {
public:
    LabelRecord& record() { return m_record; }
    const LabelRecord& record() const { return m_record; }

    /// The buffer whose text is shown; not owned, may be null.
    void setModel(ExpressionWithTokenArray* model) { m_model = model; }

    /// Called to redraw the text; `edited` tells whether the line itself has changed.
    std::function<void(bool edited)> onUpdate;
    /// Called when the menu comes or goes.
    std::function<void()> onMenuChanged;

    void update(bool edited = false);
    /// What the buffer allows, and nothing without one.
    bool canPerformAction(EditCommand command) const;
    /// Carries out a command and closes the menu. False, with nothing done, when it is not allowed.
    bool perform(EditCommand command);
    /// The commands themselves, carried out by the buffer whether or not the menu offers them; each closes
    /// the menu and redraws.
    void cut();
    void copy();
    void paste();

    /// The label becomes the first responder and shows the menu.
    void doubleTapped();
    /// Hides the menu. False when none was shown, so the tap means something else.
    bool tapped();
    bool showsMenu() const { return m_showsMenu; }
    /// The small square near the right end to which the menu points.
    Rect menuTarget() const;

    /// The background at alpha 0.3 while the label is the first responder.
    void highlight();
    void unHighlight();

private:
    void resign();

    LabelRecord m_record;
    ExpressionWithTokenArray* m_model = nullptr;
    bool m_showsMenu = false;
};

} // namespace velmora
