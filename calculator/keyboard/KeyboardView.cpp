#include "calculator/keyboard/KeyboardView.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/EditingMode.h"
#include "calculator/keyboard/EntryLineText.h"
#include "calculator/keyboard/KeyTable.h"
#include "calculator/keyboard/KeyboardLayoutStrings.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/KeyboardSizes.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Assertion.h"
#include "calculator/model/InequalityTokens.h"
#include "calculator/model/KeyboardGeometry.h"
#include "calculator/model/Model.h"
#include "platform/machine/TextMeasure.h"
#include "platform/text/Utf8.h"
#include "toolkit/OrvGeometry.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kKeyFont = "Helvetica";
constexpr const char* kTallImageForParenthesis = "buttonBTall";
constexpr int kNarrowColumns = 5;
constexpr int kWideRows = 4;
constexpr int kWideRightColumns = 4;
constexpr int kMaximumEditingLines = 4;
constexpr double kSignPerEntrySize = 0.6;
constexpr double kSmallestSignSize = 11;
constexpr double kGapBeforeSign = 8;
constexpr Color kSignColor = Color::white(0.72); // 5.8 to 1 on the entry line's ground

int geometryNow() { return Model::m().keyboardGeometry(); }

const KeyboardSizes& sizesNow() { return keyboardSizes(geometryNow()); }

std::string imageNameForClass(const std::string& colourClass) {
    return "button" + colourClass + (isTablet() ? "@2x" : "");
}

} // namespace

KeyboardView::KeyboardView(KeyboardViewController& controller)
    : m_controller(controller), m_mode(controller.mode()) {
    m_currentEntryLabel.record().backgroundColor = backgroundColor();
}

KeyboardView::~KeyboardView() = default;

void KeyboardView::setDisplayModel(ExpressionWithTokenArray* buffer) {
    m_displayModel = buffer;
    m_currentEntryLabel.setModel(buffer);
}

void KeyboardView::setSize(double width, double height) {
    if (m_size == Size{width, height}) {
        return;
    }
    m_size = {width, height};
    if (!createSubviewsIfNeeded()) {
        layoutSubviews();
        layoutTableView();
        updateDisplay(); // how much of the line fits depends on the width
    }
}

void KeyboardView::createSubviews() {
    m_controller.createDisplayModel();
    createButtons();
    layoutSubviews();
    layoutTableView();
    updateDisplay();
}

bool KeyboardView::createSubviewsIfNeeded() {
    if (m_builtFor == configuration()) {
        return false;
    }
    createSubviews();
    return true;
}

KeyboardView::KeyboardConfiguration KeyboardView::configuration() const {
    const Model& model = Model::m();
    return {model.keyboardGeometry(), model.whichKeyboard(), model.iOnMainKeyboard(), variableName()};
}

void KeyboardView::layoutSubviews() {
    const std::vector<std::shared_ptr<Button>> buttons(m_buttons.begin(), m_buttons.end());
    if (!buttons.empty()) {
        newButtonLayout().layoutExistingButtonArray(buttons);
    }
    m_backingLabel.frame = backingLabelFrame();
    m_backingLabel.backgroundColor = backgroundColor();

    const KeyboardSizes& sizes = sizesNow();
    const bool isHistory = m_mode.isCalculator();
    LabelRecord& entry = m_currentEntryLabel.record();
    entry.frame = entryLineFrame();
    entry.fontSize = m_mode.hasSmallEntryLine ? sizes.entryFontSize : sizes.entryFontSizeEditing;
    entry.textColor = Color::white(1);
    entry.alignment = isHistory ? TextAlignment::Right : TextAlignment::Left;
    entry.lineCount = isHistory ? 1 : kMaximumEditingLines;
    entry.truncation = isHistory ? TextTruncation::Head : TextTruncation::WordWrap;
    if (KeyboardScreen* screen = m_controller.screen()) {
        screen->layoutChanged();
    }
}

