#pragma once

namespace velmora {

/// The sizes of the keyboard screen in one geometry, in points.
struct KeyboardSizes {
    double gridHeight;
    double gridSideMargin;
    double gridWidth; ///< 0: the view's width less both side margins
    double bottomMargin;
    double entryLineHeight;        ///< modes 0 and 4
    double entryLineHeightEditing; ///< the other modes
    double entryFontSize;          ///< modes 0 and 4
    double entryFontSizeEditing;   ///< the other modes
    double historyRowHeight;
    double keyFontSize;
};

inline constexpr double kGridUpperMargin = 4;
inline constexpr double kEntrySideInset = 10;        ///< mode 0
inline constexpr double kEntrySideInsetEditing = 15; ///< the editing modes
/// The wide keyboard's two grids stand this far apart.
inline constexpr double kGapBetweenWideGrids = 50;

/// Any geometry outside 0 to 4 is a programming fault and has the sizes of a phone.
const KeyboardSizes& keyboardSizes(int geometry);

} // namespace velmora
