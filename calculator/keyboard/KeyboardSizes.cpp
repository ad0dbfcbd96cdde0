#include "calculator/keyboard/KeyboardSizes.h"

#include "calculator/model/Assertion.h"
#include "calculator/model/KeyboardGeometry.h"

#include <array>
#include <string>

namespace velmora {

namespace {

constexpr std::array kSizes{
    KeyboardSizes{.gridHeight = 260,
                  .gridSideMargin = 10,
                  .gridWidth = 0,
                  .bottomMargin = 20,
                  .entryLineHeight = 30,
                  .entryLineHeightEditing = 180,
                  .entryFontSize = 28,
                  .entryFontSizeEditing = 30,
                  .historyRowHeight = 64,
                  .keyFontSize = 30},
    KeyboardSizes{.gridHeight = 600,
                  .gridSideMargin = 10,
                  .gridWidth = 0,
                  .bottomMargin = 20,
                  .entryLineHeight = 40,
                  .entryLineHeightEditing = 180,
                  .entryFontSize = 32,
                  .entryFontSizeEditing = 36,
                  .historyRowHeight = 84,
                  .keyFontSize = 40},
    KeyboardSizes{.gridHeight = 350,
                  .gridSideMargin = 10,
                  .gridWidth = 0,
                  .bottomMargin = 18,
                  .entryLineHeight = 30,
                  .entryLineHeightEditing = 200,
                  .entryFontSize = 24,
                  .entryFontSizeEditing = 36,
                  .historyRowHeight = 64,
                  .keyFontSize = 36},
    KeyboardSizes{.gridHeight = 256,
                  .gridSideMargin = 5,
                  .gridWidth = 312,
                  .bottomMargin = 11,
                  .entryLineHeight = 30,
                  .entryLineHeightEditing = 90,
                  .entryFontSize = 28,
                  .entryFontSizeEditing = 30,
                  .historyRowHeight = 59,
                  .keyFontSize = 23},
    KeyboardSizes{.gridHeight = 256,
                  .gridSideMargin = 5,
                  .gridWidth = 312,
                  .bottomMargin = 11,
                  .entryLineHeight = 20,
                  .entryLineHeightEditing = 90,
                  .entryFontSize = 17,
                  .entryFontSizeEditing = 18,
                  .historyRowHeight = 40,
                  .keyFontSize = 20},
};

} // namespace

const KeyboardSizes& keyboardSizes(int geometry) {
    if (geometry < 0 || geometry >= static_cast<int>(kSizes.size())) {
        assertionFailure("no sizes for keyboard geometry " + std::to_string(geometry));
        geometry = kGeometryPhone;
    }
    return kSizes[static_cast<std::size_t>(geometry)];
}

} // namespace velmora
