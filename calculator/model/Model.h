#pragma once

#include "calculator/model/HalfTypedLine.h"
#include "calculator/model/InequalityTokens.h"
#include "calculator/model/ModelEnvironment.h"
#include "calculator/model/ModelFile.h"
#include "calculator/model/ModelSettings.h"
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
/// engine's environment.
class Model final : public SettingsTarget, public ModelSettings {
public:
    /// The one model, made on first use with the values of a first start.
    static Model& m();
    /// Replaces it by a fresh one. References to the former one and to its lists become invalid.
    static void resetForTests();
    ~Model() override;

    /// Has everything registered for saving saved, then writes the model's own file, as ModelFile tells.
    void save();
    /// Reads the model's file. Without one, or when it cannot be read or understood, everything is as at a
    /// first start, and the user is told.
    void load();
    /// Emitted when the whole state has been replaced while the program runs.
    Signal<>& replaced() { return m_replaced; }
    ModelFile& file() { return m_file; }
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
    /// The calculator's line as it is being typed, kept between runs.
    const HalfTypedLine& halfTypedLine() const { return m_halfTypedLine; }
    void setHalfTypedLine(HalfTypedLine line);
    /// Four or more entries.
    std::vector<InequalityTokens>& inequalityArray() { return m_inequalityArray; }

    // What follows from settings, or goes with storing one.
    void setAngleMode(int mode);
    /// "Radians" or "Degrees"; "Radians", after a programming fault, for any other mode.
    std::string angleModeAsString() const;
    /// 1e-12 while small parts are rounded, else 0.
    double complexRoundingThreshold() const;
    /// Modes 0 and 2.
    bool displayModeIsWide() const;
    bool shouldAutorotateToInterfaceOrientation(Orientation orientation) const;
    /// 0 to 4, see KeyboardGeometry; follows the device in force.
    int keyboardGeometry() const;
    /// The size class of equation fonts for the present geometry.
    int fontSizeMode() const;
    /// On a change the equation editor at the root of the second tab is exchanged, while a tab bar is set.
    void setGraphType(int type);
    Signal<>& graphTypeChanged() { return m_graphTypeChanged; }
    /// True when functions are drawn and no equation can be.
    bool explainFailureToGraph() const;
    /// Adds a count that is not negative; the sum stays at the greatest number once it is reached.
    void addActivations(int count);
    /// At every twentieth activation (and before the first), until the settings have been opened once.
    bool shouldShowSettingsTip() const;

    // Unit converter.
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
    HalfTypedLine m_halfTypedLine;

    std::optional<PropertyArray> m_unitConverterArray;
    PropertyArray m_selectedUnitConverterPickerRows;

    ModelFile m_file;
    Signal<> m_replaced;
    Signal<> m_graphTypeChanged;
    std::optional<int> m_editorGraphType; // of the editor kept below
    std::shared_ptr<ViewController> m_equationsEditor;
    std::weak_ptr<TabBarController> m_tabBarController;

    ModelEnvironment m_environment{*this};
    EnvironmentScope m_environmentScope{m_environment};
};

} // namespace velmora
