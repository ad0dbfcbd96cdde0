#pragma once

namespace velmora {

class ExpressionList;
class ExpressionWithTokenArray;

/// Stores the edited line as the equation of a slot. False, with an alert that says why, when it cannot be
/// read or would call itself; the former equation stays then.
bool storeEquation(const ExpressionWithTokenArray& line, ExpressionList* target, int slot);

/// The same for an inequality of the model.
bool storeInequality(const ExpressionWithTokenArray& line, int slot);

/// Appends the calculator's line to the history and evaluates it there, errors included.
void appendToHistory(const ExpressionWithTokenArray& line);

} // namespace velmora
