#pragma once

#include "calculator/history/DisplayCell.h"

namespace velmora {

/// The row above the history that tells where the settings are.
class DisplayTipCell final : public DisplayCell {
public:
    static constexpr const char* kReuseIdentifier = "DisplayTipCell";

    DisplayTipCell();

    /// The label fills the row; its font starts at 0.4 of the row's height, in whole points.
    void layout(Size size) override;
    const LabelRecord& tipLabel() const { return m_tipLabel; }

private:
    LabelRecord m_tipLabel = newLabel();
};

} // namespace velmora
