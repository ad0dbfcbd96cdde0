#include "calculator/table/ValueTableViewController.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"
#include "calculator/table/EditStartXAndDxTableViewController.h"
#include "calculator/table/ParametricValueCell.h"
#include "calculator/table/RowSelectedViewController.h"
#include "calculator/table/TableText.h"
#include "calculator/table/ValueCell.h"
#include "platform/screens/NavigationController.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// Every table here is of functions of one variable; one of more would have no order of rows.
constexpr int kIndependentVariables = 1;

} // namespace

ValueTableViewController::ValueTableViewController() {
    setTabImage("table.png");
    setRightBarButtons({{"edit", [this] { editStartXAndDx(); }}});
}

void ValueTableViewController::viewDidLoad() {
    m_tableView = std::make_shared<ValueTableView>();
    m_computed = m_tableView->rowComputed().subscribe([this](int row) { m_rowChanged.emit(row); });
}

void ValueTableViewController::viewWillAppear(bool /*animated*/) { reloadAll(); }

void ValueTableViewController::didRotate(Orientation /*from*/) { reloadAll(); }

bool ValueTableViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void ValueTableViewController::reloadAll() {
    loadViewIfNeeded();
    const auto lists = graphedLists();
    if (lists.size() == 2) {
        m_tableView->setPairedTargets(*lists.front(), *lists.back());
    } else if (!lists.empty()) {
        m_tableView->setTarget(*lists.front());
    }
    m_tableView->loadEquations();
    m_reloaded.emit();
}

std::optional<std::string> ValueTableViewController::customTextForRowZero() const {
    if (Model::m().explainFailureToGraph()) {
        return "You haven't saved any equations!";
    }
    if (kIndependentVariables >= 2) {
        return "Table not available for functions of more than one variable.";
    }
    return std::nullopt;
}

void ValueTableViewController::editStartXAndDx() {
    if (NavigationController* stack = navigationController()) {
        loadViewIfNeeded();
        stack->push(
            std::make_shared<EditStartXAndDxTableViewController>(m_tableView, m_tableView->variableName()));
    }
}

int ValueTableViewController::numberOfRows() const {
    return !m_tableView ? 0 : customTextForRowZero() ? 1 : ValueTableView::kRows;
}

double ValueTableViewController::heightForRow(double width) const {
    const double line = ValueTableMetrics::forWidth(width).rowHeight;
    const bool isOfPairs = m_tableView && m_tableView->isParametric() && !customTextForRowZero();
    return isOfPairs ? line * static_cast<double>(std::max<std::size_t>(m_tableView->count(), 1)) : line;
}

std::vector<LabelRecord> ValueTableViewController::header(double width) const {
    if (!m_tableView || customTextForRowZero()) {
        return {};
    }
    const ValueTableMetrics metrics = ValueTableMetrics::forWidth(width);
    std::vector<LabelRecord> labels;
    const auto add = [&](std::string text, const Rect& frame) {
        LabelRecord label = tableLabel(std::move(text), frame, metrics);
        label.fontName = kBoldSystemFont;
        label.alignment = TextAlignment::Centre;
        labels.push_back(std::move(label));
    };
    const ValueTableView& table = *m_tableView;
    if (table.isParametric()) {
        // A line of a row tells the names of its own pair, so the bar names what the columns hold.
        ParametricValueCell cell;
        cell.show(table, 0, nullptr, metrics);
        const auto& of = cell.labelArray();
        const double width2 = of[0].frame.width + of[1].frame.width;
        add(table.variableName(), {of[0].frame.x, 1, width2, metrics.labelHeight()});
        constexpr std::size_t xName = 2;
        constexpr std::size_t yName = 4;
        for (const std::size_t name : {xName, yName}) {
            if (name + 1 < of.size()) {
                const Rect& from = of[name].frame;
                const ExpressionList* list = name == xName ? table.xtarget() : table.ytarget();
                std::string names;
                for (const int slot : table.equationIndicesArray()) {
                    names += (names.empty() ? "" : ", ") + list->internalRepresentationWithIndex(slot);
                }
                add(std::move(names), {from.x, 1, from.width + of[name + 1].frame.width, from.height});
            }
        }
        return labels;
    }
    const std::size_t columns = 1 + table.count();
    add(table.variableName(), ValueCell::frameOfColumn(0, columns, metrics));
    for (std::size_t i = 0; i < table.count(); ++i) {
        add(table.target()->internalRepresentationWithIndex(table.equationIndicesArray()[i]),
            ValueCell::frameOfColumn(i + 1, columns, metrics));
    }
    return labels;
}

