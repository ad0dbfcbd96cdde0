#pragma once

#include "engine/lines/ExpressionWithTokenArray.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A list of the user's lines: the equations of one graph type, the history, or the constants.
class ExpressionList {
public:
    /// Starts with n empty entries and keeps at most `max`.
    ExpressionList(int max, int n);
    explicit ExpressionList(int max) : ExpressionList(max, max) {}
    virtual ~ExpressionList() = default;
    ExpressionList(const ExpressionList&) = delete;
    ExpressionList& operator=(const ExpressionList&) = delete;

    /// Sets the capacity and appends n empty entries.
    void growToMax(int max, int n);
    int maxExpressions() const { return m_maxExpressions; }
    int nExpressions() const { return static_cast<int>(m_entries.size()); }

    const std::string& functionName() const { return m_functionName; }
    void setFunctionName(std::string name) { m_functionName = std::move(name); }
    /// The independent variables, several separated by ", ".
    const std::string& variableNameString() const { return m_variableNameString; }
    void setVariableNameString(std::string name) { m_variableNameString = std::move(name); }
    std::vector<std::string> variableNameArray() const;
    bool couldBeExpressionInput() const { return m_couldBeExpressionInput; }
    void setCouldBeExpressionInput(bool could) { m_couldBeExpressionInput = could; }

    /// Names of entry i, counted from 0: "y1", "y1(x)", "y1(x)=sin(x)".
    std::string internalRepresentationWithIndex(int index) const;
    virtual std::string fullFunctionNameWithIndex(int index) const;
    virtual std::string descriptionWithIndex(int index) const;

    /// The entry, or null out of range.
    const ExpressionWithTokenArray* entryAtIndex(int index) const;
    ExpressionWithTokenArray* entryAtIndex(int index);
    /// The tree of entry i; null out of range (or while that entry is being parsed).
    std::shared_ptr<const Expression> expression(int index) const { return expressionAtIndex(index); }
    std::shared_ptr<const Expression> expressionAtIndex(int index) const;
    /// The tokens of entry i, or null out of range.
    const TokenArray* expressionTokenArray(int index) const;
    /// The display text of entry i; empty out of range.
    std::string expressionString(int index) const;
    bool nonemptyExpressionAtIndex(int index) const;
    /// The tree of the last entry; null for an empty list.
    std::shared_ptr<const Expression> lastExpression() const;

    /// Removes all entries.
    void reset();
    /// Appends a line; beyond the capacity the oldest is dropped.
    void addExpressionTokenArray(TokenArray tokens);
    /// Stores a copy of the entry, growing the list up to it. With the check, an entry that would call
    /// itself, directly or through others, is refused: the former one stays and the result is false.
    /// So it is for a negative index.
    bool setExpressionAtIndex(int index, const ExpressionWithTokenArray& entry, bool checkForRecursion);

    /// The saved form: one element an entry.
    PropertyList expressionTokenArrays() const;
    /// Restores saved entries over the present ones. Elements may be entries, or arrays of tokens or
    /// texts as old files hold them; anything else is skipped. Entries beyond the capacity are not
    /// taken: of the history the newest stay, of a list of slots the first.
    void loadWithObject(const PropertyList& object);

    /// Called after every change of what the list holds; one at a time, null for none.
    void setObserver(std::function<void()> observer) { m_observer = std::move(observer); }

protected:
    /// To be called after a change: lines that hold a definition parse anew, and the observer is told.
    void noteChange() const;

private:
    void appendEmptyEntries(int max, int n);
    bool hasEntry(int index) const;

    std::vector<std::unique_ptr<ExpressionWithTokenArray>> m_entries;
    std::function<void()> m_observer;
    int m_maxExpressions = 0;
    bool m_keepsNewest; // a list that starts short is one that is added to, like the history
    bool m_couldBeExpressionInput = false;
    std::string m_functionName;
    std::string m_variableNameString;
};

} // namespace velmora
