#pragma once

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/CalculatorButton.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Device.h"
#include "platform/machine/Pasteboard.h"
#include "platform/machine/Sound.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace velmora::test {

/// Remembers what the screen was told.
class RecordingScreen final : public KeyboardScreen {
public:
    void reloadHistory() override { ++reloads; }
    void scrollHistoryToEnd(bool animated) override { animated ? ++animatedScrolls : ++scrolls; }
    void showEntry() override { ++entries; }
    void showEqualsKey() override {}
    void showChosenSign() override {}
    void keysChanged() override { ++keyChanges; }
    void layoutChanged() override { ++layouts; }
    void showEditMenu(bool shown) override { menuShown = shown; }
    void showNotice(const std::string& text) override { notice = text; }
    void offerUndo(const std::string& text, double seconds) override {
        notice = text;
        undoSeconds = seconds;
    }

    int reloads = 0;
    int scrolls = 0;
    int animatedScrolls = 0;
    int entries = 0;
    int keyChanges = 0;
    int layouts = 0;
    bool menuShown = false;
    std::string notice;
    double undoSeconds = 0;
};

/// A screen that only has a name.
class OtherScreen : public ViewController {
public:
    std::string className() const override { return "OtherScreen"; }
};

inline TokenArray tokens(const std::string& texts) {
    TokenArray array;
    std::istringstream stream(texts);
    for (std::string text; stream >> text;) {
        array.emplace_back(Token(text));
    }
    return array;
}

/// A fresh model on a machine of its own: what was logged, played, shown and copied can be read.
class ModelTest : public testing::Test {
public:
    ModelTest() {
        ScreenRegistry::shared().reset();
        Model::resetForTests();
    }
    ~ModelTest() override {
        ScreenRegistry::shared().reset();
        Model::resetForTests();
    }

    bool logHolds(const std::string& part) const {
        for (const std::string& line : logged) {
            if (line.find(part) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    PlainDevice device;
    RecordingAlertPresenter alerts;
    RecordingSoundPlayer sounds;
    PlainPasteboard pasteboard;
    std::vector<std::string> logged;

private:
    DeviceScope m_device{device};
    AlertPresenterScope m_alerts{alerts};
    SoundPlayerScope m_sounds{sounds};
    PasteboardScope m_pasteboard{pasteboard};
    LogScope m_log{[this](std::string_view line) { logged.emplace_back(line); }};
};

/// A keyboard screen on a stack, driven by its keys.
class KeyboardTest : public ModelTest {
public:
    /// Opens the calculator (mode 0), or an editor above a plain root screen.
    void open(int entering = 0, ExpressionList* target = nullptr, int slot = 0, double width = 320,
              double height = 499) {
        keyboard = std::make_shared<KeyboardViewController>(entering);
        keyboard->setTarget(target);
        keyboard->setEnteringWhichEquation(slot);
        keyboard->setScreen(&screen);
        if (entering == 0) {
            stack = std::make_shared<NavigationController>(keyboard);
        } else {
            stack = std::make_shared<NavigationController>(std::make_shared<OtherScreen>());
            stack->push(keyboard, false);
        }
        stack->appear();
        keyboard->keyboardView().setSize(width, height);
    }

    /// The shown key with that face; "=" is the tall key whatever it shows.
    std::shared_ptr<CalculatorButton> key(const std::string& title) {
        KeyboardView& view = keyboard->keyboardView();
        if (title == "=") {
            return view.equalsButton();
        }
        for (const auto& button : view.buttonArray()) {
            if (button->isShown() && button->titleString() == title) {
                return button;
            }
        }
        return title == "e" ? view.buttonWithCharacter("e") : nullptr;
    }

    /// Presses the keys whose titles are listed with blanks between them.
    void press(const std::string& titles) {
        std::istringstream stream(titles);
        for (std::string title; stream >> title;) {
            const auto button =
                title == "sqrt" ? keyboard->keyboardView().buttonWithCharacter("S") : key(title);
            ASSERT_TRUE(button) << "no key " << title;
            button->pressed();
        }
    }
    /// Presses hardware keys listed with blanks between them.
    void type(const std::string& keys) {
        std::istringstream stream(keys);
        for (std::string text; stream >> text;) {
            EXPECT_TRUE(keyboard->hardwareKey(text)) << text;
        }
    }

    std::string entry() { return keyboard->keyboardView().currentEntryLabel().record().text; }
    /// The history as "line=result", oldest first.
    std::vector<std::string> history() {
        const DisplayHistoryTableViewController& table = *keyboard->displayTableViewController();
        std::vector<std::string> rows;
        for (int row = table.nTipCells(); row < table.numberOfRows(); ++row) {
            const DisplayHistoryCell cell = table.historyCell(row, 320);
            rows.push_back(cell.inputLabel().text + " = " + cell.outputLabel().text);
        }
        return rows;
    }

    /// The history and the entry line, such as "1+1 = 2; ans+".
    std::string shown() {
        std::string text;
        for (const std::string& row : history()) {
            text += row + "; ";
        }
        return text + entry();
    }

    RecordingScreen screen;
    std::shared_ptr<KeyboardViewController> keyboard;
    std::shared_ptr<NavigationController> stack;
};

using Texts = std::vector<std::string>;

} // namespace velmora::test
