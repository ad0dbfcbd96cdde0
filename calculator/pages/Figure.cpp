#include "calculator/pages/Figure.h"

#include "calculator/pages/FigureCanvas.h"
#include "platform/files/Resources.h"
#include "platform/text/Log.h"
#include "platform/text/TextReading.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmora {

namespace {

using Numbers = FigureCanvas::Numbers;
using Anchor = Figure::Label::Anchor;

constexpr std::array<std::string_view, 5> kColorNames{"ink", "quiet", "accent", "second", "third"};

void setColor(FigureCanvas& canvas, const std::string& name) {
    const auto* found = std::ranges::find(kColorNames, name);
    if (found != kColorNames.end()) {
        canvas.setColor(static_cast<FigureColor>(found - kColorNames.begin()));
    } else {
        log("no color of figures: " + name);
    }
}

struct Command {
    std::string_view word;
    std::size_t numbers; ///< it needs at least so many
    void (*draw)(FigureCanvas&, const Numbers&, const std::string& text);
};

// clang-format off
constexpr Command kCommands[] = {
    {"spoken", 0, [](auto& c, const auto&, const auto& text) { c.setSpoken(text); }},
    {"view", 6, [](auto& c, const auto& n, const auto&) { c.setView({n[0], n[1], n[2] - n[0], n[3] - n[1]}, {n[4], n[5]}); }},
    {"color", 0, [](auto& c, const auto&, const auto& text) { setColor(c, text); }},
    {"axes", 0, [](auto& c, const auto&, const auto& text) { c.addAxes(text); }},
    {"line", 4, [](auto& c, const auto& n, const auto&) { c.add(c.polygon(n, false)); }},
    {"dashed", 4, [](auto& c, const auto& n, const auto&) { c.add(c.polygon(n, false), FigureCanvas::kDashed); }},
    {"arrow", 4, [](auto& c, const auto& n, const auto&) { c.addArrow({n[0], n[1]}, {n[2], n[3]}); }},
    {"shape", 6, [](auto& c, const auto& n, const auto&) { c.add(c.polygon(n, true), FigureCanvas::kFilled); }},
    {"area", 6, [](auto& c, const auto& n, const auto&) { c.add(c.polygon(n, true), FigureCanvas::kArea); }},
    {"circle", 3, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[2], 0, 360)); }},
    {"disc", 3, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[2], 0, 360), FigureCanvas::kFilled); }},
    {"ellipse", 4, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[3], 0, 360)); }},
    {"ellipse-disc", 4, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[3], 0, 360), FigureCanvas::kFilled); }},
    {"arc", 5, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[2], n[3], n[4])); }},
    {"ellipse-arc", 6, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[3], n[4], n[5])); }},
    {"dashed-arc", 6, [](auto& c, const auto& n, const auto&) { c.add(c.arc(n[0], n[1], n[2], n[3], n[4], n[5]), FigureCanvas::kDashed); }},
    {"sector", 5, [](auto& c, const auto& n, const auto&) { c.add(c.sector(n), FigureCanvas::kFilled); }},
    {"angle", 5, [](auto& c, const auto& n, const auto& text) { c.addAngle(n, text); }},
    {"right", 3, [](auto& c, const auto& n, const auto&) { c.addRightAngle({n[0], n[1]}, n[2]); }},
    {"dot", 2, [](auto& c, const auto& n, const auto&) { c.addDot({n[0], n[1]}); }},
    {"curve", 2, [](auto& c, const auto& n, const auto& text) { c.addCurve(n[0], n[1], text); }},
    {"under", 2, [](auto& c, const auto& n, const auto& text) { c.addAreaBelow(n[0], n[1], text); }},
    {"path", 2, [](auto& c, const auto& n, const auto& text) { c.addParametric(n[0], n[1], text); }},
    {"text", 2, [](auto& c, const auto& n, const auto& text) { c.addLabel({n[0], n[1]}, text, Anchor::Centre); }},
    {"left", 2, [](auto& c, const auto& n, const auto& text) { c.addLabel({n[0], n[1]}, text, Anchor::Left); }},
    {"right-text", 2, [](auto& c, const auto& n, const auto& text) { c.addLabel({n[0], n[1]}, text, Anchor::Right); }},
    {"small", 2, [](auto& c, const auto& n, const auto& text) { c.addLabel({n[0], n[1]}, text, Anchor::Centre, true); }},
    {"small-left", 2, [](auto& c, const auto& n, const auto& text) { c.addLabel({n[0], n[1]}, text, Anchor::Left, true); }},
    {"key", 4, [](auto& c, const auto& n, const auto& text) { c.addKey(n, text); }},
    {"panel", 4, [](auto& c, const auto& n, const auto&) { c.addPanel(n); }},
    {"touch", 2, [](auto& c, const auto& n, const auto&) { c.addTouch({n[0], n[1]}); }},
    {"swipe", 4, [](auto& c, const auto& n, const auto&) { c.addTouch({n[0], n[1]}); c.addArrow({n[0], n[1]}, {n[2], n[3]}); }},
};
// clang-format on

/// Takes the numbers from the front of a text, at most so many.
Numbers takeNumbers(std::string_view& text, std::size_t most) {
    Numbers numbers;
    while (numbers.size() < most) {
        const std::string_view rest = text.substr(std::min(text.find_first_not_of(' '), text.size()));
        double number = 0;
        const auto [end, problem] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        const bool isWord = end != rest.data() + rest.size() && *end != ' ';
        if (problem != std::errc() || isWord) {
            text = rest;
            return numbers;
        }
        numbers.push_back(number);
        text = rest.substr(static_cast<std::size_t>(end - rest.data()));
    }
    text = text.substr(std::min(text.find_first_not_of(' '), text.size()));
    return numbers;
}

void readLine(FigureCanvas& canvas, std::string_view line) {
    const std::string_view word = line.substr(0, line.find(' '));
    const auto* command = std::ranges::find(kCommands, word, &Command::word);
    if (command == std::end(kCommands)) {
        log("no command of figures: " + std::string(line));
        return;
    }
    std::string_view rest = line.substr(word.size());
    // A polygon has as many corners as are told; a text may begin with a number of its own.
    const bool isPolygon = word == "line" || word == "dashed" || word == "shape" || word == "area";
    const Numbers numbers = takeNumbers(rest, isPolygon ? line.size() : command->numbers);
    if (numbers.size() < command->numbers) {
        log("too few numbers for a figure: " + std::string(line));
        return;
    }
    command->draw(canvas, numbers, std::string(rest));
}

} // namespace

Figure figureWithText(std::string_view text) {
    FigureCanvas canvas;
    while (!text.empty()) {
        if (const std::string_view line = takeUntil(text, '\n'); !line.empty()) {
            readLine(canvas, line);
        }
    }
    return std::move(canvas).figure();
}

Figure loadFigure(const std::string& name) {
    const auto bytes = findResource(name + ".figure");
    if (!bytes) {
        log("no figure " + name);
        return {};
    }
    return figureWithText(*bytes);
}

} // namespace velmora
