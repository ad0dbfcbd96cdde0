#pragma once

#include "graphing/equations/EquationCell.h"
#include "platform/screens/ViewController.h"

#include <string>

namespace velmora {

class ExpressionList;

/// What the screens of equations share: rows that fill the screen together, and the editor that a row opens.
class GenericEquationsViewController : public ViewController {
public:
    std::string qmlFile() const override { return "EquationsTable.qml"; }

    virtual int numberOfRows() const = 0;
    virtual EquationCell cell(int row, double width) const = 0;
    /// Opens the editor of the row's equation. Nothing for a row that does not exist.
    virtual void selectRow(int row) = 0;

    /// A quarter of the height for all rows, in whole points.
    virtual double heightForRow() const;
    /// The scene without its tab bar and navigation bar.
    static double combinedHeightOfAllRows();

    /// Adds the button "Mode", which offers the kinds of graph. No screen calls it: the kind is chosen in
    /// the settings. Intended; a second place for one setting would only be in the way.
    void createSwitchButton();
    void switchButtonPressed();

    /// Emitted when the rows have changed.
    Signal<>& reloaded() { return m_reloaded; }

    void viewWillAppear(bool animated) override;
    void didRotate(Orientation from) override;
    bool shouldAutorotate(Orientation orientation) const override;

protected:
    GenericEquationsViewController();
    /// Adds the button that opens the range of the curve's variable.
    void createRangeButton();
    void push(std::shared_ptr<ViewController> screen);
    /// Opens the keyboard on a copy of a slot, so that "Cancel" leaves the slot as it is.
    void openEditor(int entering, ExpressionList& target, int slot);

private:
    Signal<> m_reloaded;
};

} // namespace velmora
