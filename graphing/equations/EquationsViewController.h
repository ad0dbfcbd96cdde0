#pragma once

#include "graphing/equations/GenericEquationsViewController.h"

namespace velmora {

/// The functions y(x), or the polar functions r(θ), by the graph type at the time it is made.
class EquationsViewController final : public GenericEquationsViewController {
public:
    EquationsViewController();

    std::string className() const override { return "EquationsViewController"; }

    ExpressionList& target() const { return *m_target; }
    /// The editing mode of the keyboard. The polar editor opens in that of functions, too; its variable
    /// comes from the list.
    int enteringWhat() const { return m_enteringWhat; }

    int numberOfRows() const override;
    EquationCell cell(int row, double width) const override;
    void selectRow(int row) override;

private:
    ExpressionList* m_target;
    int m_enteringWhat;
};

} // namespace velmora
