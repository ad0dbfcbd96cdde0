// The table of values, its cells, the detail screen and the editor of start and step.

#include "calculator/model/GraphType.h"
#include "calculator/table/EditStartXAndDxTableViewController.h"
#include "calculator/table/ParametricValueCell.h"
#include "calculator/table/RowSelectedViewController.h"
#include "calculator/table/ValueCell.h"
#include "calculator/table/ValueTableViewController.h"
#include "engine/tree/Expression.h"
#include "platform/machine/Clock.h"
#include "platform/machine/Timer.h"
#include "platform/screens/TabBarController.h"
#include "tests/calculator/CalculatorFixture.h"

#include <cmath>
#include <limits>

namespace velmora::test {
namespace {

constexpr double kPhone = 320;
constexpr double kTablet = 768;

class ValueTableTest : public KeyboardTest {
public:
    void set(ExpressionList& list, int slot, const std::string& line) {
        list.setExpressionAtIndex(slot, ExpressionWithTokenArray(tokens(line)), true);
    }
    void show(GraphType type = GraphType::Function) {
        Model::m().setGraphType(static_cast<int>(type));
        above->appear();
    }
    std::vector<std::string> textsOfRow(int row, double width = kPhone) {
        std::vector<std::string> texts;
        for (const LabelRecord& label : controller->row(row, width)) {
            texts.push_back(label.text);
        }
        return texts;
    }
    std::vector<std::string> headerTexts() {
        std::vector<std::string> texts;
        for (const LabelRecord& label : controller->header(kPhone)) {
            texts.push_back(label.text);
        }
        return texts;
    }
    std::shared_ptr<RowSelectedViewController> opened() {
        return std::dynamic_pointer_cast<RowSelectedViewController>(above->viewControllers().back());
    }
    std::vector<std::string> openedLines() {
        std::vector<std::string> texts;
        for (const LabelRecord& label : opened()->labelArray()) {
            texts.push_back(label.text);
        }
        return texts;
    }
    using Texts = std::vector<std::string>;

