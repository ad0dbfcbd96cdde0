#pragma once

#include "engine/numbers/ComplexValue.h"
#include "tools/exact/Fraction.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// What is proven of a root that a closed formula has found.
struct CertifiedRoot {
    /// Each digit that the formula's root is shown with (Complex::roundedDescription) is one of the true
    /// root's, rounded; and it is shown as real only if the true root is.
    bool isShownRight = false;
    /// The true root to 15 significant digits a part, the last one rounded ("1-2.5i").
    std::string digits;
    /// What is proven of the formula's root, for a person: how far from the true root it can be at most, and
    /// whether that is a multiple root.
    std::string statement;
    /// The true root, each part the nearest double; infinite beyond their range.
    ComplexValue nearest;
};

/// For each of the formula's roots, in their order, the true root that it stands for. The coefficients are
/// those typed, exactly, the constant term first, the leading one not 0; there are as many roots as the
/// degree says. Each true root is given to one of the formula's, so that they lie as near to each other as
/// can be. Nothing if the digits are still undecided with the most bits that are sensible, or the numbers do
/// not fit.
std::optional<std::vector<CertifiedRoot>> certifiedRoots(const std::vector<Fraction>& coefficients,
                                                         const std::vector<ComplexValue>& formulaRoots);

} // namespace velmora
