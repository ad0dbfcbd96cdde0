#include "tools/triangle/Triangle.h"

#include "platform/machine/Alert.h"
#include "platform/text/Log.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::string_view kLetters = "abc";

std::string sideKey(char letter) { return {letter}; }

std::string angleKey(char letter) { return std::string("angle") + static_cast<char>(letter - 'a' + 'A'); }

} // namespace

const DoubleWithSource* Triangle::measure(std::string_view key) const {
    const auto* found = std::ranges::find(kTriangleKeys, key);
    return found == kTriangleKeys.end()
               ? nullptr
               : &m_measures[static_cast<std::size_t>(found - kTriangleKeys.begin())];
}

DoubleWithSource* Triangle::measureToChange(std::string_view key) {
    return const_cast<DoubleWithSource*>(measure(key)); // of this very triangle, which may change
}

void Triangle::reset() { *this = {}; }

void Triangle::clearCalculatedValues() {
    for (DoubleWithSource& measure : m_measures) {
        measure.resetIfCalculated();
    }
    m_area.resetIfCalculated();
    m_reasonForFailureToSolve.reset();
    m_nSolutions = kTriangleNotDetermined;
}

int Triangle::nKnowns() const {
    return static_cast<int>(std::ranges::count_if(m_measures, &DoubleWithSource::isKnown));
}

double Triangle::doubleForKey(std::string_view key) const {
    const DoubleWithSource* found = measure(key);
    return found ? found->x() : kUnknown;
}

void Triangle::setEnteredValue(double value, std::string_view key) {
    if (DoubleWithSource* found = measureToChange(key)) {
        found->setEntered(value);
    }
}

void Triangle::setCalculatedValue(double value, std::string_view key) {
    if (DoubleWithSource* found = measureToChange(key)) {
        found->setCalculated(value);
    }
}

void Triangle::resetValue(std::string_view key) {
    if (DoubleWithSource* found = measureToChange(key)) {
        found->reset();
    }
}

bool Triangle::anglesAreTooBig() const {
    constexpr double straightAngle = 180;
    // Angle A counts once for every angle that is known. People know the alert by this rule, so it stays as
    // it is: with A alone of 100 degrees any second angle brings it.
    const double angleA = doubleForKey("angleA");
    double sum = 0;
    for (const std::string_view key : {"angleA", "angleB", "angleC"}) {
        if (measure(key)->isKnown()) {
            sum += angleA;
        }
    }
    if (sum > straightAngle) {
        presentAlert(
            {.title = "Angles Too Big", .message = "The angles can't add up to more than 180 degrees."});
        return true;
    }
    return false;
}

void Triangle::inDictionary(std::map<std::string, std::string>& dictionary, char letter, int number) {
    dictionary[sideKey(letter)] = "s" + std::to_string(number);
    dictionary[angleKey(letter)] = "a" + std::to_string(number);
}

std::map<std::string, std::string> Triangle::keyMapDictionary() const {
    std::map<std::string, std::string> map;
    const auto sideIsKnown = [&](char letter) { return measure(sideKey(letter))->isKnown(); };
    const auto angleIsKnown = [&](char letter) { return measure(angleKey(letter))->isKnown(); };
    int number = 1;
    const auto mapLetters = [&](auto&& isNext) {
        for (const char letter : kLetters) {
            if (!map.contains(sideKey(letter)) && isNext(letter)) {
                inDictionary(map, letter, number++);
            }
        }
    };
    mapLetters([&](char letter) { return sideIsKnown(letter) && angleIsKnown(letter); });
    mapLetters([&](char letter) { return sideIsKnown(letter); });
    mapLetters([&](char letter) { return angleIsKnown(letter); });
    mapLetters([](char) { return true; });
    return map;
}

void Triangle::solveIfReady() {
    const auto map = keyMapDictionary();
    TriangleSolver solver;
    for (const auto& [key, name] : map) {
        solver.setValueForKey(name, doubleForKey(key));
    }
    solver.setPrimarySolution(m_primarySolution);
    solver.setArea(m_area.x());
    solver.solve();
    m_nSolutions = solver.nSolutions();
    if (solver.area() == 0) {
        log("Huh?");
    }
    m_area.setCalculated(solver.area());
    if (m_nSolutions == kNoTriangle) {
        m_reasonForFailureToSolve = solver.reasonForFailure();
        return;
    }
    for (const auto& [key, name] : map) {
        setCalculatedValue(solver.valueForKey(name).value_or(kUnknown), key);
    }
}

Triangle Triangle::copy() const {
    Triangle other;
    other.m_measures = m_measures;
    return other;
}

SingletonTriangle& SingletonTriangle::s() {
    static SingletonTriangle instance; // made once, whichever thread asks first
    return instance;
}

} // namespace velmora
