#pragma once

#include "toolkit/OrvSettingsCell.h"

namespace velmora {

/// A text to read.
class OrvPlainTextSettingsCell final : public OrvSettingsCell {
public:
    using OrvSettingsCell::OrvSettingsCell;
    Kind kind() const override { return Kind::PlainText; }
};

/// A text to type.
class OrvTextSettingsCell final : public OrvBoundSettingsCell {
public:
    using OrvBoundSettingsCell::OrvBoundSettingsCell;
    Kind kind() const override { return Kind::TextField; }
    std::string valueText() const override;
    bool setText(const std::string& text) override;
};

/// A row that runs an action, as a button or with the mark of a way on to another screen.
class OrvButtonSettingsCell final : public OrvSettingsCell {
public:
    OrvButtonSettingsCell(std::string title, std::function<void()> action)
        : OrvSettingsCell(std::move(title)), m_action(std::move(action)) {}
    Kind kind() const override { return Kind::Action; }
    void tapped(const Push& push) override;

private:
    std::function<void()> m_action;
};

/// A row that opens a registered screen. One that is not registered is logged and stays closed.
class OrvSubTableSettingsCell final : public OrvSettingsCell {
public:
    OrvSubTableSettingsCell(std::string title, std::string className)
        : OrvSettingsCell(std::move(title)), m_className(std::move(className)) {}
    Kind kind() const override { return Kind::Action; }
    void tapped(const Push& push) override;

private:
    std::string m_className;
};

} // namespace velmora
