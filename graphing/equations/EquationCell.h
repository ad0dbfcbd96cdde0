#pragma once

#include "platform/screens/Color.h"
#include "toolkit/LabelRecord.h"

#include <string>

namespace velmora {

/// A row of an equation list: what is defined ("y1(x)=") and, beside it, as what. Long equations go on in
/// further lines, in smaller letters where even those are not enough.
class EquationCell {
public:
    /// A right-hand side such as "=0" has no room unless a kind of cell widens it.
    EquationCell(Size size, std::string variableText, std::string equationText, Color color,
                 double equalsZeroLabelWidth = 0, std::string equalsZeroText = {});

    const LabelRecord& variableLabel() const { return m_variableLabel; }
    const LabelRecord& equationLabel() const { return m_equationLabel; }
    const LabelRecord& equalsZeroLabel() const { return m_equalsZeroLabel; }

    /// In points, before it is scaled.
    double leftMargin() const { return kLeftMargin; }
    double equalsZeroLabelWidth() const { return m_equalsZeroLabel.frame.width; }
    /// Wider than 500 points, where margins are doubled.
    bool isWide() const { return m_size.width > kWidthOfWideCells; }
    double scaleFactor() const { return isWide() ? 2.0 : 1.0; }
    /// The size of the equation's letters in the present keyboard geometry.
    static double baseFontSize();

private:
    static constexpr double kLeftMargin = 10;
    static constexpr double kWidthOfWideCells = 500;

    Size m_size;
    LabelRecord m_variableLabel;
    LabelRecord m_equationLabel;
    LabelRecord m_equalsZeroLabel;
};

} // namespace velmora
