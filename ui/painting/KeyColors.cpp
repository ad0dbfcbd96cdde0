#include "ui/painting/KeyColors.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

struct KeyColor {
    QLatin1String imageName;
    QRgb color;
};

const std::array kKeyColors{
    KeyColor{QLatin1String("buttona"), 0xffa85412},     // operators
    KeyColor{QLatin1String("buttonb"), 0xff5b626c},     // digits
    KeyColor{QLatin1String("buttonc"), 0xff1d7a48},     // equals
    KeyColor{QLatin1String("buttonBTall"), 0xff4a6fa5}, // the tall key while it closes a parenthesis
    KeyColor{QLatin1String("buttonf"), 0xff2c5f8f},     // lists
    KeyColor{QLatin1String("buttong"), 0xff86404a},     // editing
    KeyColor{QLatin1String("buttons"), 0xff1c6f76},     // root
    KeyColor{QLatin1String("buttonh"), 0xff6a4ea0},     // variables beside π
    KeyColor{QLatin1String("buttonr"), 0xff5b626c},     // the zero of a keypad
    KeyColor{QLatin1String("buttonk"), 0xff2f62a8},     // the ways out of a keypad
    KeyColor{QLatin1String("buttonj"), 0xff8a4590},     // variables and signs of inequality
};

} // namespace

std::optional<QColor> keyColor(QStringView imageName) {
    const auto* found =
        std::ranges::find_if(kKeyColors, [&](const KeyColor& row) { return imageName == row.imageName; });
    return found == kKeyColors.end() ? std::nullopt : std::optional(QColor::fromRgba(found->color));
}

} // namespace velmora
