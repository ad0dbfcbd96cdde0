#include "tools/triangle/TriangleSolverViewController.h"

#include "calculator/model/Model.h"
#include "toolkit/OrvNumberSettingsCell.h"
#include "tools/kept/KeptTexts.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmora {

namespace {

constexpr std::array<const char*, kTriangleKeys.size()> kFieldNames{"a", "b", "c", "A", "B", "C"};
constexpr const char* kSecondSolutionKey = "secondSolution";
constexpr double kStraightAngle = 180;

KeptTexts& keptTexts() { return KeptTexts::ofFile("TriangleSolverSave"); }

bool isBlank(const std::string& text) { return text.find_first_not_of(" \t") == std::string::npos; }

} // namespace

TriangleSolverViewController::TriangleSolverViewController() {
    setTitle("Triangle Solver");
    for (std::size_t field = 0; field < kFields; ++field) {
        m_texts[field] = keptTexts().text(kTriangleKeys[field]);
    }
    triangle().reset();
    triangle().setPrimarySolution(keptTexts().text(kSecondSolutionKey).empty());
    takeTexts();
    solve();
}

std::string TriangleSolverViewController::fieldName(std::size_t field) { return kFieldNames[field]; }

std::string TriangleSolverViewController::calculatedText(std::size_t field) const {
    const DoubleWithSource& measure = *triangle().measure(kTriangleKeys[field]);
    return measure.isEntered() || !m_texts[field].empty() ? std::string() : measure.stringValue();
}

std::string TriangleSolverViewController::problem(std::size_t field) const {
    const std::string& text = m_texts[field];
    if (isBlank(text)) {
        return {};
    }
    const auto number = numberWithText(text);
    if (!number) {
        return "This is not a number.";
    }
    if (isAngle(field)) {
        return *number > 0 && *number < kStraightAngle ? "" : "An angle lies between 0° and 180°.";
    }
    return *number > 0 ? "" : "A side is longer than 0.";
}

std::string TriangleSolverViewController::areaText() const {
    const DoubleWithSource& area = triangle().area();
    return area.isKnown() && std::isfinite(area.x()) ? "Area " + area.stringValue() : std::string();
}

bool TriangleSolverViewController::labelIsCentred() const { return triangle().nSolutions() == kOneTriangle; }

void TriangleSolverViewController::setText(std::size_t field, const std::string& text) {
    if (field >= kFields || text == m_texts[field]) {
        return;
    }
    m_texts[field] = text;
    keptTexts().setText(kTriangleKeys[field], text);
    takeTexts();
    solve();
}

void TriangleSolverViewController::finishField(std::size_t field) {
    if (field < kFields && isAngle(field) && !m_texts[field].empty()) {
        Triangle typed = triangle().copy();
        typed.clearCalculatedValues();
        typed.anglesAreTooBig();
    }
}

void TriangleSolverViewController::takeTexts() {
    for (std::size_t field = 0; field < kFields; ++field) {
        const auto number = problem(field).empty() ? numberWithText(m_texts[field]) : std::nullopt;
        triangle().resetValue(kTriangleKeys[field]);
        if (number) {
            triangle().setEnteredValue(*number, kTriangleKeys[field]);
        }
    }
}

bool TriangleSolverViewController::typedAnglesLeaveNothing() const {
    double sum = 0;
    int count = 0;
    for (std::size_t field = kFields / 2; field < kFields; ++field) {
        const DoubleWithSource& angle = *triangle().measure(kTriangleKeys[field]);
        sum += angle.isEntered() ? angle.x() : 0;
        count += angle.isEntered() ? 1 : 0;
    }
    return count == 2 && sum >= kStraightAngle;
}

/// With more than three measures the solver takes some and leaves the others as they were typed.
bool TriangleSolverViewController::typedMeasuresDisagree() const {
    const Triangle& solved = triangle();
    const double straight = std::acos(-1.0);
    const auto sine = [&](const char* key) {
        return std::sin(solved.doubleForKey(key) / kStraightAngle * straight);
    };
    const double a = solved.doubleForKey("a");
    const double b = solved.doubleForKey("b");
    const double c = solved.doubleForKey("c");
    const double longest = std::max({a, b, c});
    // The law of sines, multiplied out so that no small sine divides.
    constexpr double tolerance = 1e-5;
    const auto differ = [&](double p, double q) { return !(std::fabs(p - q) <= tolerance * longest); };
    const double sum =
        solved.doubleForKey("angleA") + solved.doubleForKey("angleB") + solved.doubleForKey("angleC");
    return differ(a * sine("angleB"), b * sine("angleA")) || differ(b * sine("angleC"), c * sine("angleB")) ||
           differ(a * sine("angleC"), c * sine("angleA")) || !(std::fabs(sum - kStraightAngle) <= 1e-3);
}

void TriangleSolverViewController::solve() {
    triangle().clearCalculatedValues();
    m_note.clear();
    if (typedAnglesLeaveNothing()) {
        m_note = "The two angles leave nothing for the third.";
    } else {
        const int typed = triangle().nKnowns();
        triangle().solveIfReady();
        const bool isSolved = triangle().nSolutions() > kNoTriangle;
        if (isSolved && typed > 3 && typedMeasuresDisagree()) {
            triangle().clearCalculatedValues();
            m_note = "These measures belong to no one triangle.  Three are enough: clear another.";
        }
    }
    show();
}

void TriangleSolverViewController::show() {
    switch (triangle().nSolutions()) {
    case kTriangleNotDetermined:
        m_label = "Enter three values, including at least one side.  Use degrees for angles.";
        break;
    case kNoTriangle:
        m_label = triangle().reasonForFailureToSolve().value_or("");
        break;
    case kOneTriangle:
        m_label = "There is one solution.";
        break;
    case kTwoTriangles:
        m_label = "There are two solutions.  Tap the triangle to toggle.";
        break;
    default:
        break; // stays as it was
    }
    if (canToggle()) {
        Triangle other = triangle().copy();
        other.clearCalculatedValues();
        other.setPrimarySolution(!triangle().primarySolution());
        other.solveIfReady();
        m_picture.setTriangles(triangle(), &other);
    } else {
        m_picture.setTriangles(triangle(), nullptr);
    }
    m_contentsChanged.emit();
}

void TriangleSolverViewController::clearCalculated() {
    triangle().clearCalculatedValues();
    m_note.clear();
    show();
}

void TriangleSolverViewController::clearAll() {
    m_texts.fill({});
    for (const std::string_view key : kTriangleKeys) {
        keptTexts().setText(key, {});
    }
    keptTexts().setText(kSecondSolutionKey, {});
    triangle().reset();
    m_note.clear();
    show();
}

bool TriangleSolverViewController::canToggle() const { return triangle().nSolutions() == kTwoTriangles; }

void TriangleSolverViewController::toggleSolution() {
    if (canToggle()) {
        triangle().setPrimarySolution(!triangle().primarySolution());
        keptTexts().setText(kSecondSolutionKey, triangle().primarySolution() ? "" : "yes");
        solve();
    }
}

bool TriangleSolverViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
