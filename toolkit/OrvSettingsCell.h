#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

class PropertyList;
class SettingsTarget;
class ViewController;

/// A row of a settings table: what it says, and what a person can do with it. The default of every action
/// is to do nothing.
class OrvSettingsCell {
public:
    /// How a row is drawn and worked.
    enum class Kind : unsigned char { Switch, Segmented, ListPick, Slider, TextField, PlainText, Action };

    /// Shows another screen above the table.
    using Push = std::function<void(std::shared_ptr<ViewController>)>;

    explicit OrvSettingsCell(std::string title) : m_title(std::move(title)) {}
    virtual ~OrvSettingsCell() = default;
    OrvSettingsCell(const OrvSettingsCell&) = delete;
    OrvSettingsCell& operator=(const OrvSettingsCell&) = delete;

    virtual Kind kind() const = 0;
    const std::string& title() const { return m_title; }
    /// A text below the row that explains it, or empty.
    const std::string& explanation() const { return m_explanation; }
    void setExplanation(std::string text) { m_explanation = std::move(text); }
    /// What an empty field shows in place of a value, or empty.
    const std::string& placeholder() const { return m_placeholder; }
    void setPlaceholder(std::string text) { m_placeholder = std::move(text); }
    /// Whether the object that the row edits exists.
    virtual bool isEnabled() const { return true; }

    /// The value as a text, where the row shows one.
    virtual std::string valueText() const { return {}; }
    /// The choices of a segmented row or a list pick, and which is chosen (a switch: 0 off, 1 on).
    virtual std::vector<std::string> items() const { return {}; }
    virtual int index() const { return 0; }
    /// Takes a choice. False, with nothing changed, for an index that is none.
    virtual bool choose(int index);
    /// Takes a typed text. False, with the old value kept and an alert that says why, for one that is no
    /// value of the row.
    virtual bool setText(const std::string& text);
    /// The place of a slider, 0 to 1.
    virtual double fraction() const { return 0; }
    virtual void setFraction(double fraction);
    /// A tap on the row as a whole.
    virtual void tapped(const Push& push);

private:
    std::string m_title;
    std::string m_explanation;
    std::string m_placeholder;
};

/// A row that edits one property of a settings target. The target is found by its name whenever it is
/// needed, so a row may be made before the object that it edits.
class OrvBoundSettingsCell : public OrvSettingsCell {
public:
    /// Where a row's value stands: the target's name and the property's key.
    struct Binding {
        std::string target;
        std::string key;
    };

    OrvBoundSettingsCell(std::string title, Binding binding)
        : OrvSettingsCell(std::move(title)), m_binding(std::move(binding)) {}

    bool isEnabled() const override;

protected:
    PropertyList value() const;
    bool setValue(const PropertyList& value);
    /// A switch or a whole number as an index; 0 for anything else.
    int valueAsIndex() const;

private:
    Binding m_binding;
};

} // namespace velmora
