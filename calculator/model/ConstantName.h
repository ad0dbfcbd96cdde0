#pragma once

#include <string>
#include <vector>

namespace velmora {

class NamedExpressionList;

/// Why a text cannot be the name of the constant in that slot; empty when it can. A name begins with neither
/// a digit nor a point, holds no blank, bracket, comma, operator or other sign that a line reads by itself,
/// and is not that of a function, a variable, a number such as "e" or "pi", or another constant.
std::string reasonAgainstConstantName(const NamedExpressionList& constants, const std::string& name,
                                      int slot);

/// Takes over names that a file brings. One that could not have been typed reads as none: a parenthesis in
/// it would be counted as an open one by every line that holds the constant.
void setCheckedConstantNames(NamedExpressionList& constants, const std::vector<std::string>& names);

} // namespace velmora
