#pragma once

#include "engine/environment/AngleMode.h"
#include "engine/environment/NumberStyle.h"

#include <set>
#include <string>
#include <string_view>

namespace velmora {

class ExpressionList;
class NamedExpressionList;

/// What evaluation, parsing and display depend on outside a tree, and where the engine reports to.
/// The model installs one for the whole run; a test installs a plain one for the length of a scope.
class Environment {
public:
    virtual ~Environment() = default;

    /// The environment in force. Until one is installed, a plain one with the defaults of a first start.
    static Environment& current() { return *s_current; }

    /// Plain data rather than virtual, for trigonometry reads it at every sample of a graph.
    AngleMode angleMode() const { return m_angleMode; }
    void setAngleMode(AngleMode mode) { m_angleMode = mode; }

    virtual NumberStyle numberStyle() const = 0;
    /// Parts of complex numbers smaller than this are shown as 0; 0 when the user wants none rounded.
    virtual double complexRoundingThreshold() const = 0;

    /// The lists that "y1(" and "@k1" refer to; null where there are none.
    virtual const ExpressionList* equations() const = 0;
    virtual const NamedExpressionList* constants() const = 0;

    /// Shows the text in an alert, but each text only once a run: a graph would raise it at every sample.
    void raiseOneShotAlert(std::string_view text);
    /// Reports a state that cannot occur, in an alert and in the log.
    void raiseDebugAlert(std::string_view text);
    /// Lets every one-shot text be shown again.
    void forgetOneShotAlerts() { m_shownTexts.clear(); }

protected:
    virtual void showAlert(std::string_view text) = 0;

private:
    friend class EnvironmentScope;
    static Environment* s_current;

    AngleMode m_angleMode = AngleMode::Radians;
    std::set<std::string, std::less<>> m_shownTexts;
};

/// An environment of plain fields, for tests and for the time before the model is made.
class PlainEnvironment final : public Environment {
public:
    NumberStyle numberStyle() const override { return style; }
    double complexRoundingThreshold() const override { return roundingThreshold; }
    const ExpressionList* equations() const override { return equationsList; }
    const NamedExpressionList* constants() const override { return constantsList; }

    NumberStyle style;
    double roundingThreshold = 1e-12;
    const ExpressionList* equationsList = nullptr;
    const NamedExpressionList* constantsList = nullptr;
    std::string lastAlert; ///< the text shown last
    int alertCount = 0;

protected:
    void showAlert(std::string_view text) override;
};

/// Installs an environment and puts the former one back at the end of the scope.
class EnvironmentScope {
public:
    explicit EnvironmentScope(Environment& environment);
    ~EnvironmentScope();
    EnvironmentScope(const EnvironmentScope&) = delete;
    EnvironmentScope& operator=(const EnvironmentScope&) = delete;

private:
    Environment* m_former;
};

} // namespace velmora
