#pragma once

#include "platform/screens/ViewController.h"
#include "tools/triangle/Triangle.h"
#include "tools/triangle/TrianglePicture.h"

#include <array>
#include <string>

namespace velmora {

/// The screen of the triangle: six fields, of which each edit solves at once, and the triangle that they
/// make.
class TriangleSolverViewController final : public ViewController {
public:
    TriangleSolverViewController();

    std::string className() const override { return "TriangleSolverViewController"; }
    std::string qmlFile() const override { return "TriangleSolver.qml"; }

    static constexpr std::size_t kFields = kTriangleKeys.size();

    /// "a" to "c" for the sides, "A" to "C" for the angles, in the order of kTriangleKeys.
    static std::string fieldName(std::size_t field);
    static bool isAngle(std::size_t field) { return field >= kFields / 2; }
    const std::string& typedText(std::size_t field) const { return m_texts[field]; }
    /// What was calculated for a field that holds nothing typed; empty otherwise.
    std::string calculatedText(std::size_t field) const;
    /// Why what is typed is no measure; empty for one that is.
    std::string problem(std::size_t field) const;
    /// "Area 6"; empty while it is not known.
    std::string areaText() const;
    /// How many triangles there are, or why none.
    const std::string& label() const { return m_label; }
    bool labelIsCentred() const;
    /// What is wrong with measures that the solver takes as they are; empty where nothing is.
    const std::string& note() const { return m_note; }

    void setText(std::size_t field, const std::string& text);
    /// The user is done with a field. An angle that makes the angles too big is told of then.
    void finishField(std::size_t field);
    void clearCalculated();
    void clearAll();
    /// Shows the other one of two solutions.
    void toggleSolution();
    bool canToggle() const;

    TrianglePicture& picture() { return m_picture; }
    /// Emitted when a text or the triangle has changed.
    Signal<>& contentsChanged() { return m_contentsChanged; }

    bool shouldAutorotate(Orientation orientation) const override;

private:
    static Triangle& triangle() { return SingletonTriangle::s().currentTriangle(); }
    void takeTexts();
    void solve();
    void show();
    bool typedAnglesLeaveNothing() const;
    bool typedMeasuresDisagree() const;

    std::array<std::string, kFields> m_texts;
    std::string m_label;
    std::string m_note;
    TrianglePicture m_picture;
    Signal<> m_contentsChanged;
};

} // namespace velmora
