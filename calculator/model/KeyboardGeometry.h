#pragma once

namespace velmora {

/// The screen geometries on which every size is keyed; the number is what `Model::keyboardGeometry` gives.
enum KeyboardGeometry : int {
    kGeometryTabletWide = 0,
    kGeometryTabletNarrow = 1,
    kGeometryTabletLandscape = 2,
    kGeometryPhoneLargeFonts = 3,
    kGeometryPhone = 4,
};

/// 1 for the two phone geometries, 0 for the three tablet ones. Any other value is a programming fault and
/// yields -1.
int keyboardGeometryIsPhone(int geometry);

/// Whether the geometry is shown with the wide key arrangement (0 and 2) or with the narrow one (1, 3, 4).
/// Both are false for any other value, which then has no keys.
bool keyboardGeometryIsWide(int geometry);
bool keyboardGeometryIsNarrow(int geometry);

/// The size class of equation fonts, 0 (phone) to 3 (tablet). 1 after a programming fault.
int fontSizeModeForGeometry(int geometry);

} // namespace velmora
