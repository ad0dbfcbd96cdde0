#include "calculator/pages/FormulaText.h"

#include "calculator/keyboard/TypeableNames.h"
#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

constexpr std::string_view kSigns = "+-*/^(),.0123456789";
constexpr std::array<std::string_view, 2> kNumbers{"e", "i"};

/// A piece of the text and what it is.
struct Piece {
    enum class Kind : unsigned char { Token, Letter, Constant };
    Kind kind = Kind::Token;
    std::string text;
};

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) > 127;
}

/// The function whose token begins there; empty when none does.
std::string functionAt(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && (isNameCharacter(text[end]) || (text[end] >= '0' && text[end] <= '9'))) {
        ++end;
    }
    if (end == 0 || end == text.size() || text[end] != '(') {
        return {};
    }
    static const TypeableNames names{TypeableNames::Context()};
    const std::string name(text.substr(0, end + 1));
    const auto inserted = names.insertedTexts(name);
    return inserted && inserted->size() == 1 ? inserted->front() : std::string();
}

/// A letter with its index: "v_0", "c_p1"; digits belong to an index only.
std::string letterAt(std::string_view text) {
    std::size_t end = text.size() - dropFirst(text).size();
    if (end < text.size() && text[end] == '_') {
        ++end;
        while (end < text.size() && (isNameCharacter(text[end]) || (text[end] >= '0' && text[end] <= '9'))) {
            ++end;
        }
    }
    return std::string(text.substr(0, end));
}

std::optional<std::vector<Piece>> piecesOf(std::string_view text) {
    std::vector<Piece> pieces;
    while (!text.empty()) {
        std::size_t length = 1;
        if (text.front() == ' ') {
            // between pieces
        } else if (kSigns.find(text.front()) != std::string_view::npos) {
            pieces.push_back({Piece::Kind::Token, std::string(text.substr(0, 1))});
        } else if (text.front() == '{') {
            length = text.find('}') + 1;
            if (length == 0) {
                return std::nullopt;
            }
            pieces.push_back({Piece::Kind::Constant, std::string(text.substr(1, length - 2))});
        } else if (const std::string function = functionAt(text); !function.empty()) {
            length = text.find('(') + 1;
            pieces.push_back({Piece::Kind::Token, function});
        } else if (text.starts_with("pi")) {
            length = 2;
            pieces.push_back({Piece::Kind::Token, "π"});
        } else if (isNameCharacter(text.front())) {
            const std::string letter = letterAt(text);
            length = letter.size();
            const bool isNumber = std::ranges::find(kNumbers, letter) != kNumbers.end();
            pieces.push_back({isNumber ? Piece::Kind::Token : Piece::Kind::Letter, letter});
        } else {
            return std::nullopt;
        }
        text.remove_prefix(length);
    }
    return pieces;
}

/// Looks through a list and the lists inside it.
std::optional<std::string> constantIn(const PropertyArray& list, std::string_view start) {
    for (const PropertyList& item : list) {
        const KeyedUnarchiver entry(item);
        const PropertyArray* nested = entry.array("content");
        const auto content = nested ? constantIn(*nested, start) : entry.text("content");
        if (content && content->starts_with(start)) {
            return content;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::vector<std::string>>
FormulaText::letters(const std::vector<std::string>& variables) const {
    const auto pieces = piecesOf(m_text);
    if (!pieces) {
        return std::nullopt;
    }
    std::vector<std::string> letters;
    for (const Piece& piece : *pieces) {
        const auto isIn = [&](const std::vector<std::string>& list) {
            return std::ranges::find(list, piece.text) != list.end();
        };
        if (piece.kind == Piece::Kind::Letter && !isIn(variables) && !isIn(letters)) {
            letters.push_back(piece.text);
        }
    }
    return letters;
}

std::optional<TokenArray> FormulaText::tokens(const Values& values) const {
    const auto pieces = piecesOf(m_text);
    if (!pieces) {
        return std::nullopt;
    }
    TokenArray tokens;
    for (const Piece& piece : *pieces) {
        if (piece.kind == Piece::Kind::Constant) {
            const auto constant = shippedConstant(piece.text);
            if (!constant) {
                return std::nullopt;
            }
            tokens.emplace_back(Token(*constant));
        } else if (const auto value = values(piece.text)) {
            tokens.insert(tokens.end(), value->begin(), value->end());
        } else {
            tokens.emplace_back(Token(piece.text));
        }
    }
    return tokens;
}

std::optional<TokenArray> tokensOfNumber(std::string_view text) {
    double number = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (problem != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
        return std::nullopt;
    }
    TokenArray tokens;
    for (const char character : text) {
        tokens.emplace_back(Token(std::string(1, character == 'e' ? 'E' : character)));
    }
    if (text.front() == '-') {
        tokens.insert(tokens.begin(), Token("("));
        tokens.emplace_back(Token(")"));
    }
    return tokens;
}

std::optional<std::string> shippedConstant(std::string_view label) {
    const auto list = readPropertyListResource("Constants.plist");
    return list && list->asArray() ? constantIn(*list->asArray(), std::string(label) + "=") : std::nullopt;
}

} // namespace velmora
