#include "tools/solvers/PolynomialSolverViewController.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/lists/FunctionSelectViewController.h"
#include "calculator/model/Model.h"
#include "platform/machine/Pasteboard.h"
#include "platform/text/Log.h"
#include "toolkit/OrvNumberSettingsCell.h"
#include "tools/kept/KeptTexts.h"
#include "tools/solvers/CertifiedRoots.h"
#include "tools/solvers/PolynomialSolver.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

constexpr std::array kTitles{"Linear Equation Solver", "Quadratic Equation Solver", "Cubic Equation Solver"};
constexpr std::array kPowers{"", "x", "x²", "x³"};
constexpr std::size_t kLongestCoefficient = 100;

KeptTexts& keptTexts() { return KeptTexts::ofFile("PolynomialSolversSave"); }

std::string keyOf(int degree, int exponent) {
    return "coefficient" + std::to_string(exponent) + "OfDegree" + std::to_string(degree) + "Key";
}

bool isBlank(const std::string& text) { return text.find_first_not_of(" \t") == std::string::npos; }

/// The shortest text that reads back as the same double.
std::string shortestText(double number) {
    constexpr std::size_t longest = 32;
    std::array<char, longest> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end};
}

std::string fullText(ComplexValue z) {
    if (z.imag() == 0) {
        return shortestText(z.real());
    }
    const std::string real = z.real() == 0 ? "" : shortestText(z.real());
    return real + (z.imag() > 0 && !real.empty() ? "+" : "") + shortestText(z.imag()) + "i";
}

/// A coefficient as the equation shows it, without its sign.
std::string unsignedText(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    for (const std::string_view sign : {"-", "+", "−"}) {
        if (text.starts_with(sign)) {
            text.erase(0, sign.size());
        }
    }
    return text;
}

} // namespace

PolynomialSolverViewController::PolynomialSolverViewController(int degree)
    : m_degree(std::clamp(degree, 1, static_cast<int>(kTitles.size()))) {
    setTitle(kTitles[static_cast<std::size_t>(m_degree - 1)]);
    for (int exponent = 0; exponent <= m_degree; ++exponent) {
        m_texts.push_back(keptTexts().text(keyOf(m_degree, exponent)));
    }
}

std::string PolynomialSolverViewController::powerText(int exponent) {
    return kPowers[static_cast<std::size_t>(exponent)];
}

const std::string& PolynomialSolverViewController::coefficientText(int exponent) const {
    return m_texts[static_cast<std::size_t>(exponent)];
}

void PolynomialSolverViewController::setCoefficientText(int exponent, const std::string& text) {
    std::string& own = m_texts[static_cast<std::size_t>(exponent)];
    if (text == own) {
        return;
    }
    own = text;
    keptTexts().setText(keyOf(m_degree, exponent), text.size() <= kLongestCoefficient ? text : std::string());
    forgetAnswer();
    m_contentsChanged.emit();
}

std::string PolynomialSolverViewController::problem(int exponent) const {
    const std::string& text = coefficientText(exponent);
    if (isBlank(text)) {
        return {}; // counts as 0
    }
    if (text.size() > kLongestCoefficient) {
        return "A coefficient has at most 100 characters.";
    }
    return numberWithText(text) ? "" : "This is not a number.";
}

std::string PolynomialSolverViewController::equationText() const {
    std::string equation;
    for (int exponent = m_degree; exponent >= 0; --exponent) {
        const std::string& text = coefficientText(exponent);
        const auto number = numberWithText(text);
        if (isBlank(text) || number == 0.0) {
            continue;
        }
        const bool isNegative = number && *number < 0;
        equation += equation.empty() ? (isNegative ? "−" : "") : (isNegative ? " − " : " + ");
        const std::string size = number ? unsignedText(text) : "?";
        const std::string power = powerText(exponent);
        const bool isBare = number && std::fabs(*number) == 1 && !power.empty();
        // A power of ten beside x would read as one number more.
        const bool needsDot = !power.empty() && size.find_first_of("eE") != std::string::npos;
        equation += (isBare ? "" : size) + (needsDot ? "·" : "") + power;
    }
    return (equation.empty() ? "0" : equation) + " = 0";
}

