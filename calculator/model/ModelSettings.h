#pragma once

#include "platform/events/Signal.h"

#include <string>
#include <utility>

namespace velmora {

/// What became of the user's state, for those who keep it.
enum class ModelChange : unsigned char {
    Committed, ///< a line, a definition, a name or a setting was stored
    Moved,     ///< a range moves under the fingers, and may move on
    Typed,     ///< a line is being typed and is not finished
};

/// The settings of the model: a getter and a setter for each property of ModelProperties.h. Setters store
/// what they are given and tell of a change; ranges are checked where values come from outside.
class ModelSettings {
public:
    ModelSettings() = default;
    ModelSettings(const ModelSettings&) = delete;
    ModelSettings& operator=(const ModelSettings&) = delete;

    /// Emitted after every change of what is kept.
    Signal<ModelChange>& changed() { return m_changed; }

    // Numbers and angles.
    int maxDigitsForDecimalNotation() const { return m_maxDigitsForDecimalNotation; }
    void setMaxDigitsForDecimalNotation(int digits) { store(m_maxDigitsForDecimalNotation, digits); }
    int displayDigits() const { return m_displayDigits; }
    void setDisplayDigits(int digits) { store(m_displayDigits, digits); }
    bool trailingZeroes() const { return m_trailingZeroes; }
    void setTrailingZeroes(bool on) { store(m_trailingZeroes, on); }
    bool commasInNumbers() const { return m_commasInNumbers; }
    void setCommasInNumbers(bool on) { store(m_commasInNumbers, on); }
    /// 0 radians, 1 degrees.
    int angleMode() const { return m_angleMode; }
    void setAngleMode(int mode) { store(m_angleMode, mode); }
    bool roundSmallPartsOfComplexNumbers() const { return m_roundSmallPartsOfComplexNumbers; }
    void setRoundSmallPartsOfComplexNumbers(bool on) { store(m_roundSmallPartsOfComplexNumbers, on); }

    // Sound. The volume is 0 to 1.
    bool soundIsOn() const { return m_soundIsOn; }
    void setSoundIsOn(bool on) { store(m_soundIsOn, on); }
    double soundVolume() const { return m_soundVolume; }
    void setSoundVolume(double volume) { store(m_soundVolume, volume); }

    // Keyboard and screen.
    bool iOnMainKeyboard() const { return m_iOnMainKeyboard; }
    void setIOnMainKeyboard(bool on) { store(m_iOnMainKeyboard, on); }
    /// Which of the two narrow key arrangements: 0 or not 0.
    int whichKeyboard() const { return m_whichKeyboard; }
    void setWhichKeyboard(int keyboard) { store(m_whichKeyboard, keyboard); }
    bool largeFontsOnPhone() const { return m_largeFontsOnPhone; }
    void setLargeFontsOnPhone(bool large) { store(m_largeFontsOnPhone, large); }
    /// On a tablet 0 to 3 as set (anything else reads as 1), on a phone always 4.
    int displayMode() const;
    void setDisplayMode(int mode) { store(m_displayMode, mode); }
    /// The choice as it was set, which a window that is a phone for a while does not forget.
    int displayModeOnTablet() const;
    int orientationMode() const { return m_orientationMode; }
    void setOrientationMode(int mode) { store(m_orientationMode, mode); }

