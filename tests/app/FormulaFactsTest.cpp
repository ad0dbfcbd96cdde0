// Every formula of the pages against facts that do not come from the formula: identities at random values,
// derivatives by differences, integrals and sums by adding up, and published examples.
//
// A page states a check as "LEFT = RIGHT" in the words of a line, or as LEFT alone for what its button
// inserts. Behind "|" stand what letters may be: "n 1..9 whole, r=2"; otherwise they lie between 0.5 and 3.
// Beyond the functions of a line, a side may hold int(x,FROM,TO,f), sum(k,FROM,TO,f), product(k,FROM,TO,f)
// and diff(x,f), the derivative by x where x is.

#include "calculator/pages/FormulaText.h"
#include "calculator/pages/Page.h"
#include "engine/tree/Expression.h"
#include "engine/tree/Number.h"
#include "resources/CompiledResources.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <set>
#include <sstream>

namespace velmora {
namespace {

using Values = std::map<std::string, ComplexValue>;

constexpr const char* kNumericWords[] = {"int(", "sum(", "product(", "diff("};

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The parts between commas that stand in no brackets.
std::vector<std::string> arguments(const std::string& text) {
    std::vector<std::string> parts(1);
    int depth = 0;
    for (const char character : text) {
        depth += character == '(' ? 1 : character == ')' ? -1 : 0;
        if (character == ',' && depth == 0) {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

/// One side of a check at given values.
class Side {
public:
    Side(std::string text, Values values) : m_text(std::move(text)), m_values(std::move(values)) {}

    ComplexValue value() {
        int count = 0;
        while (replaceNumericWord(count)) {
            ++count;
        }
        const auto tokens =
            FormulaText(m_text).tokens([&](const std::string& name) -> std::optional<TokenArray> {
                const auto known = m_values.find(name);
                if (known == m_values.end()) {
                    return std::nullopt;
                }
                return TokenArray{
                    TokenElement(std::shared_ptr<const Expression>(std::make_shared<Number>(known->second)))};
            });
        return tokens ? Expression::newExpressionWithTokens(*tokens)->value() : ComplexValue(std::nan(""));
    }

private:
    double at(const std::string& text, const std::string& name, double value) const {
        Values values = m_values;
        values[name] = value;
        return Side(text, values).value().real();
    }
    double end(const std::string& text) const { return Side(text, m_values).value().real(); }

    /// The rule of Gauss and Legendre with five places, in equal panels.
    double integral(const std::vector<std::string>& a) const {
        constexpr std::pair<double, double> kPlaces[] = {{0, 128.0 / 225},
                                                         {0.538469310105683091, 0.478628670499366468},
                                                         {-0.538469310105683091, 0.478628670499366468},
                                                         {0.906179845938663993, 0.236926885056189088},
                                                         {-0.906179845938663993, 0.236926885056189088}};
        constexpr int kPanels = 24;
        const double from = end(a[1]);
        const double half = (end(a[2]) - from) / kPanels / 2;
        double sum = 0;
        for (int panel = 0; panel < kPanels; ++panel) {
            for (const auto& [place, weight] : kPlaces) {
                sum += weight * at(a[3], a[0], from + (2 * panel + 1 + place) * half);
            }
        }
        return sum * half;
    }
    double addedUp(const std::vector<std::string>& a, bool isProduct) const {
        double result = isProduct ? 1 : 0;
        for (double k = end(a[1]); k <= end(a[2]) + 0.5; ++k) {
            const double value = at(a[3], a[0], k);
            result = isProduct ? result * value : result + value;
        }
        return result;
    }
    /// Central differences at two distances, extrapolated.
    double derivative(const std::vector<std::string>& a) const {
        const double x = m_values.at(a[0]).real();
        const auto difference = [&](double h) {
            return (at(a[1], a[0], x + h) - at(a[1], a[0], x - h)) / (2 * h);
        };
        constexpr double h = 2e-3;
        return (4 * difference(h / 2) - difference(h)) / 3;
    }

    /// Works out the first such word and puts a letter in its place.
    bool replaceNumericWord(int count) {
        std::size_t start = std::string::npos;
        for (const char* word : kNumericWords) {
            start = std::min(start, m_text.find(word));
        }
        if (start == std::string::npos) {
            return false;
        }
        const std::size_t open = m_text.find('(', start);
        std::size_t close = open;
        for (int depth = 1; depth > 0 && ++close < m_text.size();) {
            depth += m_text[close] == '(' ? 1 : m_text[close] == ')' ? -1 : 0;
        }
        const std::string word = m_text.substr(start, open - start);
        const auto parts = arguments(m_text.substr(open + 1, close - open - 1));
        const std::string letter = "Ω_" + std::to_string(count);
        EXPECT_EQ(parts.size(), word == "diff" ? 2U : 4U) << m_text;
        m_values[letter] = word == "diff"  ? derivative(parts)
                           : word == "int" ? integral(parts)
                                           : addedUp(parts, word == "product");
        m_text.replace(start, close + 1 - start, letter);
        return true;
    }

    std::string m_text;
    Values m_values;
};

struct Range {
    double from = 0.5;
    double to = 3;
    bool isWhole = false;
};

/// "n 1..9 whole, r=2".
std::map<std::string, Range> rangesOf(const std::string& text) {
    std::map<std::string, Range> ranges;
    for (const std::string& part : arguments(text)) {
        std::string name = trimmed(part);
        if (const auto at = name.find('='); at != std::string::npos) {
            const double value = std::stod(name.substr(at + 1));
            ranges[name.substr(0, at)] = {value, value, false};
        } else if (const auto blank = name.find(' '); blank != std::string::npos) {
            const std::string bounds = name.substr(blank + 1);
            ranges[name.substr(0, blank)] = {std::stod(bounds),
                                             std::stod(bounds.substr(bounds.find("..") + 2)),
                                             bounds.ends_with("whole")};
        }
    }
    return ranges;
}

/// The letters of a side that are neither functions nor bound in it; x, y, t and θ among them.
void addLetters(const std::string& side, std::set<std::string>& letters) {
    std::string rest = side;
    for (const char* word : kNumericWords) {
        for (auto at = rest.find(word); at != std::string::npos; at = rest.find(word)) {
            rest.replace(at, std::string(word).size(), "(");
        }
    }
    static_cast<void>(FormulaText(rest).tokens([&](const std::string& name) -> std::optional<TokenArray> {
        const char first = name.front();
        const bool isSign =
            std::string("+-*/^(),.0123456789ei").find(first) != std::string::npos && name.size() == 1;
        if (!isSign && !name.ends_with('(') && name != "π") {
            letters.insert(name);
        }
        return std::nullopt;
    }));
}

class FormulaFacts : public testing::Test {
protected:
    FormulaFacts() { registerCompiledResources(); }

    void expectHolds(const std::string& check, const std::string& insertion) {
        const std::string statement = check.substr(0, check.find('|'));
        const auto ranges =
            rangesOf(check.find('|') == std::string::npos ? "" : check.substr(check.find('|') + 1));
        const std::size_t sign = statement.find(" = ");
        const std::string left = trimmed(statement.substr(0, sign));
        const std::string right = sign == std::string::npos ? insertion : trimmed(statement.substr(sign + 3));
        ASSERT_FALSE(left.empty() || right.empty()) << check;
        std::set<std::string> letters;
        addLetters(left, letters);
        addLetters(right, letters);
        const int rounds = letters.empty() ? 1 : 5;
        for (int round = 0; round < rounds; ++round) {
            Values values;
            std::ostringstream told;
            for (const std::string& letter : letters) {
                const auto range = ranges.find(letter);
                const Range r = range == ranges.end() ? Range() : range->second;
                double value =
                    std::uniform_real_distribution<double>(r.from, std::nextafter(r.to, r.to + 1))(m_random);
                value = r.isWhole ? std::round(value) : value;
                values[letter] = value;
                told << letter << "=" << value << " ";
            }
            const ComplexValue a = Side(left, values).value();
            const ComplexValue b = Side(right, values).value();
            const double size = std::max(std::abs(a), std::abs(b));
            const double tolerance = right == "0" || left == "0" ? 1e-8 : kTolerance * size;
            ASSERT_LE(std::abs(a - b), tolerance)
                << check << "\n  " << a << " and " << b << " at " << told.str();
        }
    }

    static constexpr double kTolerance = 2e-7; // what the numerical rules reach

private:
    PlainEnvironment m_environment;
    EnvironmentScope m_scope{m_environment};
    std::mt19937_64 m_random{20}; // the same values in every run, so that a fault stays to be found
};

TEST_F(FormulaFacts, hold) {
    int pagesWithFormulas = 0;
    int checks = 0;
    for (const std::string& name : pageNames()) {
        const Page page = loadPage(name);
        bool hasFormula = false;
        for (const PageItem& item : page.items) {
            if (item.kind != PageItem::Kind::Formula) {
                continue;
            }
            SCOPED_TRACE(name + ": " + item.text);
            hasFormula = true;
            const bool isEquation = item.text.find_first_of("=") != std::string::npos;
            EXPECT_TRUE(!item.checks.empty() || !item.given.empty() || !isEquation)
                << "neither checked nor given";
            EXPECT_TRUE(item.insertion.empty() || !item.checks.empty()) << "is inserted without a check";
            for (const std::string& check : item.checks) {
                expectHolds(check, item.insertion);
                ++checks;
            }
        }
        pagesWithFormulas += hasFormula ? 1 : 0;
    }
    EXPECT_GE(pagesWithFormulas, 60);
    EXPECT_GT(checks, 300);
}

/// The check itself finds what is wrong.
TEST_F(FormulaFacts, areToldFromErrors) {
    EXPECT_NO_FATAL_FAILURE(expectHolds("diff(x,x^3) = 3*x^2", ""));
    EXPECT_NEAR(Side("int(x,0,2,x^2)+sum(k,1,3,k)", {}).value().real(), 8.0 / 3 + 6, 1e-9);
    EXPECT_NEAR(Side("diff(x,int(z,0,x,z^2))", {{"x", 2.0}}).value().real(), 4, 1e-6);
    EXPECT_TRUE(std::isnan(Side("a+#", {{"a", 1.0}}).value().real()));
    EXPECT_TRUE(std::isnan(Side("a+b", {{"a", 1.0}}).value().real())) << "a letter without a value";
    EXPECT_GT(std::abs(Side("diff(x,x^3)", {{"x", 1.3}}).value() - Side("3*x^2.001", {{"x", 1.3}}).value()),
              1e-6 * 5);
}

/// What the buttons insert parses, with every letter given a value.
TEST_F(FormulaFacts, insertionsParse) {
    int insertions = 0;
    for (const std::string& name : pageNames()) {
        for (const PageItem& item : loadPage(name).items) {
            if (item.insertion.empty()) {
                continue;
            }
            SCOPED_TRACE(name + ": " + item.insertion);
            ++insertions;
            const FormulaText text(item.insertion);
            const auto letters = text.letters();
            ASSERT_TRUE(letters);
            for (const FormulaLetter& letter : item.letters) {
                EXPECT_TRUE(std::ranges::find(*letters, letter.name) != letters->end())
                    << letter.name << " is not in it";
            }
            const auto tokens = text.tokens([&](const std::string& letter) -> std::optional<TokenArray> {
                return std::ranges::find(*letters, letter) == letters->end() ? std::nullopt
                                                                             : tokensOfNumber("3");
            });
            ASSERT_TRUE(tokens);
            const auto expression = Expression::newExpressionWithTokens(*tokens);
            EXPECT_FALSE(expression->errorDescription()) << toDisplayString(*tokens);
        }
    }
    EXPECT_GT(insertions, 100);
}

} // namespace
} // namespace velmora
