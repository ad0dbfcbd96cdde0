#pragma once

#include "engine/environment/Environment.h"
#include "engine/lines/ExpressionList.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/lines/TokenElement.h"
#include "engine/tree/Expression.h"

#include <memory>
#include <sstream>
#include <string>

namespace velmora {

/// The tokens of a line written with blanks between them; "''" is the empty token.
inline TokenArray tokens(const std::string& line) {
    TokenArray array;
    std::istringstream stream(line);
    for (std::string text; stream >> text;) {
        array.emplace_back(Token(text == "''" ? std::string() : text));
    }
    return array;
}

/// The tokens of the line as often as that, one after the other.
inline TokenArray repeated(const std::string& line, int count) {
    const TokenArray once = tokens(line);
    TokenArray array;
    for (int i = 0; i < count; ++i) {
        array.insert(array.end(), once.begin(), once.end());
    }
    return array;
}

inline std::unique_ptr<Expression> parsed(const std::string& line) {
    return Expression::newExpressionWithTokens(tokens(line));
}

/// What the line shows as its result.
inline std::string shown(const std::string& line) { return parsed(line)->formattedValueOrErrorDescription(); }

inline ComplexValue valueAt(const std::string& line, ComplexValue z) {
    return parsed(line)->valueWithVariableValue(z);
}

/// Equations and constants of a user, installed for as long as it lives.
struct Definitions {
    Definitions() {
        equations.setFunctionName("y");
        equations.setVariableNameString("x");
        constants.setFunctionName("@k");
        environment.equationsList = &equations;
        environment.constantsList = &constants;
    }
    /// As a file brings a definition in: stored without asking whether it leads round a circle.
    void load(ExpressionList& list, int index, const std::string& line) {
        list.setExpressionAtIndex(index, ExpressionWithTokenArray(tokens(line)), false);
    }
    bool store(ExpressionList& list, int index, const std::string& line) {
        return list.setExpressionAtIndex(index, ExpressionWithTokenArray(tokens(line)), true);
    }

    PlainEnvironment environment;
    ExpressionList equations{4};
    NamedExpressionList constants{50};

private:
    EnvironmentScope m_scope{environment};
};

} // namespace velmora
