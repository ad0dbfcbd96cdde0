#pragma once

#include "toolkit/Picture.h"

#include <vector>

namespace velmora {

/// The curve of a polynomial over the stretch that holds all its real roots, with the roots marked on the
/// axis.
class PolynomialPicture final : public Picture {
public:
    /// The coefficients, the constant term first, and the real roots in any order. Without a root, or with a
    /// number that is not finite, there is nothing to draw.
    void setPolynomial(std::vector<double> coefficients, std::vector<double> realRoots);
    bool isEmpty() const { return m_roots.empty(); }

    Color backgroundColor() const override;
    void draw(DrawingContext& context) const override;
    std::vector<LabelRecord> labels() const override;

private:
    double valueAt(double x) const;
    double xAt(double across) const { return m_xMin + across * (m_xMax - m_xMin); }
    double pointOfX(double x) const;
    double pointOfY(double y) const;

    std::vector<double> m_coefficients;
    std::vector<double> m_roots; ///< ascending, each once
    double m_xMin = 0;
    double m_xMax = 0;
    double m_height = 0; ///< the value that stands at the upper edge
};

} // namespace velmora
