#include "calculator/model/OrientationMode.h"

#include "calculator/model/Assertion.h"

#include <string>

namespace velmora {

namespace {

enum : int { kPortraitOnly = 0, kLandscapeOnly = 1, kBoth = 2 };

bool allows(int mode, int onlyMode) {
    if (mode < kPortraitOnly || mode > kBoth) {
        assertionFailure("no orientation mode " + std::to_string(mode));
        return false;
    }
    return mode == onlyMode || mode == kBoth;
}

} // namespace

bool orientationModeAllowsPortait(int orientationMode) { return allows(orientationMode, kPortraitOnly); }

bool orientationModeAllowsLandscape(int orientationMode) { return allows(orientationMode, kLandscapeOnly); }

} // namespace velmora
