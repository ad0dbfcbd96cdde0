#pragma once

#include "graphing/equations/GenericEquationsViewController.h"

namespace velmora {

/// The parametric pairs x(t), y(t): each pair in two rows, one above the other.
class ParametricEquationsViewController final : public GenericEquationsViewController {
public:
    ParametricEquationsViewController();

    std::string className() const override { return "ParametricEquationsViewController"; }

    int numberOfRows() const override;
    /// Half as high, so that all eight rows fill the screen.
    double heightForRow() const override;
    EquationCell cell(int row, double width) const override;
    void selectRow(int row) override;
};

} // namespace velmora
