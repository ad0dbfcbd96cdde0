#include "calculator/model/KeyboardGeometry.h"

#include "calculator/model/Assertion.h"

#include <string>

namespace velmora {

int keyboardGeometryIsPhone(int geometry) {
    switch (geometry) {
    case kGeometryTabletWide:
    case kGeometryTabletNarrow:
    case kGeometryTabletLandscape:
        return 0;
    case kGeometryPhoneLargeFonts:
    case kGeometryPhone:
        return 1;
    default:
        assertionFailure("no keyboard geometry " + std::to_string(geometry));
        return -1;
    }
}

bool keyboardGeometryIsWide(int geometry) {
    return geometry == kGeometryTabletWide || geometry == kGeometryTabletLandscape;
}

bool keyboardGeometryIsNarrow(int geometry) {
    return geometry == kGeometryTabletNarrow || geometry == kGeometryPhoneLargeFonts ||
           geometry == kGeometryPhone;
}

int fontSizeModeForGeometry(int geometry) {
    switch (geometry) {
    case kGeometryTabletWide:
        return 2;
    case kGeometryTabletNarrow:
    case kGeometryTabletLandscape:
        return 3;
    case kGeometryPhoneLargeFonts:
        return 1;
    case kGeometryPhone:
        return 0;
    default:
        assertionFailure("no font size for keyboard geometry " + std::to_string(geometry));
        return 1;
    }
}

} // namespace velmora
