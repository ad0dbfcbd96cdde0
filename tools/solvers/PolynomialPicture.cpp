#include "tools/solvers/PolynomialPicture.h"

#include "engine/numbers/ShortNumber.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr Color kBackground{0.078, 0.090, 0.106};
constexpr Color kAxis = Color::white(0.55);
constexpr Color kCurve{0.561, 0.737, 1.0};
constexpr Color kRoot{1.0, 0.85, 0.4};
constexpr double kRootRadius = 4.5;
constexpr double kLabelHeight = 18;
constexpr double kLabelFont = 13;
constexpr int kSamples = 400;

} // namespace

Color PolynomialPicture::backgroundColor() const { return kBackground; }

void PolynomialPicture::setPolynomial(std::vector<double> coefficients, std::vector<double> realRoots) {
    m_coefficients = std::move(coefficients);
    m_roots = std::move(realRoots);
    std::ranges::sort(m_roots);
    m_roots.erase(std::unique(m_roots.begin(), m_roots.end()), m_roots.end());
    const auto isFinite = [](double number) { return std::isfinite(number); };
    if (!std::ranges::all_of(m_roots, isFinite) || !std::ranges::all_of(m_coefficients, isFinite)) {
        m_roots.clear();
    }
    if (!m_roots.empty()) {
        const double spread = m_roots.back() - m_roots.front();
        // About a lone root, as much as lets the axis' zero be guessed at.
        const double margin = spread > 0 ? 0.3 * spread : std::max(std::fabs(m_roots.front()) / 2, 1e-300);
        m_xMin = m_roots.front() - (m_roots.front() == 0 && spread == 0 ? 1 : margin);
        m_xMax = m_roots.back() + (m_roots.back() == 0 && spread == 0 ? 1 : margin);
        // Between the roots all of the curve shows, beyond them it leaves the picture.
        m_height = 0;
        for (int i = 0; i <= kSamples; ++i) {
            const double x = xAt(static_cast<double>(i) / kSamples);
            const bool isBetween = x > m_roots.front() && x < m_roots.back();
            if (isBetween || m_roots.size() == 1) {
                m_height = std::max(m_height, std::fabs(valueAt(x)));
            }
        }
        m_height *= m_roots.size() == 1 ? 0.6 : 1.3;
        if (!std::isfinite(m_xMin) || !std::isfinite(m_xMax) || !(m_xMin < m_xMax) || !(m_height > 0) ||
            !std::isfinite(m_height)) {
            m_roots.clear();
        }
    }
    changed().emit();
}

double PolynomialPicture::valueAt(double x) const {
    double value = 0;
    for (auto k = m_coefficients.rbegin(); k != m_coefficients.rend(); ++k) {
        value = value * x + *k;
    }
    return value;
}

double PolynomialPicture::pointOfX(double x) const { return (x - m_xMin) / (m_xMax - m_xMin) * size().width; }

double PolynomialPicture::pointOfY(double y) const {
    // Far off, any place beyond the edge will do.
    constexpr double beyond = 4;
    return size().height / 2 * (1 - std::clamp(y / m_height, -beyond, beyond));
}

void PolynomialPicture::draw(DrawingContext& context) const {
    if (isEmpty()) {
        return;
    }
    const double axis = size().height / 2;
    context.setAlignsToPixels(true);
    context.setLineWidth(1);
    context.setStrokeColor(kAxis);
    context.moveTo({0, axis});
    context.lineTo({size().width, axis});
    if (m_xMin < 0 && m_xMax > 0) {
        context.moveTo({pointOfX(0), 0});
        context.lineTo({pointOfX(0), size().height});
    }
    context.strokePath();
    context.setAlignsToPixels(false);
    context.setLineWidth(2);
    context.setStrokeColor(kCurve);
    for (int i = 0; i <= kSamples; ++i) {
        const double across = static_cast<double>(i) / kSamples;
        const Point point{across * size().width, pointOfY(valueAt(xAt(across)))};
        i == 0 ? context.moveTo(point) : context.lineTo(point);
    }
    context.strokePath();
    context.setFillColor(kRoot);
    for (const double root : m_roots) {
        context.fillEllipse(
            {pointOfX(root) - kRootRadius, axis - kRootRadius, 2 * kRootRadius, 2 * kRootRadius});
    }
}

std::vector<LabelRecord> PolynomialPicture::labels() const {
    std::vector<LabelRecord> labels;
    double end = 0; // of the label before
    for (const double root : m_roots) {
        LabelRecord label;
        label.text = shortNumber(root);
        label.fontSize = kLabelFont;
        label.textColor = kRoot;
        label.alignment = TextAlignment::Centre;
        const double width = textSize(label).width + 4;
        const double left = std::clamp(pointOfX(root) - width / 2, 0.0, std::max(0.0, size().width - width));
        // Where two roots stand closer than their numbers are wide, the second goes above the axis.
        const bool isCrowded = !labels.empty() && left < end && labels.back().frame.y > size().height / 2;
        const double top =
            isCrowded ? size().height / 2 - kRootRadius - kLabelHeight : size().height / 2 + kRootRadius + 1;
        label.frame = {left, top, width, kLabelHeight};
        end = left + width;
        labels.push_back(label);
    }
    return labels;
}

} // namespace velmora
