#pragma once

#include "calculator/model/InequalityTokens.h"
#include "calculator/model/ModelEnvironment.h"
#include "engine/lines/ExpressionList.h"
#include "engine/lines/ExpressionWithLevelCurveHeightsList.h"
#include "engine/lines/NamedExpressionList.h"
#include "platform/events/Signal.h"
#include "platform/files/PropertyList.h"
#include "platform/machine/Device.h"
#include "platform/screens/SettingsTargetRegistry.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class TabBarController;
class ViewController;

/// Everything the user keeps: the history, the equations of every graph type, the constants, the graph
/// range and all settings. One object, which every screen reads and writes; while it lives it is the
/// engine's environment. Setters store what they are given: ranges are checked where values come from
/// outside (setValueForKey, a loaded file).
class Model final : public SettingsTarget {
public:
    /// The one model, made on first use with the values of a first start.
    static Model& m();
    /// Replaces it by a fresh one. References to the former one and to its lists become invalid.
    static void resetForTests();
    ~Model() override;

    /// Has everything registered for saving saved, then writes the model's own file. A failure to write
    /// leaves the former file as it was.
    void save();
    /// Reads the model's file. Without one, or when it cannot be read or understood, everything is as at a
    /// first start; such a file is kept under another name.
    void load();
    /// Where the model is kept; nothing on a machine without a documents folder.
    static std::optional<std::filesystem::path> dataFilePath();

    // Lists. Their entries start empty; the history starts without entries and keeps the newest 50.
    ExpressionList& history() { return m_history; }
    ExpressionList& equations() { return m_equations; }     ///< y1(x) to y4(x)
    ExpressionList& parametricX() { return m_parametricX; } ///< x1(t) to x4(t)
    ExpressionList& parametricY() { return m_parametricY; } ///< y1(t) to y4(t)
    ExpressionList& polarR() { return m_polarR; }           ///< r1(θ) to r4(θ)
    ExpressionWithLevelCurveHeightsList& impliedFunctions() { return m_impliedFunctions; } ///< f1(x, y) …
    NamedExpressionList& constants() { return m_constants; }
    /// Four or more entries.
    std::vector<InequalityTokens>& inequalityArray() { return m_inequalityArray; }

    // Numbers and angles.
    int maxDigitsForDecimalNotation() const { return m_maxDigitsForDecimalNotation; }
    void setMaxDigitsForDecimalNotation(int digits) { m_maxDigitsForDecimalNotation = digits; }
    int displayDigits() const { return m_displayDigits; }
    void setDisplayDigits(int digits) { m_displayDigits = digits; }
    bool trailingZeroes() const { return m_trailingZeroes; }
    void setTrailingZeroes(bool on) { m_trailingZeroes = on; }
    bool commasInNumbers() const { return m_commasInNumbers; }
    void setCommasInNumbers(bool on) { m_commasInNumbers = on; }
    /// 0 radians, 1 degrees.
    int angleMode() const { return m_angleMode; }
    void setAngleMode(int mode);
    /// "Radians" or "Degrees"; "Radians", after a programming fault, for any other mode.
    std::string angleModeAsString() const;
    bool roundSmallPartsOfComplexNumbers() const { return m_roundSmallPartsOfComplexNumbers; }
    void setRoundSmallPartsOfComplexNumbers(bool on) { m_roundSmallPartsOfComplexNumbers = on; }
    /// 1e-12 while small parts are rounded, else 0.
    double complexRoundingThreshold() const;

    // Sound. The volume is 0 to 1.
    bool soundIsOn() const { return m_soundIsOn; }
    void setSoundIsOn(bool on) { m_soundIsOn = on; }
    double soundVolume() const { return m_soundVolume; }
    void setSoundVolume(double volume) { m_soundVolume = volume; }

