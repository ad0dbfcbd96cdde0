#pragma once

#include "engine/numbers/ComplexValue.h"
#include "platform/screens/ViewController.h"
#include "tools/solvers/PolynomialPicture.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// The screen of one kind of polynomial equation: its coefficients as typed, the equation that they make, and
/// after Solve its roots, with what is proven of each.
class PolynomialSolverViewController final : public ViewController {
public:
    /// A degree from 1 to 3.
    explicit PolynomialSolverViewController(int degree);

    std::string className() const override { return "PolynomialSolverViewController"; }
    std::string qmlFile() const override { return "PolynomialSolver.qml"; }

    /// One line of the answer.
    struct Root {
        std::string label{};       ///< "x1=2", or that there is no root or that every number is one
        std::string moreExactly{}; ///< where not every digit of the label is right: what is
        std::string statement{};   ///< how near the label's value is to the true root
        std::string copyText{};    ///< the root in full; empty where there is none
        /// What goes into the calculator's line; nothing where there is no root, or none within its range.
        std::optional<ComplexValue> value{};
    };

    int degree() const { return m_degree; }
    /// "x³", "x²", "x" or empty.
    static std::string powerText(int exponent);
    const std::string& coefficientText(int exponent) const;
    void setCoefficientText(int exponent, const std::string& text);
    /// Why a coefficient cannot be used; empty for one that can.
    std::string problem(int exponent) const;
    /// The equation as it is typed so far, "2x² − x + 0.5 = 0".
    std::string equationText() const;
    /// The degree that solving starts from, in words; empty where it is the screen's own.
    std::string degreeNote() const;

    /// Solves the equation. Where a coefficient is no number nothing is solved, and false is returned.
    bool solve();
    /// Empty until solved, and again after any edit.
    const std::vector<Root>& roots() const { return m_roots; }
    PolynomialPicture& picture() { return m_picture; }
    void clear();

    void copyRoot(std::size_t index) const;
    /// Puts the root into the calculator's line, which is then shown.
    void useRoot(std::size_t index);

    /// Emitted when a coefficient or the answer has changed.
    Signal<>& contentsChanged() { return m_contentsChanged; }

    bool shouldAutorotate(Orientation orientation) const override;

private:
    void forgetAnswer();

    int m_degree;
    std::vector<std::string> m_texts; ///< by exponent
    std::vector<Root> m_roots;
    PolynomialPicture m_picture;
    Signal<> m_contentsChanged;
};

/// The list of the solvers, as the tab shows it.
std::shared_ptr<ViewController> newPolynomialSolversViewController();

} // namespace velmora
