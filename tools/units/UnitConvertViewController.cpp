#include "tools/units/UnitConvertViewController.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "engine/display/NumberDisplay.h"
#include "platform/machine/Alert.h"
#include "platform/machine/StaticObjectManager.h"
#include "platform/screens/NavigationController.h"
#include "platform/text/Log.h"
#include "tools/units/OffsetLinearUnitConverter.h"
#include "tools/units/TypedQuantity.h"
#include "tools/units/UnitConvertSettings.h"
#include "tools/units/UnitConverterModel.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

UnitConverterModel& units() { return UnitConverterModel::ucm(); }

void explain(std::string message) {
    Alert alert;
    alert.message = std::move(message);
    presentAlert(std::move(alert));
}

} // namespace

UnitConvertViewController::UnitConvertViewController() {
    setTitle("Units");
    setRightBarButtons({{"Settings", [this] { settingsButtonPressed(); }}});
}

UnitConvertViewController::~UnitConvertViewController() = default;

void UnitConvertViewController::viewDidLoad() { setHidesNavigationBar(false); }

void UnitConvertViewController::viewWillAppear(bool /*animated*/) { reloadPicker(); }

bool UnitConvertViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

// The picker

const UnitConverter* UnitConvertViewController::currentConverter() const {
    const auto& quantities = units().unitConverterArray();
    const auto row = static_cast<std::size_t>(m_selectedRows[kQuantityWheel]);
    return row < quantities.size() ? quantities[row].get() : nullptr;
}

bool UnitConvertViewController::isOffsetScale() const {
    return dynamic_cast<const OffsetLinearUnitConverter*>(currentConverter()) != nullptr;
}

int UnitConvertViewController::numberOfRowsInComponent(int component) const {
    if (component == kQuantityWheel) {
        return static_cast<int>(units().unitConverterArray().size());
    }
    const UnitConverter* converter = currentConverter();
    const bool isUnitWheel = component == kFromWheel || component == kToWheel;
    return converter && isUnitWheel ? static_cast<int>(converter->unitNames().size()) : 0;
}

std::string UnitConvertViewController::titleForRow(int row, int component) const {
    if (row < 0 || row >= numberOfRowsInComponent(component)) {
        return {};
    }
    const auto index = static_cast<std::size_t>(row);
    return component == kQuantityWheel ? units().unitConverterArray()[index]->unitsOfWhat()
                                       : currentConverter()->unitNames()[index];
}