    // Keyboard and screen.
    bool iOnMainKeyboard() const { return m_iOnMainKeyboard; }
    void setIOnMainKeyboard(bool on) { m_iOnMainKeyboard = on; }
    /// Which of the two narrow key arrangements: 0 or not 0.
    int whichKeyboard() const { return m_whichKeyboard; }
    void setWhichKeyboard(int keyboard) { m_whichKeyboard = keyboard; }
    bool largeFontsOnPhone() const { return m_largeFontsOnPhone; }
    void setLargeFontsOnPhone(bool large) { m_largeFontsOnPhone = large; }
    /// On a tablet 0 to 3 as set (anything else reads as 1), on a phone always 4. A window that changes
    /// from a tablet to a phone and back finds its mode again.
    int displayMode() const;
    void setDisplayMode(int mode) { m_displayMode = mode; }
    /// Modes 0 and 2.
    bool displayModeIsWide() const;
    int orientationMode() const { return m_orientationMode; }
    void setOrientationMode(int mode) { m_orientationMode = mode; }
    bool shouldAutorotateToInterfaceOrientation(Orientation orientation) const;
    /// 0 to 4, see KeyboardGeometry; follows the device in force.
    int keyboardGeometry() const;
    /// The size class of equation fonts for the present geometry.
    int fontSizeMode() const;

    // Graph. A maximum below its minimum + 1e-9 is repaired, and stored so, when it is read; where either
    // is NaN it is left as it is.
    double xMinForGraph() const { return m_xMinForGraph; }
    void setXMinForGraph(double value) { m_xMinForGraph = value; }
    double xMaxForGraph() const;
    void setXMaxForGraph(double value) { m_xMaxForGraph = value; }
    double yMinForGraph() const { return m_yMinForGraph; }
    void setYMinForGraph(double value) { m_yMinForGraph = value; }
    double yMaxForGraph() const;
    void setYMaxForGraph(double value) { m_yMaxForGraph = value; }
    /// y from -10 to 10, x from -10 to 10.062695924764892.
    void resetGraphBounds();
    double tStartForParametricGraph() const { return m_tStartForParametricGraph; }
    void setTStartForParametricGraph(double value) { m_tStartForParametricGraph = value; }
    double tEndForParametricGraph() const { return m_tEndForParametricGraph; }
    void setTEndForParametricGraph(double value) { m_tEndForParametricGraph = value; }
    double thetaStartForPolarGraph() const { return m_thetaStartForPolarGraph; }
    void setThetaStartForPolarGraph(double value) { m_thetaStartForPolarGraph = value; }
    double thetaEndForPolarGraph() const { return m_thetaEndForPolarGraph; }
    void setThetaEndForPolarGraph(double value) { m_thetaEndForPolarGraph = value; }
    /// 0 functions y(x), 1 polar, 2 parametric.
    int graphType() const { return m_graphType; }
    /// On a change the equation editor at the root of the second tab is exchanged, while a tab bar is set.
    void setGraphType(int type);
    Signal<>& graphTypeChanged() { return m_graphTypeChanged; }
    int graphGridLineType() const { return m_graphGridLineType; }
    void setGraphGridLineType(int type) { m_graphGridLineType = type; }
    bool graphBackgroundIsBlack() const { return m_graphBackgroundIsBlack; }
    void setGraphBackgroundIsBlack(bool black) { m_graphBackgroundIsBlack = black; }
    bool putLabelsOnGraph() const { return m_putLabelsOnGraph; }
    void setPutLabelsOnGraph(bool on) { m_putLabelsOnGraph = on; }
    bool shakeToResetGraph() const { return m_shakeToResetGraph; }
    void setShakeToResetGraph(bool on) { m_shakeToResetGraph = on; }
    bool sameScaleXAndY() const { return m_sameScaleXAndY; }
    void setSameScaleXAndY(bool on) { m_sameScaleXAndY = on; }
    /// True when the graph type is 0 and no equation can be drawn.
    bool explainFailureToGraph() const;

    // Unit converter.
    bool unitConverterIsPushed() const { return m_unitConverterIsPushed; }
    void setUnitConverterIsPushed(bool pushed) { m_unitConverterIsPushed = pushed; }
    const std::optional<PropertyArray>& unitConverterArray() const { return m_unitConverterArray; }
    void setUnitConverterArray(std::optional<PropertyArray> array) {
        m_unitConverterArray = std::move(array);
    }
    const PropertyArray& selectedUnitConverterPickerRows() const { return m_selectedUnitConverterPickerRows; }
    void setSelectedUnitConverterPickerRows(PropertyArray rows) {
        m_selectedUnitConverterPickerRows = std::move(rows);
    }
    /// The stored index unless it is greater than the number of unitConverterArray's entries, else that
    /// number minus one. An index equal to the number is let through; intended.
    int pickerSelectedUnitIndex() const;
    void setPickerSelectedUnitIndex(int index) { m_pickerSelectedUnitIndex = index; }

