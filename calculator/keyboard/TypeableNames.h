#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class ExpressionList;
class NamedExpressionList;

/// The names that can be typed letter by letter into a line, and how typed letters divide into them.
/// Names of two and more characters are found in any case ("SIN(" is "sin("); single letters are not, for
/// "e" and "E" differ.
class TypeableNames {
public:
    /// What the names depend on besides the engine's own functions.
    struct Context {
        std::vector<std::string> variables;             ///< of the edited line
        bool hasLastAnswer = false;                     ///< whether "ans" can be typed
        const ExpressionList* equations = nullptr;      ///< callable as "y1(" …; may be null
        const NamedExpressionList* constants = nullptr; ///< the user's, by name; may be null
    };
    explicit TypeableNames(const Context& context);

    /// The texts to insert, one a name, when the typed characters are names one after the other: "2" and
    /// "π" and "sin(" for "2pisin(". Longer names come first, so "asin(" is no product. Nothing when a part
    /// of the typed text is no name.
    std::optional<std::vector<std::string>> insertedTexts(std::string_view typed) const;
    /// Whether further characters can complete a name at the end of the typed text. The name of a variable
    /// that the line lacks counts, so that it is refused as a whole.
    bool canContinue(std::string_view typed) const;
    /// Why text that is no row of names is none, for the user.
    std::string reasonAgainst(std::string_view typed) const;

private:
    struct Name {
        std::string typed;
        std::string inserted;
        bool isMissingVariable; ///< of other lines
    };

    void add(std::string_view typed, std::string_view inserted, bool isMissingVariable = false);
    void addWords(const Context& context);
    void addFunctions(bool hasVariable);
    const Name* longestNameAt(std::string_view typed, const std::vector<bool>& isDivisible,
                              std::size_t start) const;
    std::vector<bool> readableStarts(std::string_view typed) const;
    std::vector<const Name*> continuations(std::string_view typed) const;
    std::string_view withoutReadableStart(std::string_view typed) const;
    const Name* missingVariableAtStart(std::string_view typed) const;

    std::vector<std::string> m_variables;
    std::vector<Name> m_names; // the longest first
};

} // namespace velmora
