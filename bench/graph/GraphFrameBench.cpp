// A frame of four curves, sampled from the user's expressions and from hand-written functions, both painted
// by the same painter on a tablet's picture of two pixels a point.

#include "engine/lines/Token.h"
#include "engine/tree/Expression.h"
#include "graphing/plot/CurvePlotter.h"
#include "platform/machine/Clock.h"
#include "ui/painting/QtDrawingContext.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace velmora;

constexpr Viewport kViewport{-10, 10, -10, 10, 1024, 719};
constexpr int kPixelsPerPoint = 2;
constexpr DevicePixels kPixels{.perPoint = kPixelsPerPoint, .lineWidth = 2};
constexpr int kRounds = 60;

using Function = double (*)(double);

struct Curve {
    const char* line; ///< tokens with blanks between them
    Function byHand;
};
constexpr std::array kOrdinary{
    Curve{"sin( x ) / x", [](double x) { return std::sin(x) / x; }},
    Curve{"x ^ 3 / 20 - x", [](double x) { return x * x * x / 20 - x; }},
    Curve{"tan( x )", [](double x) { return std::tan(x); }},
    Curve{"e ^ ( - x ^ 2 ) * cos( 5 * x )", [](double x) { return std::exp(-x * x) * std::cos(5 * x); }},
};
constexpr std::array kSteep{
    Curve{"tan( 100 * x )", [](double x) { return std::tan(100 * x); }},
    Curve{"sin( 100 * x )", [](double x) { return std::sin(100 * x); }},
    Curve{"1 / ( x - 1 ) ^ 2", [](double x) { return 1 / ((x - 1) * (x - 1)); }},
    Curve{"x ^ 21", [](double x) { return std::pow(x, 21); }},
};

std::shared_ptr<const Expression> parsed(const char* line) {
    TokenArray tokens;
    std::istringstream stream(line);
    for (std::string text; stream >> text;) {
        tokens.emplace_back(Token(text));
    }
    return Expression::newExpressionWithTokens(tokens);
}

/// The plotting rules written out for a function known when this is compiled.
class ByHand {
public:
    explicit ByHand(Function f) : m_function(f) {
        const double dx = (kViewport.xMax - kViewport.xMin) / kViewport.width;
        double x = kViewport.xMin;
        float y = height(x);
        m_curve.moveTo({0, y});
        for (int column = 1; column <= kViewport.width; ++column) {
            const float former = y;
            x += dx;
            y = height(x);
            if (std::fabs(y - former) < kFarApart) {
                m_curve.lineTo({double(column), y});
                continue;
            }
            halve(x - dx, former, column - 1, x, y, column, 1);
            if (std::isfinite(y)) {
                m_curve.moveTo({double(column), y});
            }
        }
    }
    const CurveDrawing& curve() const { return m_curve; }

private:
    static constexpr float kFarApart = 30;

    float height(double x) const {
        return float(kViewport.height - kViewport.height * ((m_function(x) - kViewport.yMin) /
                                                            (kViewport.yMax - kViewport.yMin)));
    }
    static int side(double y) { return y < 0 ? -1 : y <= kViewport.height ? 0 : y > 0 ? 1 : 2; }

    void halve(double x1, double y1, double s1, double x2, double y2, double s2, int depth) {
        const int side1 = side(y1);
        const int side2 = side(y2);
        if (side1 != 0 && side2 != 0 && side1 + side2 != 0) {
            return;
        }
        const double x = (x1 + x2) / 2;
        const double s = (s1 + s2) / 2;
        const double y = height(x);
        constexpr int deepest = 50;
        if (std::fabs(y - y1) < kFarApart) {
            m_curve.addToGap(0, {s1, y1}, {s, y});
        } else if (depth < deepest) {
            halve(x1, y1, s1, x, y, s, depth + 1);
        }
        if (std::fabs(y2 - y) < kFarApart) {
            m_curve.addToGap(0, {s, y}, {s2, y2});
        } else if (depth < deepest) {
            halve(x, y, s, x2, y2, s2, depth + 1);
        }
    }

    Function m_function;
    CurveDrawing m_curve{Size{double(kViewport.width), double(kViewport.height)}, kPixels};
};

template <std::size_t size> class Frame {
public:
    explicit Frame(const std::array<Curve, size>& curves) : m_curves(curves) {
        for (const Curve& curve : curves) {
            m_expressions.push_back(parsed(curve.line));
        }
    }

    /// Milliseconds.
    double fromExpressions() {
        const double start = monotonicSeconds();
        std::vector<std::unique_ptr<CurvePlotter>> plotters;
        for (const auto& expression : m_expressions) {
            plotters.push_back(std::make_unique<CurvePlotter>(expression, kViewport, true, kPixels));
            plotters.back()->refine(start + 10);
        }
        paint([&](std::size_t i) -> const CurveDrawing& { return plotters[i]->curve(); });
        return 1e3 * (monotonicSeconds() - start);
    }
    double byHand() {
        const double start = monotonicSeconds();
        std::vector<std::unique_ptr<ByHand>> plotters;
        for (const Curve& curve : m_curves) {
            plotters.push_back(std::make_unique<ByHand>(curve.byHand));
        }
        paint([&](std::size_t i) -> const CurveDrawing& { return plotters[i]->curve(); });
        return 1e3 * (monotonicSeconds() - start);
    }

private:
    template <class CurveAt> void paint(CurveAt curveAt) {
        QPainter painter(&m_picture);
        painter.scale(kPixelsPerPoint, kPixelsPerPoint);
        painter.fillRect(0, 0, kViewport.width, kViewport.height, Qt::white);
        QtDrawingContext context(painter, {0, 0, double(kViewport.width), double(kViewport.height)});
        context.setLineWidth(2);
        for (std::size_t i = 0; i < size; ++i) {
            context.setFillColor({0.2 * double(i), 0.3, 0.5});
            curveAt(i).draw(context);
        }
    }

    const std::array<Curve, size>& m_curves;
    std::vector<std::shared_ptr<const Expression>> m_expressions;
    QImage m_picture{kViewport.width * kPixelsPerPoint, kViewport.height* kPixelsPerPoint,
                     QImage::Format_RGB32};
};

/// Both ways in turn, so that what else the machine does meets both; the medians count.
template <std::size_t size>
bool compare(const char* name, const std::array<Curve, size>& curves, double allowedRatio,
             double allowedTime) {
    Frame<size> frame(curves);
    std::vector<double> expressions;
    std::vector<double> byHand;
    for (int round = 0; round < kRounds; ++round) {
        expressions.push_back(frame.fromExpressions());
        byHand.push_back(frame.byHand());
    }
    const auto median = [](std::vector<double>& costs) {
        std::ranges::sort(costs);
        return costs[costs.size() / 2];
    };
    const double cost = median(expressions);
    const double least = median(byHand);
    std::printf("%-10s %d columns, %d by %d pixels: %.2f ms, by hand %.2f ms, ratio %.2f (at most %.1f)\n",
                name, kViewport.width, kViewport.width * kPixelsPerPoint, kViewport.height * kPixelsPerPoint,
                cost, least, cost / least, allowedRatio);
    return cost <= allowedRatio * least && cost < allowedTime;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    constexpr double ordinaryRatio = 1.3;
    constexpr double steepRatio = 1.6;
    constexpr double frame = 16;
    const bool ordinary = compare("ordinary", kOrdinary, ordinaryRatio, frame);
    const bool steep = compare("steep", kSteep, steepRatio, 1e9);
    return ordinary && steep ? 0 : 1;
}