    // The tip about the settings.
    bool settingsHaveBeenAccessed() const { return m_settingsHaveBeenAccessed; }
    void setSettingsHaveBeenAccessed(bool accessed) { m_settingsHaveBeenAccessed = accessed; }
    /// How often the program has become active, summed over runs.
    int nHasBecomeActive() const { return m_nHasBecomeActive; }
    void setNHasBecomeActive(int count) { m_nHasBecomeActive = count; }
    /// Adds a count that is not negative; the sum stays at the greatest number once it is reached.
    void addActivations(int count);
    /// At every twentieth activation (and before the first), until the settings have been opened once.
    bool shouldShowSettingsTip() const;

    /// The equation editor for the present graph type, made through the screen registry when the type has
    /// changed since the last one. Null, logged, while no such screen is registered.
    std::shared_ptr<ViewController> currentEquationsViewController();
    /// The program's tabs; null while there are none.
    std::shared_ptr<TabBarController> tabBarController() const { return m_tabBarController.lock(); }
    /// The bar whose second tab holds the equation editor; the model does not keep it alive.
    void setTabBarController(std::weak_ptr<TabBarController> tabBar) {
        m_tabBarController = std::move(tabBar);
    }

    /// The properties of ModelProperties.h by key.
    std::optional<PropertyList> valueForKey(std::string_view key) const override;
    bool setValueForKey(std::string_view key, const PropertyList& value) override;

private:
    Model();
    static std::unique_ptr<Model>& instance();

    ExpressionList m_history;
    ExpressionList m_equations;
    ExpressionList m_parametricX;
    ExpressionList m_parametricY;
    ExpressionList m_polarR;
    ExpressionWithLevelCurveHeightsList m_impliedFunctions;
    NamedExpressionList m_constants;
    std::vector<InequalityTokens> m_inequalityArray;

    int m_maxDigitsForDecimalNotation = 9;
    int m_displayDigits = 5;
    bool m_trailingZeroes = false;
    bool m_commasInNumbers = false;
    int m_angleMode = 0;
    bool m_roundSmallPartsOfComplexNumbers = true;
    bool m_soundIsOn = false;
    double m_soundVolume = 0.3;
    bool m_iOnMainKeyboard = false;
    int m_whichKeyboard = 0;
    bool m_largeFontsOnPhone = false;
    int m_displayMode = 1;
    int m_orientationMode = 0;
    // The uneven right edge is what users' graphs have always started with; keep every digit.
    double m_xMinForGraph = -10;
    mutable double m_xMaxForGraph = 10.062695924764892; // repaired when read
    double m_yMinForGraph = -10;
    mutable double m_yMaxForGraph = 10; // repaired when read
    double m_tStartForParametricGraph = 0;
    double m_tEndForParametricGraph = 1;
    double m_thetaStartForPolarGraph = 0;
    double m_thetaEndForPolarGraph = 6.283185307179586;
    int m_graphType = 0;
    int m_graphGridLineType = 0;
    bool m_graphBackgroundIsBlack = false;
    bool m_putLabelsOnGraph = true;
    bool m_shakeToResetGraph = true;
    bool m_sameScaleXAndY = false;
    bool m_unitConverterIsPushed = false;
    std::optional<PropertyArray> m_unitConverterArray;
    PropertyArray m_selectedUnitConverterPickerRows;
    int m_pickerSelectedUnitIndex = 0;
    bool m_settingsHaveBeenAccessed = false;
    int m_nHasBecomeActive = 0;

    Signal<> m_graphTypeChanged;
    std::optional<int> m_editorGraphType; // of the editor kept below
    std::shared_ptr<ViewController> m_equationsEditor;
    std::weak_ptr<TabBarController> m_tabBarController;

    ModelEnvironment m_environment{*this};
    EnvironmentScope m_environmentScope{m_environment};
};

} // namespace velmora
