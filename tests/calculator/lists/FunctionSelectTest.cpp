#include "calculator/lists/ConstantEditViewController.h"
#include "calculator/lists/FunctionListTrimming.h"
#include "calculator/lists/FunctionSelectViewController.h"
#include "calculator/lists/ListedConstant.h"
#include "calculator/model/ConstantName.h"
#include "platform/files/Resources.h"
#include "platform/machine/Clock.h"
#include "platform/machine/RandomSource.h"
#include "platform/screens/TabBarController.h"
#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

/// A keyboard screen that opens a small list of every kind of content.
class FunctionSelectTest : public KeyboardTest {
protected:
    FunctionSelectTest() {
        ScreenRegistry::shared().registerScreen(
            "FunctionSelectViewController", [] { return std::make_shared<FunctionSelectViewController>(); });
        ScreenRegistry::shared().registerScreen("Page", [] { return std::make_shared<OtherScreen>(); });
        const char* const list = R"(<plist version="1.0"><array>
            <string>Functions</string><string>All of it</string>
            <dict><key>content</key><string>Angles</string><key>hint</key><string/></dict>
            <dict><key>content</key><string>%%Waves%%</string><key>hint</key><string>not shown</string></dict>
            <dict><key>content</key><string>sin$$$$(</string><key>hint</key><string>si$$$$ne</string></dict>
            <dict><key>content</key><string>G=6.674(3)</string><key>hint</key><string>gravity</string></dict>
            <dict><key>content</key><string>FFFF</string><key>hint</key><string/></dict>
            <dict><key>content</key><string>&amp;&amp;&amp;&amp;conditional(,,</string>
                  <key>hint</key><string>parts</string></dict>
            <dict><key>content</key><string>Notes||Page</string><key>hint</key><string>read</string></dict>
            <dict><key>content</key><string>More||Nowhere</string><key>hint</key><string/></dict>
            <dict><key>content</key><array><string>Pairs</string><string>Pairs of numbers</string>
                  <dict><key>content</key><string>gcd(,</string><key>hint</key><string>divisor</string></dict>
                  </array></dict>
            <dict><key>content</key><array><string>Equations</string><string>Your functions</string></array></dict>
            <dict><key>content</key><array><string>@Mine</string><string>Mine</string></array></dict>
            </array></plist>)";
        registerResource("Functions.plist", list);
        clock.setNow({.year = 2026, .month = 5, .day = 5});
    }
    ~FunctionSelectTest() override { ScreenRegistry::shared().reset(); }

    FunctionSelectViewController& openList() {
        open();
        press("func");
        return top();
    }
    FunctionSelectViewController& top() {
        return dynamic_cast<FunctionSelectViewController&>(*stack->topViewController());
    }
    static std::size_t rowOf(const FunctionSelectViewController& list, const std::string& title) {
        for (std::size_t row = 0; row < list.rows().size(); ++row) {
            if (list.rows()[row].title == title) {
                return row;
            }
        }
        ADD_FAILURE() << "no row " << title;
        return list.rows().size();
    }
    void choose(const std::string& title) { top().selectRow(rowOf(top(), title)); }

    ResourcesScope resources;
    ManualClock clock;
    ClockScope clockScope{clock};
    RandomSourceScope random{[] { return 57U; }};
};

TEST_F(FunctionSelectTest, showsEachKindOfContent) {
    using enum FunctionListRowKind;
    struct Row {
        FunctionListRowKind kind;
        const char* title;
        const char* detail;
        double height;
    };
    const Row expected[] = {
        {AngleMode, "Angles", "", 50},      {Heading, "Waves", "", 44},
        {Insert, "sin()", "sine", 44},      {Insert, "G", "gravity [final digit is uncertain]", 44},
        {OpensScreen, "Notes", "read", 44}, {OpensScreen, "More", "", 44},
        {NestedList, "Pairs", "", 44},      {NestedList, "Equations", "", 44},
        {NestedList, "Mine", "", 44}};
    const FunctionSelectViewController& list = openList();
    EXPECT_EQ(list.title(), "All of it");
    EXPECT_FALSE(list.hidesNavigationBar());
    ASSERT_EQ(list.rows().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const FunctionListRow& row = list.rows()[i];
        EXPECT_EQ(row.kind, expected[i].kind) << row.title;
        EXPECT_EQ(row.title, expected[i].title);
        EXPECT_EQ(row.detail, expected[i].detail);
        EXPECT_EQ(row.height, expected[i].height);
        EXPECT_EQ(row.detailAlignment == TextAlignment::Right, row.kind == OpensScreen);
    }
    EXPECT_TRUE(logHolds("rand is 57"));
    top().selectRow(0); // the choice stands in the row itself
    EXPECT_EQ(Model::m().angleMode(), 0);
    top().setAngleMode(1);
    top().setAngleMode(2);
    EXPECT_EQ(Model::m().angleModeAsString(), "Degrees");
}

TEST(ListedConstant, tellsValueAndUnit) {
    const std::array<std::array<const char*, 3>, 7> cases{{
        {"c=299792458", "speed of light in vacuum, m/s", "299792458 m/s"},
        {"G=0.000000000066743(0)", "Newtonian constant of gravitation, m³/(kg s²)", "6.6743E-11 m³/(kg s²)"},
        {"T0=273.15", "0 °C, K", "273.15 K"},
        {"α=0.007297352564(3)", "fine-structure constant", "0.0072973525643"},
        {"e", "Euler’s number, base of the natural logarithm", ""},
        {"sin(", "sine, of an angle", ""},
        {"k=word", "no number, m", ""},
    }};
    for (const auto& [content, hint, text] : cases) {
        EXPECT_EQ(listedConstantValue(content, hint), text);
    }
}

TEST_F(FunctionSelectTest, putsChoicesIntoTheLine) {
    openList();
    choose("Waves"); // does nothing
    choose("More");  // neither: there is no such screen
    EXPECT_TRUE(logHolds("Nowhere"));
    EXPECT_EQ(top().title(), "All of it");
    choose("sin()");
    EXPECT_EQ(stack->topViewController(), keyboard);
    press("func");
    choose("Pairs");
    EXPECT_EQ(top().title(), "Pairs of numbers");
    choose("gcd(,)");
    EXPECT_EQ(stack->topViewController(), keyboard);
    EXPECT_EQ(entry(), "sin(gcd(_,");
    Model::m().equations().setExpressionAtIndex(3, ExpressionWithTokenArray(tokens("x + 1")), false);
    press("func");
    choose("Equations");
    ASSERT_EQ(top().rows().size(), 4U);
    EXPECT_EQ(top().rows()[3].detail, "y4 from equations tab");
    EXPECT_EQ(top().rows()[3].value, "x+1") << "what stands behind the name";
    choose("y4()");
    EXPECT_EQ(entry(), "sin(gcd(y4(_,");
    const auto named = std::make_shared<FunctionSelectViewController>();
    named->setFunctionListName("Equations"); // without a resource of that name
    stack->push(named);
    EXPECT_EQ(top().title(), "Equations");
    ASSERT_EQ(top().rows().size(), 4U);
    EXPECT_EQ(top().rows()[0].title, "y1()");
}

TEST_F(FunctionSelectTest, opensTheListOfItsKeyWithTheEntriesOfItsLine) {
    Model& model = Model::m();
    const std::tuple<int, ExpressionList*, const char*, const char*> cases[] = {
        {0, nullptr, "cnst", "Constants"},
        {0, nullptr, "trig", "TrigFunctions"},
        {1, &model.constants(), "func", "Functions"},
        {1, &model.equations(), "func", "Functions"}};
    for (const auto& [entering, target, listKey, name] : cases) {
        open(entering, target);
        press(listKey);
        EXPECT_EQ(top().functionListName(), name);
        EXPECT_EQ(top().variableIsDefined(), target == &model.equations());
    }
    choose("conditional(,,)");
    EXPECT_EQ(entry(), "y1(x)=conditional(_,,");
}

TEST_F(FunctionSelectTest, withoutACalculatorBelowItGoesToTheCalculatorTab) {
    open();
    auto list = std::make_shared<FunctionSelectViewController>();
    list->setFunctionListName("Functions");
    const auto reference = std::make_shared<NavigationController>(list);
    const auto tabs = std::make_shared<TabBarController>();
    tabs->setViewControllers({stack, reference});
    Model::m().setTabBarController(tabs);
    tabs->appear();
    tabs->setSelectedIndex(1);
    list->selectRow(rowOf(*list, "sin()"));
    EXPECT_EQ(tabs->selectedIndex(), 0U);
    EXPECT_EQ(entry(), "sin(");
    type("2 e"); // a name, which is completed
    list->selectRow(rowOf(*list, "sin()"));
    type("c o"); // no name yet: it waits behind the choice
    list->selectRow(rowOf(*list, "sin()"));
    EXPECT_EQ(entry(), "sin(2esin(sin(co");
    EXPECT_NE(screen.notice.find("“co” is only the start of"), std::string::npos);
    keyboard->numberEntered(7);
    keyboard->namedExpressionSelected(Token("G=6.674(3)"));
    EXPECT_EQ(entry(), "sin(2esin(sin((7)Gco");
    tabs->setSelectedIndex(1);
    EXPECT_EQ(reference->topViewController(), list) << "the reference stays where it was";
}

TEST_F(FunctionSelectTest, greetsOnSpecialDaysAndByChance) {
    struct Row {
        CalendarTime today;
        std::uint32_t drawn;
        int code;
        const char* greeting;
        const char* hint;
    };
    const Row rows[] = {
        {{.year = 2026, .month = 3, .day = 6}, 57, 1, "Happy Friday the 13th", "It could be your lucky day"},
        {{.year = 2026, .month = 3, .day = 8}, 57, 2, "Beware the Ides of March", "if your name is Caesar"},
        {{.year = 2026, .month = 12, .day = 25}, 57, 3, "Happy new year!", ""},
        {{.year = 2028, .month = 2, .day = 22}, 57, 4, "Today is leap day", "Ladies ask the guys out"},
        {{.year = 2027, .month = 2, .day = 22}, 0, 0, "Meow!", "says my cat"},
        {{.year = 2026, .month = 2, .day = 5}, 1, 0, "This is a rare message", "You won't see it often"},
        {{.year = 2026, .month = 12, .day = 26}, 57, 0, nullptr, nullptr}};
    for (const Row& row : rows) {
        clock.setNow(row.today);
        const RandomSourceScope drawn([&row] { return row.drawn; });
        EXPECT_EQ(specialDate(), row.code) << row.today.day;
        FunctionSelectViewController& list = openList();
        ASSERT_EQ(list.rows().size(), row.greeting ? 10U : 9U) << "a greeting costs no entry";
        if (row.greeting) {
            EXPECT_EQ(list.rows()[4].title, row.greeting);
            EXPECT_EQ(list.rows()[4].detail, row.hint);
            list.selectRow(4);
            EXPECT_EQ(entry(), "");
        }
    }
}

TEST_F(FunctionSelectTest, ownConstantsAreDefinedNamedChangedAndDeleted) {
    openList();
    choose("Mine");
    ASSERT_EQ(top().rows().size(), 50U);
    EXPECT_EQ(top().rows()[49].title, "k50");
    EXPECT_EQ(top().rows()[49].detail, "k50 from user-defined constants");
    FunctionSelectViewController& list = top();
    list.pressRightBarButton(0); // "Edit"
    list.selectRow(2);
    auto& editor = dynamic_cast<ConstantEditViewController&>(*stack->topViewController());
    const std::pair<const char*, bool> names[] = {
        {"a b", false}, {"f(", false},  {"sin", false}, {"y2", false},  {"k4", false},   {"x", false},
        {"a=1", false}, {"E", false},   {"N", false},   {"Pi", false},  {"2a", false},   {".a", false},
        {"a≥", false},  {"a-b", false}, {"m_e", false}, {"@k1", false}, {"a×b", false},  {"k3", true},
        {"pin", true},  {"E0", true},   {"≠", true},    {"mass", true}, {" rate ", true}};
    for (const auto& [name, accepted] : names) {
        alerts.clear();
        EXPECT_EQ(editor.setName(name), accepted) << name;
        EXPECT_EQ(alerts.alerts().size(), accepted ? 0U : 1U) << name;
    }
    EXPECT_EQ(editor.name(), "rate");
    EXPECT_EQ(reasonAgainstConstantName(Model::m().constants(), "a+b", 2), "A name cannot hold “+”.");
    Model::m().constants().setNameAtIndex(2, "v-1"); // as a file may bring it
    EXPECT_TRUE(editor.setName("v-1"));
    EXPECT_TRUE(editor.setName("rate"));
    Model::m().constants().setExpressionAtIndex(2, ExpressionWithTokenArray(tokens("7 / 2")), false);
    stack->pop();
    list.pressRightBarButton(0); // "Done"
    EXPECT_EQ(list.rows()[2].value, "7/2");
    choose("rate");
    press("=");
    EXPECT_EQ(history().back(), "rate = 3.5");

    const auto openEditor = [&] {
        auto opened = std::make_shared<ConstantEditViewController>(2);
        stack->push(opened);
        alerts.clear();
        opened->deleteConstant();
        return opened;
    };
    auto left = openEditor();
    stack->pop();
    stack->push(std::make_shared<OtherScreen>());
    stack->pop(); // nothing keeps the page alive any more
    left.reset();
    alerts.choose(0);
    EXPECT_EQ(Model::m().constants().fullFunctionNameWithIndex(2), "rate") << "its question asks no more";
    const auto again = openEditor();
    EXPECT_TRUE(again->isDefined()) << "only after a question";
    alerts.choose(0);
    EXPECT_FALSE(again->isDefined());
    EXPECT_EQ(Model::m().history().entryAtIndex(0)->resultText(), "3.5");
}

} // namespace
} // namespace velmora::test
