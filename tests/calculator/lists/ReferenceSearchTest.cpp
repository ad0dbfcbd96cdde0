// The search of the reference.

#include "calculator/lists/ReferenceSearch.h"
#include "platform/files/Resources.h"
#include "tests/calculator/CalculatorFixture.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kReference =
    "<plist version=\"1.0\"><array><string>Reference</string><string>Reference</string>"
    "<dict><key>content</key><array><string>Solids</string><string>Solids</string>"
    "<dict><key>content</key><string>%%Round</string><key>hint</key><string></string></dict>"
    "<dict><key>content</key><string>Sphere||SpherePage</string><key>hint</key><string></string></dict>"
    "<dict><key>content</key><string>Unit circle||CirclePage</string><key>hint</key><string></string></dict>"
    "</array><key>hint</key><string></string></dict>"
    "<dict><key>content</key><array><string>Functions</string><string>Functions</string>"
    "<dict><key>content</key><string>sin(</string><key>hint</key><string>sine of an angle</string></dict>"
    "<dict><key>content</key><string>c=299792458</string><key>hint</key><string>speed of "
    "light</string></dict>"
    "</array><key>hint</key><string></string></dict></array></plist>";
constexpr const char* kUnits =
    "<plist "
    "version=\"1.0\"><array><array><string>Length</string><string>meter</string><string>meter#m</string>"
    "<string>+inch=0.0254|inches#in</string></array></array></plist>";

class Search : public test::ModelTest {
protected:
    Search() {
        registerResource("Reference.plist", kReference);
        registerResource("Units.plist", kUnits);
        registerResource("Sphere.page", "title Sphere\nsearch ball, round body");
        registerResource("Circle.page", "title Unit circle\nsearch sine curve");
        ScreenRegistry::shared().registerScreen("UnitConvertViewController",
                                                [] { return std::make_shared<test::OtherScreen>(); });
        list.setFunctionListName("Reference");
        list.loadViewIfNeeded();
        list.viewWillAppear(false);
    }

    test::Texts titles(const std::string& query) {
        list.setSearchText(query);
        test::Texts titles;
        for (const FunctionListRow& row : list.rows()) {
            titles.push_back(row.title);
        }
        return titles;
    }

    FunctionSelectViewController list;

private:
    ResourcesScope m_resources;
};

TEST_F(Search, findsByNameAndSynonymInThatOrder) {
    struct Case {
        const char* query;
        test::Texts titles;
    };
    const Case cases[] = {
        {"s", {"sin()", "Sphere", "Unit circle", "c"}}, // "speed" and "sine" are synonyms
        {"sph", {"Sphere"}},
        {"SPHERE", {"Sphere"}},
        {"ball", {"Sphere"}},
        {"circle", {"Unit circle"}},
        {"circle unit", {"Unit circle"}},
        {"light speed", {"c"}},
        {"inches", {"inch"}},
        {"length", {"meter", "inch"}},
        {"phere", {}},
        {"sphere cube", {}},
        {"round", {"Sphere"}}, // and no heading
        {"?!", {}},
    };
    for (const Case& c : cases) {
        test::Texts found = titles(c.query);
        if (c.query == std::string("s")) {
            EXPECT_THAT(found, testing::UnorderedElementsAreArray(c.titles));
        } else {
            EXPECT_EQ(found, c.titles) << c.query;
        }
    }
}

TEST_F(Search, givesTheListBackWhenItIsEmptied) {
    const test::Texts all{"Solids", "Functions"};
    EXPECT_EQ(titles(""), all);
    EXPECT_EQ(titles("sph").size(), 1U);
    EXPECT_EQ(titles("  "), all);
    FunctionSelectViewController other;
    other.setFunctionListName("Functions");
    EXPECT_FALSE(other.hasSearch());
    other.setSearchText("sph");
    EXPECT_FALSE(other.isSearching());
}

TEST_F(Search, opensWhatItFound) {
    ScreenRegistry::shared().registerScreen("SpherePage",
                                            [] { return std::make_shared<test::OtherScreen>(); });
    auto shown = std::make_shared<FunctionSelectViewController>();
    shown->setFunctionListName("Reference");
    NavigationController stack(shown);
    stack.appear();
    shown->setSearchText("ball");
    shown->selectRow(0);
    EXPECT_EQ(stack.topViewController()->className(), "OtherScreen");
    EXPECT_EQ(shown->searchText(), "ball") << "who comes back goes on with it";
}

} // namespace
} // namespace velmora
