#include "calculator/keyboard/HardwareKeyboard.h"

#include "calculator/keyboard/HardwareKeys.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/InequalityTokens.h"

namespace velmora {

bool HardwareKeyboard::press(std::string_view key) {
    const HardwareKey meaning = hardwareKeyWithText(key);
    switch (meaning.action) {
    case HardwareAction::None:
        return false;
    case HardwareAction::Type:
        type(meaning.text);
        return true;
    case HardwareAction::Letter:
        typeLetter(meaning.text);
        return true;
    case HardwareAction::Blank:
        typeBlank();
        return true;
    case HardwareAction::Power:
        typePower(meaning.text);
        return true;
    case HardwareAction::Factorial:
        typeFactorial(meaning.text);
        return true;
    case HardwareAction::TallKey:
        return pressKeyOfCharacter("=");
    case HardwareAction::Delete:
        return pressKeyOfCharacter("D");
    case HardwareAction::Left:
        return pressKeyOfCharacter("←");
    case HardwareAction::Right:
        return pressKeyOfCharacter("→");
    case HardwareAction::Clear:
        m_controller.edit([](LineEditor& editor) {
            editor.clear();
            return std::string();
        });
        return true;
    case HardwareAction::DeleteForward:
        m_controller.editBehindNames([](LineEditor& editor) { editor.deleteForward(); });
        return true;
    case HardwareAction::Home:
        m_controller.editBehindNames([](LineEditor& editor) { editor.moveCursorTo(0); });
        return true;
    case HardwareAction::End:
        m_controller.editBehindNames(
            [](LineEditor& editor) { editor.moveCursorTo(editor.line() ? editor.line()->count() : 0); });
        return true;
    case HardwareAction::Earlier:
        return m_controller.recallLine(-1);
    case HardwareAction::Later:
        return m_controller.recallLine(1);
    }
    return false;
}

bool HardwareKeyboard::pressKeyOfCharacter(const std::string& character) {
    const auto button = m_controller.keyboardView().buttonWithCharacter(character);
    if (button) {
        button->pressed();
    }
    return button != nullptr;
}

void HardwareKeyboard::type(const std::string& text) {
    LineEditor& editor = m_controller.editor();
    const bool isSign = InequalityTokens::isInequalitySign(text);
    if (isSign && m_controller.mode().tallKey != TallKeyAction::StoresInequality) {
        typeLetter(text); // there is nothing to compare with here
        return;
    }
    if (!editor.typedName().empty()) {
        bool isTaken = false;
        m_controller.edit([&](LineEditor& line) {
            isTaken = line.takesIntoName(text);
            return line.typedName().empty() || line.waitsForMore() ? std::string() : line.reasonAgainstName();
        });
        if (isTaken) {
            return;
        }
    }
    if (editor.wouldJoinNumbers(text)) {
        if (!editor.endsInPower()) {
            typeLetter(text);
            return;
        }
        m_controller.edit([](LineEditor& line) { // x²3 is a product
            line.insertText("*");
            return std::string();
        });
    }
    if (isSign) {
        pressKeyOfCharacter(text);
        return;
    }
    const auto button = m_controller.keyboardView().buttonTyping(text);
    if (button && button->titleArray().size() == 1) {
        button->pressed();
        return;
    }
    // A key with several titles would replace "." by "i" on the second "."; who types means the first.
    m_controller.edit([&](LineEditor& line) {
        line.insertText(text);
        return std::string();
    });
}

void HardwareKeyboard::typeLetter(const std::string& letter) {
    m_controller.edit([&](LineEditor& editor) { return editor.typeLetter(letter); });
}

void HardwareKeyboard::typeBlank() {
    m_controller.edit([](LineEditor& editor) { return editor.typeBlank(); });
}

void HardwareKeyboard::typePower(const std::string& exponent) {
    m_controller.edit([&](LineEditor& editor) {
        if (!editor.finishName().empty()) {
            return editor.typeLetter(exponent == "2" ? "²" : "³");
        }
        editor.insertPower(exponent);
        return std::string();
    });
}

void HardwareKeyboard::typeFactorial(const std::string& sign) {
    m_controller.edit([&](LineEditor& editor) {
        const bool isReadable = editor.finishName().empty() && editor.insertFactorial();
        return isReadable ? std::string() : editor.typeLetter(sign);
    });
}

} // namespace velmora