void KeyboardView::layoutTableView() {
    if (!m_mode.isCalculator()) {
        return;
    }
    if (!m_displayTableView) {
        assertionFailure("the calculator screen has no history table");
        return;
    }
    m_displayTableView->reloadTableView();
}

void KeyboardView::createButtons() {
    m_equalsButton = nullptr;
    m_buttons.clear();
    m_builtFor = configuration();
    const std::vector<std::string> characters = splitCodePoints(buttonLayoutString());
    if (!characters.empty()) {
        for (const auto& button : newButtonLayout().newButtonArray()) {
            m_buttons.push_back(std::static_pointer_cast<CalculatorButton>(button));
        }
    }
    m_characters.assign(m_buttons.size(), " ");
    for (std::size_t i = 0; i < std::min(m_buttons.size(), characters.size()); ++i) {
        m_characters[i] = characters[i];
        if (characters[i] == " ") {
            continue;
        }
        setUpButton(*m_buttons[i], characters[i]);
        if (characters[i] == "=") {
            m_equalsButton = m_buttons[i];
        }
    }
    if (m_equalsButton) {
        m_equalsBackgroundImageName = m_equalsButton->appearance().backgroundImageName;
        if (!m_mode.isCalculator()) {
            m_equalsButton->setTitleString("save");
        }
    }
    if (KeyboardScreen* screen = m_controller.screen()) {
        screen->keysChanged();
    }
}

void KeyboardView::setUpButton(CalculatorButton& button, const std::string& character) {
    const KeyRow row = keyRow(character);
    const std::string title = titleStringWithUnichar(character);
    const std::string colour = colourClass(character, m_mode);
    KeyAppearance appearance;
    appearance.shown = true;
    appearance.colourClass = colour;
    appearance.backgroundImageName = imageNameForClass(colour);
    appearance.fontName = kKeyFont;
    appearance.fontSize = sizesNow().keyFontSize;
    appearance.accessibleName =
        row.accessibleName.empty() ? accessibleName(title) : std::string(row.accessibleName);
    appearance.repeats = row.repeats;
    button.setController(&m_controller);
    button.setTitleString(title);
    button.setCustomSelector(row.action);
    button.setAppearance(std::move(appearance));
}

void KeyboardView::updateEqualsButton() {
    if (!m_equalsButton || !m_displayModel) {
        return;
    }
    const bool isEmpty = m_displayModel->count() == 0;
    const bool isBalanced = m_displayModel->enoughRightParens();
    std::string title = "save";
    if (!isEmpty && !isBalanced) {
        title = ")";
    } else if (m_mode.isCalculator()) {
        title = isEmpty ? "=)" : "=";
    }
    m_equalsButton->setTitleString(title);
    m_equalsButton->setAccessibleName(accessibleName(title));
    m_equalsButton->setBackgroundImageName(isBalanced ? m_equalsBackgroundImageName
                                                      : kTallImageForParenthesis);
    if (KeyboardScreen* screen = m_controller.screen()) {
        screen->showEqualsKey();
    }
}

void KeyboardView::updateChosenSign() {
    const auto* inequality = dynamic_cast<const InequalityTokens*>(m_displayModel);
    bool changed = false;
    for (const auto& button : m_buttons) {
        const bool chosen = inequality && button->titleString() == inequality->inequalityType();
        changed = changed || chosen != button->appearance().chosen;
        button->setChosen(chosen);
    }
    if (KeyboardScreen* screen = changed ? m_controller.screen() : nullptr) {
        screen->showChosenSign();
    }
}

