#pragma once

#include "calculator/table/ValueTableMetrics.h"
#include "calculator/table/ValueTableView.h"
#include "platform/screens/ViewController.h"
#include "toolkit/LabelRecord.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The table of values of the equations of the present graph type. A row opens its values in full.
class ValueTableViewController final : public ViewController {
public:
    ValueTableViewController();

    std::string className() const override { return "ValueTableViewController"; }
    std::string qmlFile() const override { return "ValueTable.qml"; }

    /// Null before the screen has been loaded.
    const std::shared_ptr<ValueTableView>& tableView() const { return m_tableView; }

    /// Chooses the lists by the graph type and reads them anew. An unknown type leaves them as they were.
    void reloadAll();
    /// A text that stands in place of the whole table; nothing where there is one.
    std::optional<std::string> customTextForRowZero() const;
    /// Opens the screen on which start and step are edited.
    void editStartXAndDx();

    /// 111, or 1 where a text stands in place of the table.
    int numberOfRows() const;
    double heightForRow(double width) const;
    /// The labels of the bar above the rows; none where a text stands in place of the table.
    std::vector<LabelRecord> header(double width) const;
    /// The labels of a row. Values that take long are not waited for: rowChanged() tells when they are there.
    std::vector<LabelRecord> row(int row, double width);
    /// The row as a sentence; empty while it is not computed.
    std::string spokenRow(int row);

    /// Marks the row and opens its values. Nothing for a row that does not exist.
    void selectRow(int row);
    /// The row that was opened or reached by keys last; -1 while there is none.
    int markedRow() const { return m_markedRow; }
    /// "Up", "Down", "PageUp", "PageDown" (by so many rows as fit the screen), "Home" and "End" move the
    /// mark, "Return" and "Enter" open its row. False for any other key.
    bool pressHardwareKey(std::string_view key, int rowsPerPage);

    Signal<>& reloaded() { return m_reloaded; }
    Signal<int>& rowChanged() { return m_rowChanged; }

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void didRotate(Orientation from) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    void moveMark(int row);
    std::vector<LabelRecord> labelsOf(int number, const ValueTableView::Row* row, double width) const;

    std::shared_ptr<ValueTableView> m_tableView;
    int m_markedRow = -1;
    Signal<> m_reloaded;
    Signal<int> m_rowChanged;
    Subscription m_computed;
};

} // namespace velmora
