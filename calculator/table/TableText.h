#pragma once

#include "calculator/table/ValueTableMetrics.h"
#include "calculator/table/ValueTableView.h"
#include "toolkit/LabelRecord.h"

#include <string>

namespace velmora {

/// The colour of texts in the table that belong to no curve.
inline constexpr Color kTableTextColor = Color::white(1);

/// The name of the system font's bold face.
inline constexpr const char* kBoldSystemFont = "Helvetica-Bold";

/// A label of the table, which gets smaller where its text is too wide.
LabelRecord tableLabel(std::string text, const Rect& frame, const ValueTableMetrics& metrics,
                       const Color& color = kTableTextColor);

/// The short display of a row's value; three points while it has not been computed.
std::string valueText(const ValueTableView::Row* row, std::size_t index);

} // namespace velmora