    // Graph. A maximum below its minimum + 1e-9 is repaired, and stored so, when it is read; where either
    // is NaN it is left as it is.
    double xMinForGraph() const { return m_xMinForGraph; }
    void setXMinForGraph(double value) { store(m_xMinForGraph, value, ModelChange::Moved); }
    double xMaxForGraph() const;
    void setXMaxForGraph(double value) { store(m_xMaxForGraph, value, ModelChange::Moved); }
    double yMinForGraph() const { return m_yMinForGraph; }
    void setYMinForGraph(double value) { store(m_yMinForGraph, value, ModelChange::Moved); }
    double yMaxForGraph() const;
    void setYMaxForGraph(double value) { store(m_yMaxForGraph, value, ModelChange::Moved); }
    /// y from -10 to 10, x from -10 to 10.062695924764892.
    void resetGraphBounds();
    double tStartForParametricGraph() const { return m_tStartForParametricGraph; }
    void setTStartForParametricGraph(double value) { store(m_tStartForParametricGraph, value); }
    double tEndForParametricGraph() const { return m_tEndForParametricGraph; }
    void setTEndForParametricGraph(double value) { store(m_tEndForParametricGraph, value); }
    double thetaStartForPolarGraph() const { return m_thetaStartForPolarGraph; }
    void setThetaStartForPolarGraph(double value) { store(m_thetaStartForPolarGraph, value); }
    double thetaEndForPolarGraph() const { return m_thetaEndForPolarGraph; }
    void setThetaEndForPolarGraph(double value) { store(m_thetaEndForPolarGraph, value); }
    /// The number of a GraphType.
    int graphType() const { return m_graphType; }
    int graphGridLineType() const { return m_graphGridLineType; }
    void setGraphGridLineType(int type) { store(m_graphGridLineType, type); }
    bool graphBackgroundIsBlack() const { return m_graphBackgroundIsBlack; }
    void setGraphBackgroundIsBlack(bool black) { store(m_graphBackgroundIsBlack, black); }
    bool putLabelsOnGraph() const { return m_putLabelsOnGraph; }
    void setPutLabelsOnGraph(bool on) { store(m_putLabelsOnGraph, on); }
    bool shakeToResetGraph() const { return m_shakeToResetGraph; }
    void setShakeToResetGraph(bool on) { store(m_shakeToResetGraph, on); }
    bool sameScaleXAndY() const { return m_sameScaleXAndY; }
    void setSameScaleXAndY(bool on) { store(m_sameScaleXAndY, on); }

    // What the user had open, and the tip about the settings.
    bool unitConverterIsPushed() const { return m_unitConverterIsPushed; }
    void setUnitConverterIsPushed(bool pushed) { store(m_unitConverterIsPushed, pushed); }
    /// The title of the tab that was selected last, for tabs may come between others; empty for the first.
    const std::string& selectedTab() const { return m_selectedTab; }
    void setSelectedTab(std::string title) { store(m_selectedTab, std::move(title)); }
    bool settingsHaveBeenAccessed() const { return m_settingsHaveBeenAccessed; }
    void setSettingsHaveBeenAccessed(bool accessed) { store(m_settingsHaveBeenAccessed, accessed); }
    /// How often the program has become active, summed over runs.
    int nHasBecomeActive() const { return m_nHasBecomeActive; }
    void setNHasBecomeActive(int count) { store(m_nHasBecomeActive, count); }
    void setPickerSelectedUnitIndex(int index) { store(m_pickerSelectedUnitIndex, index); }

protected:
    ~ModelSettings() = default;

    int storedUnitIndex() const { return m_pickerSelectedUnitIndex; }
    /// False when the type was in force already.
    bool storeGraphType(int type) { return store(m_graphType, type); }

private:
    template <class Value>
    bool store(Value& field, Value value, ModelChange change = ModelChange::Committed) {
        if (field == value) {
            return false;
        }
        field = std::move(value);
        m_changed.emit(change);
        return true;
    }

    Signal<ModelChange> m_changed;

    // What they are at a first start is told by ModelProperties.
    int m_maxDigitsForDecimalNotation = 0;
    int m_displayDigits = 0;
    bool m_trailingZeroes = false;
    bool m_commasInNumbers = false;
    int m_angleMode = 0;
    bool m_roundSmallPartsOfComplexNumbers = false;
    bool m_soundIsOn = false;
    double m_soundVolume = 0;
    bool m_iOnMainKeyboard = false;
    int m_whichKeyboard = 0;
    bool m_largeFontsOnPhone = false;
    int m_displayMode = 0;
    int m_orientationMode = 0;
    double m_xMinForGraph = 0;
    mutable double m_xMaxForGraph = 0; // repaired when read
    double m_yMinForGraph = 0;
    mutable double m_yMaxForGraph = 0; // repaired when read
    double m_tStartForParametricGraph = 0;
    double m_tEndForParametricGraph = 0;
    double m_thetaStartForPolarGraph = 0;
    double m_thetaEndForPolarGraph = 0;
    int m_graphType = 0;
    int m_graphGridLineType = 0;
    bool m_graphBackgroundIsBlack = false;
    bool m_putLabelsOnGraph = false;
    bool m_shakeToResetGraph = false;
    bool m_sameScaleXAndY = false;
    bool m_unitConverterIsPushed = false;
    std::string m_selectedTab;
    bool m_settingsHaveBeenAccessed = false;
    int m_nHasBecomeActive = 0;
    int m_pickerSelectedUnitIndex = 0;
};

} // namespace velmora
