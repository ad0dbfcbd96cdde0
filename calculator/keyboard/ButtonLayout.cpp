#include "calculator/keyboard/ButtonLayout.h"

#include "calculator/model/Assertion.h"

#include <algorithm>

namespace velmora {

int ButtonLayout::nButtons() const {
    int count = 0;
    for (const ButtonGrid& grid : m_grids) {
        count += grid.nButtons();
    }
    return count;
}

std::vector<Rect> ButtonLayout::frames() const {
    std::vector<Rect> frames;
    for (const ButtonGrid& grid : m_grids) {
        for (int i = 0; i < grid.nButtons(); ++i) {
            frames.push_back(grid.frameForButtonAtIndex(i));
        }
    }
    return frames;
}

std::vector<std::shared_ptr<Button>> ButtonLayout::newButtonArray() const {
    std::vector<std::shared_ptr<Button>> buttons;
    for (const Rect& frame : frames()) {
        buttons.push_back(m_buttonClass(frame));
    }
    return buttons;
}

void ButtonLayout::layoutExistingButtonArray(std::span<const std::shared_ptr<Button>> buttons) const {
    const std::vector<Rect> frames = this->frames();
    if (frames.size() != buttons.size()) {
        assertionFailure("a layout of " + std::to_string(frames.size()) + " keys was given " +
                         std::to_string(buttons.size()));
    }
    const std::size_t count = std::min(frames.size(), buttons.size());
    for (std::size_t i = 0; i < count; ++i) {
        buttons[i]->setFrame(frames[i]);
    }
}

} // namespace velmora
