#pragma once

#include "engine/lines/ExpressionList.h"
#include "engine/numbers/ComplexValue.h"
#include "platform/events/Signal.h"
#include "platform/events/Subscription.h"
#include "platform/screens/SettingsTargetRegistry.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// The values of the equations at a fixed sequence of values of their variable. A row is computed when it is
/// first asked for and kept until the next reload.
class ValueTableView final : public SettingsTarget {
public:
    static constexpr int kRows = 111;
    /// Its name as a target of settings rows; the newest table has it.
    static constexpr const char* kTargetName = "ValueTableView";

    struct Row {
        double variable = 0;
        /// One an equation; of pairs x and y in turn.
        std::vector<ComplexValue> values;
    };

    ValueTableView();
    ~ValueTableView() override;

    double startX() const { return m_startX; }
    void setStartX(double x) { m_startX = x; }
    double dx() const { return m_dx; }
    void setDx(double dx) { m_dx = dx; }

    ExpressionList* target() const { return m_target; }
    ExpressionList* xtarget() const { return m_xtarget; }
    ExpressionList* ytarget() const { return m_ytarget; }
    /// Shows the functions of one variable of a list.
    void setTarget(ExpressionList& target);
    /// Shows the pairs of two lists.
    void setPairedTargets(ExpressionList& x, ExpressionList& y);
    bool isParametric() const { return m_isParametric; }
    /// The variable's name; empty while there is no list.
    std::string variableName() const;

    /// Reads the equations anew and forgets the rows computed so far.
    void loadEquations();

    using Expressions = std::vector<std::shared_ptr<const Expression>>;
    const Expressions& equationsArray() const { return m_equations; }
    /// The slots of the equations, or of the pairs.
    const std::vector<int>& equationIndicesArray() const { return m_indices; }
    const Expressions& xEquationsArray() const { return m_xEquations; }
    const Expressions& yEquationsArray() const { return m_yEquations; }
    /// How many columns of values, or lines of a row of pairs, there are.
    std::size_t count() const { return m_indices.size(); }

    double valueOfRow(int row) const { return m_startX + row * m_dx; }
    /// Null for a row that does not exist.
    const Row* row(int row);
    /// The same while the rows computed at this moment have not taken long; else nothing, and rowComputed()
    /// follows. So a table of slow equations can be pushed along while its values come in.
    const Row* rowWithoutWaiting(int row);
    Signal<int>& rowComputed() { return m_rowComputed; }

    /// "startX" and "dx"; only finite numbers are taken.
    std::optional<PropertyList> valueForKey(std::string_view key) const override;
    bool setValueForKey(std::string_view key, const PropertyList& value) override;

private:
    void continueLater();
    void computeWaitingRows();

    double m_startX = -10;
    double m_dx = 1;
    ExpressionList* m_target = nullptr;
    ExpressionList* m_xtarget = nullptr;
    ExpressionList* m_ytarget = nullptr;
    bool m_isParametric = false;
    Expressions m_equations;
    Expressions m_xEquations;
    Expressions m_yEquations;
    std::vector<int> m_indices;
    std::array<std::optional<Row>, kRows> m_rows;
    std::vector<int> m_waiting; ///< rows asked for and not computed yet, the latest at the end
    double m_secondsUsed = 0;   ///< since events were last dealt with
    Subscription m_timer;
    Signal<int> m_rowComputed;
};

} // namespace velmora
