#pragma once

#include "calculator/keyboard/Button.h"
#include "calculator/keyboard/ButtonGrid.h"

#include <memory>
#include <span>
#include <vector>

namespace velmora {

/// The grids of a keyboard, one after the other, and the class of key that fills them.
class ButtonLayout {
public:
    using ButtonClass = std::shared_ptr<Button> (*)(const Rect& frame);

    const std::vector<ButtonGrid>& buttonGrids() const { return m_grids; }
    void addGrid(const ButtonGrid& grid) { m_grids.push_back(grid); }
    /// Makes the keys; plain buttons unless set.
    void setButtonClass(ButtonClass buttonClass) { m_buttonClass = buttonClass; }

    int nButtons() const;
    /// New keys with their frames, grid after grid.
    std::vector<std::shared_ptr<Button>> newButtonArray() const;
    /// Gives existing keys their frames, in the same order. Another number of keys than nButtons() is a
    /// programming fault: as many as there are of both get their frames.
    void layoutExistingButtonArray(std::span<const std::shared_ptr<Button>> buttons) const;

private:
    std::vector<Rect> frames() const;

    std::vector<ButtonGrid> m_grids;
    ButtonClass m_buttonClass = [](const Rect& frame) { return std::make_shared<Button>(frame); };
};

} // namespace velmora
