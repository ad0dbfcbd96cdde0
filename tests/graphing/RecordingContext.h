#pragma once

#include "platform/screens/DrawingContext.h"

#include <ostream>
#include <vector>

namespace velmora {

/// Remembers what was drawn.
class RecordingContext final : public DrawingContext {
public:
    enum class Kind {
        Width,
        StrokeColor,
        FillColor,
        Move,
        Line,
        Stroke,
        StrokeEllipse,
        FillEllipse,
        FillRect
    };
    struct Command {
        Kind kind;
        double a = 0;
        double b = 0;
        /// NaN equals NaN here.
        bool operator==(const Command& other) const {
            const auto same = [](double p, double q) { return p == q || (p != p && q != q); };
            return kind == other.kind && same(a, other.a) && same(b, other.b);
        }
    };

    void setLineWidth(double width) override { add(Kind::Width, width); }
    void setStrokeColor(const Color& color) override { add(Kind::StrokeColor, color.red, color.alpha); }
    void setFillColor(const Color& color) override { add(Kind::FillColor, color.red, color.alpha); }
    void moveTo(Point point) override { add(Kind::Move, point.x, point.y); }
    void lineTo(Point point) override { add(Kind::Line, point.x, point.y); }
    void strokePath() override { add(Kind::Stroke); }
    void strokeEllipse(const Rect& rect) override { add(Kind::StrokeEllipse, rect.x, rect.y); }
    void fillEllipse(const Rect& rect) override { add(Kind::FillEllipse, rect.x, rect.y); }
    void fillRect(const Rect& rect) override { add(Kind::FillRect, rect.x, rect.y); }

    std::vector<Command> commands;

private:
    void add(Kind kind, double a = 0, double b = 0) { commands.push_back({kind, a, b}); }
};

inline void PrintTo(const RecordingContext::Command& command, std::ostream* out) { // NOLINT
    *out << "{" << static_cast<int>(command.kind) << ": " << command.a << ", " << command.b << "}";
}

} // namespace velmora