void KeyboardView::updateDisplay() {
    if (!m_displayModel) {
        return;
    }
    LabelRecord& entry = m_currentEntryLabel.record();
    const EntryLineText text =
        entryLineText(*m_displayModel, m_mode, m_target, m_enteringWhichEquation, m_controller.typedName());
    entry.text = textFittedToLabel(text, entry);
    m_currentEntryLines = linesInLabel(text, entry);
    m_isCursorAtEndOfEntry = m_displayModel->cursorPosition() == m_displayModel->count() ||
                             (entry.lineCount == 1 && m_currentEntryLines == text.beforeCursor);
    updateAngleSign();
    if (KeyboardScreen* screen = m_controller.screen()) {
        screen->showEntry();
    }
    updateEqualsButton();
    updateChosenSign();
}

EntryLineText KeyboardView::entryText() const {
    return m_displayModel ? entryLineText(*m_displayModel, m_mode, m_target, m_enteringWhichEquation,
                                          m_controller.typedName())
                          : EntryLineText();
}

void KeyboardView::updateAngleSign() {
    const LabelRecord& entry = m_currentEntryLabel.record();
    m_angleSign.text = Model::m().angleMode() == 1 ? "DEG" : "RAD";
    m_angleSign.fontSize = std::max(kSmallestSignSize, entry.fontSize * kSignPerEntrySize);
    m_angleSign.textColor = kSignColor;
    const Size size = textSize(m_angleSign);
    const Rect& place = entry.frame;
    if (entry.alignment == TextAlignment::Right) { // the line comes from the right
        m_angleSign.frame = {place.x, place.y, size.width, place.height};
        m_angleSign.hidden = textSize(entry).width + kGapBeforeSign + size.width > place.width;
        return;
    }
    const double bottom = place.y + place.height;
    m_angleSign.frame = {place.x + place.width - size.width, bottom - size.height, size.width, size.height};
    const std::size_t lastLine = m_currentEntryLines.rfind('\n') + 1; // 0 where there is only one
    const double lineHeight = textLineHeight(entry.fontSize, entry.fontName);
    const auto lines = static_cast<double>(std::ranges::count(m_currentEntryLines, '\n') + 1);
    const double endOfText = place.y + (place.height + lines * lineHeight) / 2;
    const double lineWidth =
        textWidth(std::string_view(m_currentEntryLines).substr(lastLine), entry.fontSize);
    m_angleSign.hidden =
        endOfText > m_angleSign.frame.y && lineWidth + kGapBeforeSign + size.width > place.width;
}

std::shared_ptr<CalculatorButton> KeyboardView::buttonTyping(const std::string& text) const {
    const auto found = std::ranges::find_if(m_buttons, [&](const auto& button) {
        return button->isShown() && std::ranges::count(button->titleArray(), text) > 0;
    });
    return found == m_buttons.end() ? nullptr : *found;
}

std::shared_ptr<CalculatorButton> KeyboardView::buttonWithCharacter(const std::string& character) const {
    const auto found = std::ranges::find(m_characters, character);
    const auto index = static_cast<std::size_t>(found - m_characters.begin());
    return found == m_characters.end() || !m_buttons[index]->isShown() ? nullptr : m_buttons[index];
}

double KeyboardView::topOfHistoryArea() const {
    const KeyboardSizes& sizes = sizesNow();
    return m_size.height - sizes.gridHeight - sizes.bottomMargin - kGridUpperMargin -
           (m_mode.hasSmallEntryLine ? sizes.entryLineHeight : sizes.entryLineHeightEditing);
}

Rect KeyboardView::gridFrame() const {
    const KeyboardSizes& sizes = sizesNow();
    const double width = sizes.gridWidth > 0 ? sizes.gridWidth : m_size.width - 2 * sizes.gridSideMargin;
    return {sizes.gridSideMargin, m_size.height - sizes.gridHeight - sizes.bottomMargin, width,
            sizes.gridHeight};
}

Rect KeyboardView::backingLabelFrame() const {
    const KeyboardSizes& sizes = sizesNow();
    const double y = m_mode.isCalculator() ? topOfHistoryArea() : 0;
    return {0, y, m_size.width,
            m_mode.hasSmallEntryLine ? sizes.entryLineHeight : sizes.entryLineHeightEditing};
}