    std::shared_ptr<ValueTableViewController> controller = std::make_shared<ValueTableViewController>();
    std::shared_ptr<NavigationController> above = std::make_shared<NavigationController>(controller);
};

TEST_F(ValueTableTest, listsEveryEquationOfTheGraphType) {
    Model& model = Model::m();
    set(model.equations(), 0, "x ^ 2");
    set(model.equations(), 3, "sqrt( x )");
    set(model.polarR(), 1, "2 θ");
    set(model.parametricX(), 0, "t");
    set(model.parametricX(), 2, "t + 1");
    set(model.parametricY(), 2, "t ^ 2");

    show();
    EXPECT_EQ(controller->numberOfRows(), 111);
    EXPECT_EQ(headerTexts(), (Texts{"x", "y1", "y4"}));
    EXPECT_EQ(textsOfRow(0), (Texts{"-10", "100", "complex"}));
    EXPECT_EQ(textsOfRow(12), (Texts{"2", "4", "1.41421"}));
    EXPECT_EQ(textsOfRow(110), (Texts{"100", "10000", "10"}));
    EXPECT_TRUE(textsOfRow(111).empty());
    EXPECT_TRUE(textsOfRow(-1).empty());
    const auto labels = controller->row(12, kPhone);
    EXPECT_EQ(labels[1].textColor, (Color{1.0, 0.17, 0, 1}));
    EXPECT_EQ(labels[2].textColor, (Color{0.615, 0.25, 0.67, 1})) << "the colour of slot 4";

    Model::m().setGraphType(static_cast<int>(GraphType::Polar));
    controller->reloadAll();
    EXPECT_EQ(headerTexts(), (Texts{"θ", "r2"}));
    EXPECT_EQ(textsOfRow(11), (Texts{"1", "2"}));

    Model::m().setGraphType(static_cast<int>(GraphType::Parametric));
    controller->reloadAll();
    EXPECT_EQ(headerTexts(), (Texts{"t", "x3", "y3"}));
    EXPECT_EQ(textsOfRow(13), (Texts{"t=", "3", "x3(t)=", "4", "y3(t)=", "9"})) << "x1 has no y";
    EXPECT_EQ(controller->row(13, kPhone)[2].textColor, (Color{0.12, 0.565, 0.095, 1}));

    Model::m().setGraphType(7); // no type: the lists stay
    controller->reloadAll();
    EXPECT_EQ(headerTexts(), (Texts{"t", "x3", "y3"}));
}

TEST_F(ValueTableTest, saysWhenThereIsNothingToList) {
    show();
    EXPECT_EQ(controller->numberOfRows(), 1);
    EXPECT_EQ(textsOfRow(0), Texts{"You haven't saved any equations!"});
    EXPECT_EQ(controller->row(0, kPhone).front().fontSize, 16);
    EXPECT_TRUE(headerTexts().empty());
    controller->selectRow(0);
    EXPECT_EQ(above->viewControllers().size(), 1U);
    EXPECT_FALSE(controller->pressHardwareKey("Down", 10));

    set(Model::m().equations(), 0, "x");
    controller->reloadAll();
    EXPECT_EQ(controller->numberOfRows(), 111);
    Model::m().setGraphType(static_cast<int>(GraphType::Polar)); // where nothing is explained
    controller->reloadAll();
    EXPECT_EQ(textsOfRow(0), Texts{"-10"});
}

TEST_F(ValueTableTest, rowsFollowStartAndStepInDoublePrecision) {
    set(Model::m().equations(), 0, "x");
    show();
    struct Row {
        double start;
        double step;
        int row;
        double value;
    };
    const double most = std::numeric_limits<double>::max();
    for (const Row& row : {Row{0, 0.1, 3, 0.30000000000000004}, Row{5, 0, 110, 5}, Row{1e300, 1, 110, 1e300},
                           Row{most, most, 110, HUGE_VAL}, Row{-10, -2, 5, -20}}) {
        controller->tableView()->setStartX(row.start);
        controller->tableView()->setDx(row.step);
        controller->reloadAll();
        EXPECT_EQ(controller->numberOfRows(), 111);
        EXPECT_EQ(controller->tableView()->row(row.row)->variable, row.value);
        EXPECT_EQ(controller->tableView()->row(row.row)->values.front().real(), row.value);
        EXPECT_EQ(textsOfRow(row.row).size(), 2U);
    }
    controller->tableView()->setDx(std::nan(""));
    controller->reloadAll();
    EXPECT_EQ(textsOfRow(1), (Texts{"undefined", "undefined"}));
}

TEST_F(ValueTableTest, cellsStandAsWideAsTheScreenAllows) {
    for (int slot = 0; slot < 4; ++slot) {
        set(Model::m().equations(), slot, "x");
        set(Model::m().parametricX(), slot, "t");
        set(Model::m().parametricY(), slot, "t");
    }
    show();
    for (const bool wide : {false, true}) {
        const double width = wide ? kTablet : kPhone;
        EXPECT_EQ(controller->heightForRow(width), wide ? 30 : 20);
        const auto labels = controller->row(3, width);
        ASSERT_EQ(labels.size(), 5U);
        EXPECT_EQ(labels[0].frame, (Rect{wide ? 10.0 : 5.0, 1, wide ? 100.0 : 60.0, wide ? 28.0 : 18.0}));
        EXPECT_EQ(labels[0].fontSize, wide ? 20 : 13);
        for (std::size_t i = 1; i < labels.size(); ++i) {
            EXPECT_NEAR(labels[i].frame.x, labels[i - 1].frame.x + labels[i - 1].frame.width + 4, 1e-9);
            EXPECT_EQ(labels[i].alignment, TextAlignment::Centre);
        }
        EXPECT_NEAR(labels[4].frame.x + labels[4].frame.width, width - labels[0].frame.x, 1e-9);
        const auto header = controller->header(width);
        ASSERT_EQ(header.size(), 5U);
        EXPECT_EQ(header[3].frame, labels[3].frame);
        EXPECT_EQ(header[3].fontName, "Helvetica-Bold");
    }
    Model::m().setGraphType(static_cast<int>(GraphType::Parametric));
    controller->reloadAll();
    EXPECT_EQ(controller->heightForRow(kPhone), 80) << "a line a pair";
    const auto labels = controller->row(0, kPhone);
    ASSERT_EQ(labels.size(), 18U);
    EXPECT_EQ(labels[0].alignment, TextAlignment::Right);
    EXPECT_EQ(labels[1].frame, (Rect{65, 1, 60, 18}));
    EXPECT_EQ(labels[2].frame.y, 1) << "level with the parameter";
    EXPECT_EQ(labels[2 + 4 * 3].frame.y, 3 * 20 + 1);
    const double half = (kPhone - 125 - 10) / 2;
    EXPECT_NEAR(labels[2].frame.width, 0.35 * half, 1e-9);
    EXPECT_NEAR(labels[4].frame.x - labels[2].frame.x, half, 1e-9);
    set(Model::m().parametricX(), 0, "");
    set(Model::m().parametricX(), 1, "");
    set(Model::m().parametricX(), 2, "");
    controller->reloadAll();
    EXPECT_EQ(controller->heightForRow(kPhone), 20);
}

TEST_F(ValueTableTest, aReusedCellShowsExactlyWhatIsListed) {
    for (int slot = 0; slot < 4; ++slot) {
        set(Model::m().equations(), slot, "x");
    }
    show();
    ValueTableView& table = *controller->tableView();
    const ValueTableMetrics metrics = ValueTableMetrics::forWidth(kPhone);
    ValueCell cell;
    cell.show(table, 0, table.row(0), metrics);
    EXPECT_EQ(cell.labelArray().size(), 5U);
    set(Model::m().equations(), 0, "");
    set(Model::m().equations(), 2, "");
    controller->reloadAll();
    cell.show(table, 20, table.row(20), metrics);
    ASSERT_EQ(cell.labelArray().size(), 3U);
    EXPECT_EQ(cell.labelArray()[2].text, "10");
    EXPECT_EQ(cell.labelArray()[2].textColor, (Color{0.615, 0.25, 0.67, 1}));
}

TEST_F(ValueTableTest, aRowOpensItsValuesInFull) {
    set(Model::m().equations(), 0, "1 / 3 * x");
    set(Model::m().equations(), 1, "sqrt( x ) + 1");
    show();
    controller->tableView()->setDx(0.1);
    controller->tableView()->setStartX(-1);
    controller->reloadAll();
    controller->selectRow(0);
    ASSERT_TRUE(opened());
    EXPECT_EQ(openedLines(), (Texts{"x      = -1", "y1(x) = -0.33333", "y2(x) = complex"}));
    EXPECT_EQ(opened()->labelArray()[1].textColor, (Color{1.0, 0.17, 0, 1}));
    EXPECT_EQ(controller->markedRow(), 0);

    const Texts copies{"-1", "-0.3333333333333333", "1+1i"};
    for (std::size_t line = 0; line < copies.size(); ++line) {
        opened()->copy(line);
        EXPECT_EQ(pasteboard.text(), copies[line]);
    }
    opened()->copy(3);
    EXPECT_EQ(pasteboard.text(), copies.back());

    // The value goes on in the calculator, with all its digits.
    opened()->enter(1); // without a calculator nothing happens
    EXPECT_EQ(above->viewControllers().size(), 2U);
    open();
    auto tabs = std::make_shared<TabBarController>();
    tabs->setViewControllers({stack, above});
    Model::m().setTabBarController(tabs);
    tabs->setSelectedIndex(1);
    opened()->enter(1);
    EXPECT_EQ(tabs->selectedIndex(), 0U);
    press("* 3 =");
    EXPECT_EQ(Model::m().history().lastExpression()->value(), ComplexValue(-1));

    set(Model::m().parametricX(), 1, "sqrt( t )");
    set(Model::m().parametricY(), 1, "sqrt( t )");
    Model::m().setGraphType(static_cast<int>(GraphType::Parametric));
    above->popToRoot(false);
    controller->reloadAll();
    controller->selectRow(0);
    EXPECT_EQ(openedLines(), (Texts{"t       = -1", "x2(t) = 0", "y2(t) = complex"}));
}

TEST_F(ValueTableTest, keysMoveTheMark) {
    set(Model::m().equations(), 0, "x");
    show();
    struct Row {
        const char* key;
        int marked;
    };
    for (const Row& row :
         {Row{"Down", 0}, Row{"Down", 1}, Row{"PageDown", 21}, Row{"PageUp", 1}, Row{"Up", 0}, Row{"Up", 0},
          Row{"End", 110}, Row{"Down", 110}, Row{"PageUp", 90}, Row{"Home", 0}}) {
        EXPECT_TRUE(controller->pressHardwareKey(row.key, 20)) << row.key;
        EXPECT_EQ(controller->markedRow(), row.marked) << row.key;
    }
    EXPECT_FALSE(controller->pressHardwareKey("x", 20));
    EXPECT_TRUE(controller->pressHardwareKey("Return", 20));
    ASSERT_TRUE(opened());
    above->pop(false);
    EXPECT_EQ(controller->markedRow(), 0) << "on return the row is still marked";
}

TEST_F(ValueTableTest, startAndStepAreEditedOnAPage) {
    set(Model::m().equations(), 0, "x");
    show();
    EXPECT_EQ(controller->rightBarButtons().front().title, "edit");
    controller->pressRightBarButton(0);
    auto editor =
        std::dynamic_pointer_cast<EditStartXAndDxTableViewController>(above->viewControllers().back());
    ASSERT_TRUE(editor);
    const auto cells = editor->sections().front().cells;
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[0]->title(), "Initial x");
    EXPECT_EQ(cells[1]->title(), "Delta x");
    EXPECT_EQ(cells[1]->placeholder(), "x");
    EXPECT_EQ(cells[0]->valueText(), "-10");
    editor->setText(*cells[0], "2.5");
    editor->setText(*cells[1], "a");
    EXPECT_EQ(alerts.alerts().size(), 1U);
    editor->setText(*cells[1], "-.5");
    EXPECT_EQ(editor->cellForRaw(0, 2)->title(), "Undefined Cell");
    above->pop(false);
    EXPECT_EQ(textsOfRow(1), (Texts{"2", "2"}));
    EXPECT_FALSE(controller->tableView()->setValueForKey("dx", PropertyList(HUGE_VAL)));
}

TEST_F(ValueTableTest, slowRowsComeInWithoutBeingWaitedFor) {
    // Every look at the clock is a millisecond later, so that computing a row takes one.
    class SlowClock final : public Clock {
    public:
        double monotonicSeconds() const override { return m_seconds += 0.001; }
        CalendarTime now() const override { return {}; }

    private:
        mutable double m_seconds = 0;
    } clock;
    const ClockScope clockScope(clock);
    ManualTimerService timers;
    const TimerServiceScope timerScope(timers);
    set(Model::m().equations(), 0, "x");
    show();
    std::vector<int> changed;
    const Subscription changes = controller->rowChanged().subscribe([&](int row) { changed.push_back(row); });
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(textsOfRow(row)[1] == "…", row > 2) << row;
    }
    EXPECT_EQ(textsOfRow(0)[1], "-10") << "is kept";
    timers.advance(0.001);
    EXPECT_EQ(changed, (std::vector<int>{7, 6, 5})) << "the last ones first, as they are on screen";
    timers.advance(0.001);
    timers.advance(0.001);
    EXPECT_EQ(changed, (std::vector<int>{7, 6, 5, 4, 3}));
    EXPECT_EQ(textsOfRow(7)[1], "-3");
    EXPECT_EQ(timers.pendingCount(), 0U);
}

} // namespace
} // namespace velmora::test