std::string UnitConvertViewController::imageNameForRow(int row) const {
    std::string name = titleForRow(row, kQuantityWheel);
    std::ranges::transform(name, name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name + "icon";
}

int UnitConvertViewController::selectedRowInComponent(int component) const {
    const bool exists = component >= 0 && component < kWheelCount;
    return exists ? m_selectedRows[static_cast<std::size_t>(component)] : 0;
}

void UnitConvertViewController::pickerViewDidSelectRow(int row, int component) {
    if (row < 0 || row >= numberOfRowsInComponent(component)) {
        return;
    }
    m_selectedRows[static_cast<std::size_t>(component)] = row;
    if (component == kQuantityWheel) {
        units().setSelectedQuantityIndex(row);
        updateFromQuantity();
        reloadUnits();
    } else {
        units().selectPickerRow(row, component, m_selectedRows[kQuantityWheel]);
        if (component == kFromWheel) {
            m_componentReloaded.emit(kToWheel);
        }
    }
    updateConversion();
}

void UnitConvertViewController::swapUnits() {
    const int from = m_selectedRows[kFromWheel];
    const int to = m_selectedRows[kToWheel];
    pickerViewDidSelectRow(to, kFromWheel);
    pickerViewDidSelectRow(from, kToWheel);
    m_componentReloaded.emit(kFromWheel);
    m_componentReloaded.emit(kToWheel);
}

void UnitConvertViewController::reloadPicker() {
    // The quantities may have become more or fewer since the screen was last seen.
    m_selectedRows[kQuantityWheel] = units().selectedQuantityIndex();
    m_componentReloaded.emit(kQuantityWheel);
    updateFromQuantity();
    reloadUnits();
    updateConversion();
}

void UnitConvertViewController::reloadUnits() {
    for (const int wheel : {kFromWheel, kToWheel}) {
        const int quantity = m_selectedRows[kQuantityWheel];
        m_selectedRows[static_cast<std::size_t>(wheel)] =
            currentConverter() ? units().selectedPickerRowForComponent(wheel, quantity) : 0;
        m_componentReloaded.emit(wheel);
    }
}

// The number

void UnitConvertViewController::updateFromQuantity() {
    // Nothing typed is one of the unit; a scale with a zero of its own begins there.
    if (m_fromQuantityString.empty()) {
        m_fromQuantity = isOffsetScale() ? 0 : 1;
    } else if (m_fromQuantityString == "-") {
        m_fromQuantity = isOffsetScale() ? 0 : -1;
    } else {
        m_fromQuantity = leadingNumber(m_fromQuantityString);
    }
}

void UnitConvertViewController::updateConversion() {
    const UnitConverter* converter = currentConverter();
    if (!converter) {
        m_leftSideText = m_rightSideText = {};
        m_updated.emit();
        return;
    }
    const int from = m_selectedRows[kFromWheel];
    const int to = m_selectedRows[kToWheel];
    m_convertedQuantity = converter->quantity(m_fromQuantity, from, to);

    const bool hasNumber = !m_fromQuantityString.empty() && m_fromQuantityString != "-";
    std::string shown = m_fromQuantityString;
    if (!hasNumber && isOffsetScale()) {
        shown += "0 ";
    }
    m_leftSideText =
        shown + (hasNumber ? " " : "") + converter->nameForQuantity(m_fromQuantity, from).value_or("");
    m_rightSideText = displayStringWithDouble(m_convertedQuantity) + " " +
                      converter->nameForQuantity(m_convertedQuantity, to).value_or("");
    m_updated.emit();
}

std::string UnitConvertViewController::faultText() const {
    std::string fault = faultOfTypedQuantity(m_fromQuantityString);
    if (fault.empty() && currentConverter() && !std::isfinite(m_convertedQuantity)) {
        fault = "The result is too large.";
    }
    return fault;
}

// The keypad

void UnitConvertViewController::buttonPressed(std::string_view title) {
    const Model& model = Model::m();
    if (model.soundIsOn()) {
        StaticObjectManager::shared().playSound("click", model.soundVolume());
    }
    if (title == "Cancel") {
        if (NavigationController* stack = navigationController()) {
            stack->pop();
        }
    } else if (title == "OK") {
        OKButtonPressed();
    } else if (title == "+/-") {
        signButtonPressed();
    } else if (title == "clr") {
        clearButtonPressed();
    } else if (title == "del") {
        deleteButtonPressed();
    } else if (title == "Settings") {
        settingsButtonPressed();
    } else {
        buttonPressedWithTitle(title);
    }
    updateFromQuantity();
    updateConversion();
}

void UnitConvertViewController::buttonPressedWithTitle(std::string_view title) {
    m_fromQuantityString += title;
}

void UnitConvertViewController::signButtonPressed() {
    if (m_fromQuantityString.starts_with('-')) {
        m_fromQuantityString.erase(0, 1);
    } else {
        m_fromQuantityString.insert(0, "-");
    }
}

void UnitConvertViewController::clearButtonPressed() { m_fromQuantityString.clear(); }

void UnitConvertViewController::deleteButtonPressed() {
    if (!m_fromQuantityString.empty()) {
        m_fromQuantityString.pop_back();
    }
}

void UnitConvertViewController::OKButtonPressed() {
    if (const std::string fault = faultText(); !fault.empty()) {
        explain(fault);
        return;
    }
    const double result = m_convertedQuantity;
    const auto enter = [result](KeyboardViewController& calculator) { calculator.numberEntered(result); };
    if (currentConverter() && !returnToCalculator(navigationController(), enter)) {
        log("no calculator line for a converted quantity");
    }
}

void UnitConvertViewController::settingsButtonPressed() {
    if (NavigationController* stack = navigationController()) {
        stack->push(std::make_shared<UnitConvertSettings>());
    }
}

void UnitConvertViewController::typeMinus() {
    // Behind the mark of the exponent a minus can only be the exponent's; the key on screen is a change of
    // sign there as everywhere.
    if (m_fromQuantityString.ends_with('E')) {
        buttonPressed("-");
    } else {
        buttonPressed("+/-");
    }
}

bool UnitConvertViewController::hardwareKey(std::string_view key) {
    struct HardwareKey {
        std::string_view key;
        std::string_view title;
    };
    static constexpr std::array kKeys{
        HardwareKey{"Escape", "Cancel"}, HardwareKey{"Enter", "OK"},      HardwareKey{"Return", "OK"},
        HardwareKey{"=", "OK"},          HardwareKey{"Backspace", "del"}, HardwareKey{"Delete", "clr"},
        HardwareKey{"e", "E"},
    };
    if (key == "-" || key == "−") {
        typeMinus();
        return true;
    }
    const auto* row = std::ranges::find(kKeys, key, &HardwareKey::key);
    if (row != kKeys.end()) {
        buttonPressed(row->title);
        return true;
    }
    const bool isTyped =
        key.size() == 1 && std::string_view("0123456789.E").find(key) != std::string_view::npos;
    if (isTyped) {
        buttonPressed(key);
    }
    return isTyped;
}

} // namespace velmora
