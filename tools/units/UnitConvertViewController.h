#pragma once

#include "platform/screens/ViewController.h"
#include "tools/units/UnitConverter.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The unit converter's screen: a picker of three wheels (the quantity, the unit to convert from and the one
/// to convert to), a keypad of its own, and the two texts "2 feet" and "0.6096 meters".
class UnitConvertViewController final : public ViewController {
public:
    // The wheels, which the picker calls components.
    static constexpr int kQuantityWheel = 0;
    static constexpr int kFromWheel = 1;
    static constexpr int kToWheel = 2;
    static constexpr int kWheelCount = 3;

    UnitConvertViewController();
    ~UnitConvertViewController() override;

    std::string className() const override { return "UnitConvertViewController"; }
    std::string qmlFile() const override { return "UnitConvert.qml"; }

    // The picker. A row or wheel that does not exist has no text and cannot be selected.
    int numberOfRowsInComponent(int component) const;
    /// The quantity's name, or the unit's for one of it.
    std::string titleForRow(int row, int component) const;
    /// The picture of a quantity: "lengthicon".
    std::string imageNameForRow(int row) const;
    int selectedRowInComponent(int component) const;
    void pickerViewDidSelectRow(int row, int component);
    /// Exchanges the two units; the number stays.
    void swapUnits();

    // The keypad.
    /// A key by its title. A title that no key has is typed as it stands.
    void buttonPressed(std::string_view title);
    void buttonPressedWithTitle(std::string_view title);
    void signButtonPressed();
    void clearButtonPressed();
    void deleteButtonPressed();
    /// Puts the converted number, in full precision, into the calculator's line, which is then shown. What
    /// was not understood as it stands is explained instead, and nothing is lost.
    void OKButtonPressed(); // NOLINT(readability-identifier-naming): as the key is written
    /// Opens the choice between the usual units and the extended set.
    void settingsButtonPressed();
    /// A key of a hardware keyboard, by its name or the text it produces. False when it means nothing here.
    bool hardwareKey(std::string_view key);

    // What is converted.
    const std::string& fromQuantityString() const { return m_fromQuantityString; }
    double fromQuantity() const { return m_fromQuantity; }
    double convertedQuantity() const { return m_convertedQuantity; }
    /// The selected quantity's; null when no units could be read.
    const UnitConverter* currentConverter() const;

    /// The number as typed with its unit, and the result with its.
    const std::string& leftSideText() const { return m_leftSideText; }
    const std::string& rightSideText() const { return m_rightSideText; }
    /// What is wrong with the number typed; empty when it is understood.
    std::string faultText() const;

    /// Emitted when the texts have changed.
    Signal<>& updated() { return m_updated; }
    /// Emitted with the wheel whose rows or selected row have changed other than by its being turned.
    Signal<int>& componentReloaded() { return m_componentReloaded; }

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    void reloadPicker();
    void reloadUnits();
    void updateFromQuantity();
    void updateConversion();
    void typeMinus();
    bool isOffsetScale() const;

    std::string m_fromQuantityString;
    double m_fromQuantity = 1;
    double m_convertedQuantity = 1;
    std::array<int, kWheelCount> m_selectedRows{};
    std::string m_leftSideText;
    std::string m_rightSideText;
    Signal<> m_updated;
    Signal<int> m_componentReloaded;
};

} // namespace velmora
