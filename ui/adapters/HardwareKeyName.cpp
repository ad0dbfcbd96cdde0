#include "ui/adapters/HardwareKeyName.h"

#include <Qt>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

struct NamedKey {
    int key;
    const char* name;
};
constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Enter, "Enter"},
    NamedKey{Qt::Key_Return, "Return"},
    NamedKey{Qt::Key_Backspace, "Backspace"},
    NamedKey{Qt::Key_Delete, "Delete"},
    NamedKey{Qt::Key_Escape, "Escape"},
    NamedKey{Qt::Key_Left, "Left"},
    NamedKey{Qt::Key_Right, "Right"},
    NamedKey{Qt::Key_Up, "Up"},
    NamedKey{Qt::Key_Down, "Down"},
    NamedKey{Qt::Key_Home, "Home"},
    NamedKey{Qt::Key_End, "End"},
};

} // namespace

std::string hardwareKeyName(int key, const QString& text, int modifiers) {
    // Some keyboards reach "^" or "π" with AltGr, which arrives as Control and Alt together or as neither.
    const auto held = Qt::KeyboardModifiers::fromInt(modifiers) &
                      (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isThirdLevel = held == (Qt::ControlModifier | Qt::AltModifier);
    if (held != Qt::NoModifier && !isThirdLevel) {
        return {};
    }
    const auto* named = std::ranges::find(kNamedKeys, key, &NamedKey::key);
    if (named != kNamedKeys.end()) {
        return named->name;
    }
    // The comma of a number block stands where others have the point.
    if ((modifiers & Qt::KeypadModifier) != 0 && key == Qt::Key_Comma) {
        return ".";
    }
    // Dead keys arrive without a text; "^" is the one that is needed here.
    if (text.isEmpty() && key == Qt::Key_Dead_Circumflex) {
        return "^";
    }
    return text.toStdString();
}

} // namespace velmora
