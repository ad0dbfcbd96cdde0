#include "calculator/pages/FormulaArtwork.h"

#include "platform/files/Resources.h"
#include "platform/text/Log.h"
#include "platform/text/TextReading.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace velmora {

namespace {

constexpr double kThousand = 1000;

/// Takes words and numbers from the front of a line.
class WordReader {
public:
    explicit WordReader(std::string_view text) : m_text(text) {}

    std::string_view word() { return takeUntil(m_text, ' '); }
    /// 0 for a word that is no number.
    double number() {
        const std::string_view text = word();
        double number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return number;
    }
    Rect rectangle() {
        const double x = number();
        const double y = number();
        const double width = number();
        return {x, y, width, number()};
    }
    std::string_view rest() const { return m_text; }
    bool isAtEnd() const { return m_text.empty(); }

private:
    std::string_view m_text;
};

void readDrawing(FormulaArtwork& formula, WordReader steps) {
    double scale = 1;
    FormulaArtwork::Glyph next;
    while (!steps.isAtEnd()) {
        const std::string_view word = steps.word();
        if (word == "s") {
            scale = steps.number() / kThousand;
            next.scaleX = next.scaleY = scale;
        } else if (word == "z") {
            next.scaleX = steps.number() / kThousand;
            next.scaleY = steps.number() / kThousand;
        } else if (word == "c") {
            next.visiblePart = steps.rectangle();
        } else if (word == "r") {
            formula.rules.push_back(steps.rectangle());
        } else {
            next.name = word;
            next.origin.x = steps.number();
            next.origin.y = steps.number();
            formula.glyphs.push_back(std::exchange(next, {}));
            next.scaleX = next.scaleY = scale;
        }
    }
}

} // namespace

std::vector<FormulaArtwork> loadFormulaArtwork(const std::string& pageName) {
    std::vector<FormulaArtwork> formulas;
    std::string_view text = findResource(pageName + ".formulas").value_or("");
    while (!text.empty()) {
        WordReader reader(takeUntil(text, '\n'));
        const std::string_view word = reader.word();
        if (word == "formula") {
            FormulaArtwork& formula = formulas.emplace_back();
            formula.texHash = reader.word();
            formula.width = reader.number();
            formula.ascent = reader.number();
            formula.descent = reader.number();
        } else if (formulas.empty()) {
            log("no formula for its artwork: " + pageName);
        } else if (word == "plain") {
            formulas.back().plain = reader.rest();
        } else if (word == "spoken") {
            formulas.back().spoken = reader.rest();
        } else if (word == "draw") {
            readDrawing(formulas.back(), reader);
        }
    }
    return formulas;
}

std::string hashOfTex(std::string_view tex) {
    constexpr std::uint64_t kOffset = 0xcbf29ce484222325U;
    constexpr std::uint64_t kPrime = 0x100000001b3U;
    std::uint64_t hash = kOffset;
    for (const char byte : tex) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    std::array<char, 16> digits{};
    digits.fill('0');
    std::array<char, 16> written{};
    const auto [end, problem] = std::to_chars(written.data(), written.data() + written.size(), hash, 16);
    std::copy_backward(written.data(), end, digits.end());
    return {digits.begin(), digits.end()};
}

GlyphOutlines::GlyphOutlines() {
    std::string_view text = findResource("Glyphs.outlines").value_or("");
    while (!text.empty()) {
        std::string_view outline = takeUntil(text, '\n');
        const std::string_view name = takeUntil(outline, ' ');
        m_texts.emplace(name, outline);
    }
}

const VectorPath* GlyphOutlines::find(const std::string& name) {
    const auto known = m_paths.find(name);
    if (known != m_paths.end()) {
        return &known->second;
    }
    const auto text = m_texts.find(name);
    if (text == m_texts.end()) {
        log("no glyph " + name);
        return nullptr;
    }
    return &m_paths.emplace(name, vectorPathWithOutline(text->second)).first->second;
}

} // namespace velmora
