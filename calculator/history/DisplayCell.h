#pragma once

#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"
#include "toolkit/LabelRecord.h"

namespace velmora {

/// What the rows of the history table share: clear labels with white text on black, laid out for a size.
class DisplayCell {
public:
    virtual ~DisplayCell() = default;

    /// Lays out a row of that size, in points.
    virtual void layout(Size size) = 0;
    Color backgroundColor() const { return Color::white(0); }

protected:
    // Only whole cells are copied.
    DisplayCell() = default;
    DisplayCell(const DisplayCell&) = default;
    DisplayCell& operator=(const DisplayCell&) = default;

    static LabelRecord newLabel() { return {.textColor = Color::white(1)}; }
};

} // namespace velmora
