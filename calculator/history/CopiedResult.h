#pragma once

#include "engine/numbers/ComplexValue.h"
#include "platform/machine/Pasteboard.h"

#include <string>

namespace velmora {

class ExpressionWithTokenArray;

/// The shortest text that reads back as the same number: "0.1", "1E-5", complex "2-0.5i". Parts that the
/// display rounds away are left out.
std::string fullPrecisionText(ComplexValue value);

/// What copying the result of a history row puts on the pasteboard: the value in full as text and as tokens,
/// or the text that stands in place of a value.
PasteboardItem copiedResult(const ExpressionWithTokenArray& row);

} // namespace velmora
