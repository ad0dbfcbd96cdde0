#pragma once

#include "platform/Color.h"
#include "platform/Geometry.h"
#include "toolkit/LabelRecord.h"

namespace velmora {

/// The row above the history that tells where the settings are.
class DisplayTipCell {
public:
    static constexpr const char* kReuseIdentifier = "DisplayTipCell";

    DisplayTipCell();

    /// The label fills the row; its font starts at 0.4 of the row's height, in whole points.
    void layout(Size size);
    const LabelRecord& tipLabel() const { return m_tipLabel; }
    Color backgroundColor() const { return Color::white(0); }

private:
    LabelRecord m_tipLabel;
};

} // namespace velmora
