// The lists and pages that ship with the program: everything in them can be used.

#include "app/Registrations.h"
#include "calculator/lists/FunctionList.h"
#include "calculator/pages/Page.h"
#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"
#include "platform/screens/ScreenRegistry.h"
#include "resources/CompiledResources.h"
#include "tests/engine/TokenLine.h"
#include "tests/engine/UlpDistance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace velmora {
namespace {

constexpr const char* kLists[] = {"Functions",
                                  "TrigFunctions",
                                  "Constants",
                                  "Formulas",
                                  "Reference",
                                  "Help List",
                                  "ComplexNumbersImplementationNotes"};

constexpr std::string_view kPageSuffix = "Page";

/// Every entry of a list and of the lists inside it, by content; a nested list stands under its title.
std::vector<std::pair<std::string, std::string>> entriesOf(const FunctionList& list) {
    std::vector<std::pair<std::string, std::string>> entries;
    for (std::size_t i = kFirstFunctionListEntry; i < list.size(); ++i) {
        const KeyedUnarchiver entry(list[i]);
        if (const PropertyArray* nested = entry.array("content")) {
            const auto inner = entriesOf(*nested);
            entries.insert(entries.end(), inner.begin(), inner.end());
        } else {
            entries.emplace_back(entry.text("content").value_or("?"), entry.text("hint").value_or("?"));
        }
    }
    return entries;
}

bool isInserted(const std::string& content) {
    return content != "Angles" && content.find("||") == std::string::npos &&
           content.find("%%") == std::string::npos && !content.starts_with("FFFF");
}

class ListResources : public testing::Test {
protected:
    ListResources() {
        registerCompiledResources();
        registerEverything();
    }
};

TEST_F(ListResources, areWellFormedAndExplained) {
    EXPECT_EQ(loadFunctionListWithName(kEquationsListName).size(), kFirstFunctionListEntry);
    std::set<std::string> opened{"IfYouLikeThisAppPage"}; // by a tab of its own
    for (const char* name : kLists) {
        const FunctionList list = loadFunctionListWithName(name);
        ASSERT_GT(list.size(), kFirstFunctionListEntry) << name;
        EXPECT_FALSE(list[kFunctionListTitle].asText()->empty());
        for (const auto& [content, hint] : entriesOf(list)) {
            EXPECT_NE(content, "?") << name;
            EXPECT_TRUE(!isInserted(content) || !hint.empty()) << content;
            // The notes open from a row of the settings that is hidden, so the help must lead there too.
            const auto at = content.find("||");
            if (at != std::string::npos && name != std::string("ComplexNumbersImplementationNotes")) {
                const std::string screen = content.substr(at + 2);
                EXPECT_TRUE(ScreenRegistry::shared().isRegistered(screen)) << screen;
                if (screen.ends_with(kPageSuffix)) {
                    opened.insert(screen);
                    const std::string page = screen.substr(0, screen.size() - kPageSuffix.size());
                    EXPECT_TRUE(name != std::string("Formulas") ||
                                content.substr(0, at) == loadPage(page).title)
                        << content;
                }
            }
        }
    }
    for (const std::string& name : pageNames()) {
        EXPECT_TRUE(opened.erase(name + "Page") == 1) << name << " cannot be reached";
    }
    EXPECT_THAT(opened, testing::IsEmpty()) << "rows without a page";
}

TEST_F(ListResources, theReferenceHoldsTheListsOfTheKeys) {
    const FunctionList reference = loadFunctionListWithName("Reference");
    for (const char* name : {"Formulas", "Functions", "Constants", "Equations"}) {
        EXPECT_TRUE(std::ranges::any_of(reference, [&](const PropertyList& entry) {
            const KeyedUnarchiver fields(entry);
            const PropertyArray* nested = fields.array("content");
            return nested && *nested == loadFunctionListWithName(name);
        })) << name;
    }
    const auto functions = entriesOf(loadFunctionListWithName("Functions"));
    EXPECT_THAT(functions, testing::IsSupersetOf(entriesOf(loadFunctionListWithName("TrigFunctions"))));
}

TEST_F(ListResources, offerEveryFunctionWithItsCommas) {
    std::map<std::string, int> offered;
    for (const auto& [content, hint] : entriesOf(loadFunctionListWithName("Functions"))) {
        if (!isInserted(content)) {
            continue;
        }
        const std::string entry = content.starts_with("&&&&") ? content.substr(4) : content;
        const std::string token = entry.substr(0, entry.find(','));
        ++offered[token];
        // Completed with numbers it has a value; all but the Bessel functions, which have none.
        std::string line = token + " 4";
        for (std::size_t i = token.size(); i < entry.size(); ++i) {
            line += " , 2";
        }
        const ComplexValue value = valueAt(line + " )", 1.0);
        EXPECT_EQ(std::isnan(value.real()), token.starts_with("Bessel")) << line;
    }
    for (int type = 0; type <= static_cast<int>(UnivarType::ErrorFunction); ++type) {
        const UnivarRow& row = univarRow(static_cast<UnivarType>(type));
        if (row.token.ends_with('(')) {
            EXPECT_TRUE(offered.contains(std::string(row.token))) << row.token;
        }
    }
    for (int type = 0; type < static_cast<int>(BivarType::NoOperator); ++type) {
        const BivarRow& row = bivarRow(static_cast<BivarType>(type));
        if (row.token.ends_with('(') && !row.token.starts_with("Bessel")) { // these have no value yet
            EXPECT_TRUE(offered.contains(std::string(row.token))) << row.token;
        }
    }
}

TEST_F(ListResources, constantsHaveTheirPublishedValues) {
    // CODATA 2022, typed from the published table.
    // clang-format off
    const std::map<std::string, double> published{
        {"c", 2.99792458e8}, {"h", 6.62607015e-34}, {"G", 6.67430e-11}, {"μ0", 1.25663706127e-6},
        {"ε0", 8.8541878188e-12}, {"Z0", 376.730313412}, {"mPlanck", 2.176434e-8},
        {"lPlanck", 1.616255e-35}, {"tPlanck", 5.391247e-44}, {"TPlanck", 1.416784e32},
        {"qe", 1.602176634e-19}, {"μB", 9.2740100657e-24}, {"μN", 5.0507837393e-27}, {"α", 7.2973525643e-3},
        {"αinv", 137.035999177}, {"R∞", 10973731.568157}, {"a0", 5.29177210544e-11},
        {"Ha", 4.3597447222060e-18}, {"re", 2.8179403205e-15}, {"λC", 2.42631023538e-12},
        {"σe", 6.6524587051e-29}, {"ae", 1.15965218046e-3}, {"γe", 1.76085962784e11},
        {"γp", 2.6752218708e8}, {"gp", 5.5856946893}, {"rp", 8.4075e-16}, {"me", 9.1093837139e-31},
        {"mμ", 1.883531627e-28}, {"mτ", 3.16754e-27}, {"mp", 1.67262192595e-27}, {"mn", 1.67492750056e-27},
        {"md", 3.3435837768e-27}, {"mα", 6.6446573450e-27}, {"mu", 1.66053906892e-27},
        {"mp/me", 1836.152673426}, {"NA", 6.02214076e23}, {"kB", 1.380649e-23}, {"g", 9.80665},
        {"atm", 101325}, {"T0", 273.15}, {"eV", 1.602176634e-19}, {"au", 149597870700},
        {"ly", 299792458.0 * 31557600}, {"pc", 3.0856775814913673e16}, {"e", std::exp(1.0)},
        {"π", std::acos(-1.0)}};
    // clang-format on
    // Exact, but the table prints only the first digits: as they stand there, and by the defining constants.
    const double h = published.at("h");
    const double e = published.at("qe");
    const double k = published.at("kB");
    const double c = published.at("c");
    const double molar = published.at("NA");
    const double pi = published.at("π");
    const double wien = 4.965114231744276303; // 5 (1 - exp(-x)) = x
    struct Derived {
        const char* firstDigits;
        double value;
    };
    const std::map<std::string, Derived> derived{
        {"ħ", {"1.054571817", h / (2 * pi)}},
        {"Φ0", {"2.067833848", h / (2 * e)}},
        {"G0", {"7.748091729", 2 * e * e / h}},
        {"KJ", {"483597.8484", 2 * e / h}},
        {"RK", {"25812.80745", h / (e * e)}},
        {"R", {"8.314462618", molar * k}},
        {"F", {"96485.33212", molar * e}},
        {"σ", {"5.670374419", 2 * std::pow(pi, 5) / 15 * std::pow(k, 4) / (std::pow(h, 3) * c * c)}},
        {"bW", {"2.897771955", h * c / (k * wien)}},
        {"c1", {"3.741771852", 2 * pi * h * c * c}},
        {"c2", {"1.438776877", h * c / k}},
        {"Vm", {"22.41396954", molar * k * 273.15 / 101325}},
        {"n0", {"2.686780111", 101325 / (k * 273.15)}}};
    const auto entries = entriesOf(loadFunctionListWithName("Constants"));
    EXPECT_EQ(entries.front().first, "i");
    EXPECT_EQ(entries.size(), published.size() + derived.size() + 1);
    int uncertain = 0;
    for (std::size_t i = 1; i < entries.size(); ++i) {
        const std::string& content = entries[i].first;
        const std::string label = content.substr(0, content.find('='));
        const ComplexValue value = valueAt(content, 0.0);
        if (const auto found = derived.find(label); found != derived.end()) {
            EXPECT_TRUE(content.starts_with(label + "=" + found->second.firstDigits)) << content;
            EXPECT_LE(ulpDistance(value, found->second.value), 2) << content; // both sides are rounded
        } else {
            ASSERT_TRUE(published.contains(label)) << content;
            EXPECT_EQ(value, published.at(label)) << content;
        }
        EXPECT_EQ(valueAt("2 " + content, 0.0), 2.0 * value) << content;
        EXPECT_THAT(std::string("E.0123456789"), testing::Not(testing::HasSubstr(label.substr(0, 1))));
        EXPECT_EQ(label.find_first_of("()"), std::string::npos);
        uncertain += isConstantWithUncertainFinalDigit(content) ? 1 : 0;
    }
    EXPECT_GT(uncertain, 25);
}

} // namespace
} // namespace velmora