Rect KeyboardView::entryLineFrame() const {
    return inset(backingLabelFrame(), m_mode.isCalculator() ? kEntrySideInset : kEntrySideInsetEditing, 0);
}

Rect KeyboardView::displayTableFrame() const {
    return m_mode.isCalculator() ? Rect{0, 0, m_size.width, topOfHistoryArea()} : Rect{};
}

int KeyboardView::numberOfColumns() const {
    if (!keyboardGeometryIsWide(geometryNow())) {
        return kNarrowColumns;
    }
    return kWideRightColumns + m_mode.wideLeftColumns;
}

int KeyboardView::numberOfRows() const {
    return keyboardGeometryIsWide(geometryNow()) ? kWideRows : m_mode.narrowRows;
}

ButtonLayout KeyboardView::newButtonLayout() const {
    ButtonLayout layout =
        keyboardGeometryIsWide(geometryNow()) ? newWideButtonLayout() : newIPhoneButtonLayout();
    layout.setButtonClass(
        [](const Rect& frame) -> std::shared_ptr<Button> { return CalculatorButton::newButton(frame); });
    return layout;
}

ButtonLayout KeyboardView::newIPhoneButtonLayout() const {
    ButtonGrid grid(gridFrame(), numberOfColumns(), numberOfRows(), 2, 2);
    grid.setHeightOfButtonInLowerRight(m_mode.narrowRowsOfTallKey);
    ButtonLayout layout;
    layout.addGrid(grid);
    return layout;
}

ButtonLayout KeyboardView::newWideButtonLayout() const {
    const Rect frame = gridFrame();
    const int columns = numberOfColumns();
    const int leftColumns = columns - kWideRightColumns;
    const double width = frame.width - kGapBetweenWideGrids;
    const double leftWidth = width * leftColumns / columns;
    const double rightWidth = width * kWideRightColumns / columns;

    const Rect left{frame.x, frame.y, leftWidth, frame.height};
    const Rect right{frame.x + frame.width - rightWidth, frame.y, rightWidth, frame.height};
    ButtonGrid rightGrid(right, kWideRightColumns, kWideRows, 3, 3);
    rightGrid.setHeightOfButtonInLowerRight(2);
    ButtonLayout layout;
    layout.addGrid(ButtonGrid(left, leftColumns, kWideRows, 3, 3));
    layout.addGrid(rightGrid);
    return layout;
}

int KeyboardView::tokenGapAtPoint(Point point) const {
    if (!m_displayModel) {
        return 0;
    }
    return velmora::tokenGapAtPoint(point, m_currentEntryLabel.record(),
                                    entryLineText(*m_displayModel, m_mode, m_target, m_enteringWhichEquation),
                                    *m_displayModel);
}

std::string KeyboardView::variableName() const { return keyVariable(m_mode, m_target); }

std::string KeyboardView::decimalButtonTitle() const {
    const bool sharesKey = keyboardGeometryIsNarrow(geometryNow()) && Model::m().iOnMainKeyboard();
    return sharesKey ? ". i" : ".";
}

std::string KeyboardView::titleStringWithUnichar(const std::string& character) const {
    if (character == ".") {
        return decimalButtonTitle();
    }
    if (character == "π" && m_mode.variableSharesKeyOfPi && keyboardGeometryIsNarrow(geometryNow())) {
        const std::string variable = variableName();
        // A list without a variable, such as the constants, leaves the key to π alone.
        return variable.empty() ? character : variable + " " + character;
    }
    return std::string(keyRow(character).title);
}

std::string KeyboardView::buttonLayoutString() const {
    const Model& model = Model::m();
    const int geometry = model.keyboardGeometry();
    return adjustedLayoutString(keyboardLayoutString(geometry, m_mode, model.whichKeyboard()),
                                {geometry, m_mode, model.iOnMainKeyboard(), variableName()});
}

} // namespace velmora