std::vector<LabelRecord> ValueTableViewController::labelsOf(int number, const ValueTableView::Row* row,
                                                            double width) const {
    const ValueTableMetrics metrics = ValueTableMetrics::forWidth(width);
    if (m_tableView->isParametric()) {
        ParametricValueCell cell;
        cell.show(*m_tableView, number, row, metrics);
        return cell.labelArray();
    }
    ValueCell cell;
    cell.show(*m_tableView, number, row, metrics);
    return cell.labelArray();
}

std::vector<LabelRecord> ValueTableViewController::row(int row, double width) {
    if (row < 0 || row >= numberOfRows()) {
        return {};
    }
    if (const auto text = customTextForRowZero()) {
        constexpr double fontSize = 16;
        constexpr double smallestFont = 7;
        const ValueTableMetrics metrics = ValueTableMetrics::forWidth(width);
        return {{.text = *text,
                 .frame = {metrics.margin, 0, width - 2 * metrics.margin, metrics.rowHeight},
                 .fontSize = fontSize,
                 .minimumFontSize = smallestFont,
                 .textColor = kTableTextColor}};
    }
    return labelsOf(row, m_tableView->rowWithoutWaiting(row), width);
}

std::string ValueTableViewController::spokenRow(int row) {
    if (const auto text = customTextForRowZero()) {
        return row == 0 ? *text : std::string();
    }
    const ValueTableView::Row* values = m_tableView ? m_tableView->rowWithoutWaiting(row) : nullptr;
    if (!values) {
        return {};
    }
    std::string spoken;
    for (const TableRowLine& line : tableRowLines(*m_tableView, *values)) {
        spoken += (spoken.empty() ? "" : ", ") + line.name + " = " + line.text;
    }
    return spoken;
}

void ValueTableViewController::moveMark(int row) {
    const int former = m_markedRow;
    m_markedRow = std::clamp(row, 0, numberOfRows() - 1);
    if (former >= 0 && former != m_markedRow) {
        m_rowChanged.emit(former);
    }
    m_rowChanged.emit(m_markedRow);
}

void ValueTableViewController::selectRow(int row) {
    NavigationController* stack = navigationController();
    if (customTextForRowZero() || !m_tableView) {
        return;
    }
    if (const ValueTableView::Row* values = m_tableView->row(row)) {
        moveMark(row);
        if (stack) {
            stack->push(std::make_shared<RowSelectedViewController>(*m_tableView, *values));
        }
    }
}

bool ValueTableViewController::pressHardwareKey(std::string_view key, int rowsPerPage) {
    if (customTextForRowZero() || !m_tableView) {
        return false;
    }
    struct Move {
        std::string_view key;
        int rows;
        int pages;
    };
    static constexpr std::array kMoves{
        Move{"Up", -1, 0},
        Move{"Down", 1, 0},
        Move{"PageUp", 0, -1},
        Move{"PageDown", 0, 1},
        Move{"Home", -ValueTableView::kRows, 0},
        Move{"End", ValueTableView::kRows, 0},
    };
    if (const auto* move = std::ranges::find(kMoves, key, &Move::key); move != kMoves.end()) {
        const int page = std::max(1, rowsPerPage);
        // The first key only shows where the mark is.
        const bool isFirst = m_markedRow < 0 && move->rows == 1;
        moveMark(isFirst ? 0 : std::max(m_markedRow, 0) + move->rows + move->pages * page);
        return true;
    }
    if ((key == "Return" || key == "Enter") && m_markedRow >= 0) {
        selectRow(m_markedRow);
        return true;
    }
    return false;
}

} // namespace velmora
