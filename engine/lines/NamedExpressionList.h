#pragma once

#include "engine/lines/ExpressionList.h"

#include <string>
#include <vector>

namespace velmora {

/// A list whose entries may carry names of the user's own: the constants.
class NamedExpressionList final : public ExpressionList {
public:
    NamedExpressionList(int max, int n);
    explicit NamedExpressionList(int max) : NamedExpressionList(max, max) {}

    /// One name an entry; the empty text where the user gave none.
    const std::vector<std::string>& nameArray() const { return m_names; }
    /// Cut to the list's capacity where long, padded with empty texts where short.
    void setNameArray(std::vector<std::string> names);
    void setNameAtIndex(int index, std::string name);

    /// The user's name, or "k3" for an unnamed third constant. Pads the names to 50 first.
    std::string fullFunctionNameWithIndex(int index) const override;

private:
    mutable std::vector<std::string> m_names; // padded when a name is first asked for
};

} // namespace velmora