std::string PolynomialSolverViewController::degreeNote() const {
    int degree = m_degree;
    while (degree > 0 && numberWithText(coefficientText(degree)).value_or(0) == 0) {
        --degree;
    }
    if (degree == m_degree || m_roots.empty() || degree == 0) {
        return {};
    }
    return degree == 1 ? "Solved as a linear equation." : "Solved as a quadratic equation.";
}

void PolynomialSolverViewController::forgetAnswer() {
    m_roots.clear();
    m_picture.setPolynomial({}, {});
}

void PolynomialSolverViewController::clear() {
    for (int exponent = 0; exponent <= m_degree; ++exponent) {
        setCoefficientText(exponent, {});
    }
}

bool PolynomialSolverViewController::solve() {
    forgetAnswer();
    for (int exponent = 0; exponent <= m_degree; ++exponent) {
        if (!problem(exponent).empty()) {
            m_contentsChanged.emit();
            return false;
        }
    }
    auto coefficients = std::make_shared<ComplexArray>();
    std::vector<Fraction> exact;
    std::vector<double> plain;
    for (const std::string& text : m_texts) {
        plain.push_back(numberWithText(text).value_or(0));
        coefficients->emplace_back(plain.back());
        exact.push_back(fractionOfText(text).value_or(Fraction()));
    }
    const auto solver = PolynomialSolver::newPolynomialSolverWithCoefficients(coefficients);
    solver->solve();
    if (solver->nSolutions() == kNoSolution) {
        m_roots = {{.label = "No solutions"}};
    } else if (solver->nSolutions() == kEveryNumberIsASolution) {
        m_roots = {{.label = "Infinitely many solutions"}};
    } else {
        exact.resize(coefficients->size());
        std::vector<ComplexValue> found;
        for (const Complex& root : *solver->solutions()) {
            found.push_back(root.z());
        }
        const auto certified = certifiedRoots(exact, found);
        std::vector<double> real;
        for (std::size_t i = 0; i < found.size(); ++i) {
            Root root{.label = "x" + std::to_string(i + 1) + "=" + Complex(found[i]).roundedDescription(),
                      .moreExactly = "",
                      .statement = "nothing is proven of this root",
                      .copyText = fullText(found[i]),
                      .value = found[i]};
            if (certified) {
                const CertifiedRoot& proof = (*certified)[i];
                root.moreExactly = proof.isShownRight ? "" : "more exactly: " + proof.digits;
                root.statement = proof.statement;
                const bool isInRange =
                    std::isfinite(proof.nearest.real()) && std::isfinite(proof.nearest.imag());
                root.copyText = isInRange ? fullText(proof.nearest) : proof.digits;
                root.value = isInRange ? std::optional(proof.nearest) : std::nullopt;
                if (proof.digits.back() != 'i') {
                    real.push_back(proof.nearest.real());
                }
            }
            m_roots.push_back(std::move(root));
        }
        m_picture.setPolynomial(plain, real);
    }
    m_contentsChanged.emit();
    return true;
}

void PolynomialSolverViewController::copyRoot(std::size_t index) const {
    if (index < m_roots.size() && !m_roots[index].copyText.empty()) {
        generalPasteboard().setText(m_roots[index].copyText);
    }
}

void PolynomialSolverViewController::useRoot(std::size_t index) {
    if (index >= m_roots.size() || !m_roots[index].value) {
        return;
    }
    const ComplexValue value = *m_roots[index].value;
    if (!returnToCalculator(navigationController(), [value](KeyboardViewController& calculator) {
            calculator.numberEntered(value);
        })) {
        log("no calculator line for a root");
    }
}

bool PolynomialSolverViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

std::shared_ptr<ViewController> newPolynomialSolversViewController() {
    auto list = std::make_shared<FunctionSelectViewController>();
    list->setFunctionListName("Polynomial Solvers");
    return list;
}

} // namespace velmora
