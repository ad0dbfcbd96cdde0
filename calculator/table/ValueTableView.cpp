#include "calculator/table/ValueTableView.h"

#include "engine/tree/Expression.h"
#include "platform/machine/Clock.h"
#include "platform/machine/Timer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr double kSliceSeconds = 0.003; // of computing between two events

/// The two numbers by the keys that settings rows bind to.
struct Property {
    std::string_view key;
    double (ValueTableView::*get)() const;
    void (ValueTableView::*set)(double);
};
constexpr std::array kProperties{
    Property{"startX", &ValueTableView::startX, &ValueTableView::setStartX},
    Property{"dx", &ValueTableView::dx, &ValueTableView::setDx},
};

/// What settings rows find under the table's name: the newest table while it lives.
class NewestTable final : public SettingsTarget {
public:
    std::optional<PropertyList> valueForKey(std::string_view key) const override {
        return table ? table->valueForKey(key) : std::nullopt;
    }
    bool setValueForKey(std::string_view key, const PropertyList& value) override {
        return table && table->setValueForKey(key, value);
    }
    ValueTableView* table = nullptr;
};

NewestTable& newestTable() {
    static NewestTable newest;
    return newest;
}

} // namespace

ValueTableView::ValueTableView() {
    newestTable().table = this;
    SettingsTargetRegistry::shared().registerTarget(kTargetName, newestTable());
}

ValueTableView::~ValueTableView() {
    if (newestTable().table == this) {
        newestTable().table = nullptr;
    }
}

void ValueTableView::setTarget(ExpressionList& target) {
    m_target = &target;
    m_isParametric = false;
}

void ValueTableView::setPairedTargets(ExpressionList& x, ExpressionList& y) {
    m_xtarget = &x;
    m_ytarget = &y;
    m_isParametric = true;
}

std::string ValueTableView::variableName() const {
    const ExpressionList* list = m_isParametric ? m_xtarget : m_target;
    return list ? list->variableNameString() : std::string();
}

void ValueTableView::loadEquations() {
    m_equations.clear();
    m_xEquations.clear();
    m_yEquations.clear();
    m_indices.clear();
    m_rows.fill(std::nullopt);
    m_waiting.clear();
    m_timer.cancel();
    m_secondsUsed = 0;
    if (m_isParametric) {
        const int slots = std::min(m_xtarget->nExpressions(), m_ytarget->nExpressions());
        for (int i = 0; i < slots; ++i) {
            if (m_xtarget->nonemptyExpressionAtIndex(i) && m_ytarget->nonemptyExpressionAtIndex(i)) {
                m_xEquations.push_back(m_xtarget->expression(i));
                m_yEquations.push_back(m_ytarget->expression(i));
                m_indices.push_back(i);
            }
        }
        return;
    }
    for (int i = 0; m_target && i < m_target->nExpressions(); ++i) {
        if (m_target->nonemptyExpressionAtIndex(i)) {
            m_equations.push_back(m_target->expression(i));
            m_indices.push_back(i);
        }
    }
}

const ValueTableView::Row* ValueTableView::row(int row) {
    if (row < 0 || row >= kRows) {
        return nullptr;
    }
    auto& kept = m_rows.at(static_cast<std::size_t>(row));
    if (!kept) {
        kept.emplace(Row{valueOfRow(row), {}});
        const auto add = [&](const std::shared_ptr<const Expression>& expression) {
            kept->values.push_back(expression->valueWithVariableValue(kept->variable));
        };
        std::ranges::for_each(m_equations, add);
        for (std::size_t pair = 0; pair < m_xEquations.size(); ++pair) {
            add(m_xEquations[pair]);
            add(m_yEquations[pair]);
        }
    }
    return &*kept;
}

const ValueTableView::Row* ValueTableView::rowWithoutWaiting(int row) {
    if (row < 0 || row >= kRows) {
        return nullptr;
    }
    const bool isKept = m_rows.at(static_cast<std::size_t>(row)).has_value();
    if (!isKept && m_secondsUsed >= kSliceSeconds) {
        std::erase(m_waiting, row);
        m_waiting.push_back(row); // what is asked for last is on screen
        return nullptr;
    }
    const double start = monotonicSeconds();
    const Row* found = this->row(row);
    if (!isKept) {
        m_secondsUsed += monotonicSeconds() - start;
        continueLater();
    }
    return found;
}

void ValueTableView::continueLater() {
    m_timer = startTimer(0, TimerKind::OneShot, [this] { computeWaitingRows(); });
}

void ValueTableView::computeWaitingRows() {
    m_secondsUsed = 0;
    while (!m_waiting.empty() && m_secondsUsed < kSliceSeconds) {
        const int row = m_waiting.back();
        m_waiting.pop_back();
        if (rowWithoutWaiting(row)) {
            m_rowComputed.emit(row);
        }
    }
}

std::optional<PropertyList> ValueTableView::valueForKey(std::string_view key) const {
    const auto* property = std::ranges::find(kProperties, key, &Property::key);
    return property == kProperties.end() ? std::nullopt
                                         : std::optional(PropertyList((this->*property->get)()));
}

bool ValueTableView::setValueForKey(std::string_view key, const PropertyList& value) {
    const auto* property = std::ranges::find(kProperties, key, &Property::key);
    const auto number = value.asDouble();
    if (property == kProperties.end() || !number || !std::isfinite(*number)) {
        return false;
    }
    (this->*property->set)(*number);
    return true;
}

} // namespace velmora
