#pragma once

#include "platform/files/PropertyList.h"

#include <string>
#include <string_view>

namespace velmora {

/// A browsable list as it stands in a property list: an array of a marker, the screen's title and entries,
/// each a dictionary with "content" and "hint". What an entry does follows from its content:
///   "Angles"               a choice of the angle mode
///   "Text||ClassName"      opens the screen of that class
///   "%%Text"               a heading
///   "Text%!%"              a greeting
///   an array               a list of the same form inside this one
///   any other text         is put into the line being typed
/// A list whose marker begins with "@" stands for the user's own constants; the one named "Equations" for
/// the functions of the equations tab.
using FunctionList = PropertyArray;

inline constexpr std::size_t kFunctionListTitle = 1;      ///< the index of the title
inline constexpr std::size_t kFirstFunctionListEntry = 2; ///< and that of the first entry
inline constexpr const char* kEquationsListName = "Equations";
inline constexpr const char* kReferenceListName = "Reference";

/// The list in the resource of that name. A missing or malformed one is logged and gives an empty list.
FunctionList loadFunctionListWithName(std::string_view name);

/// An entry.
PropertyList functionListEntry(PropertyList content, std::string hint);

/// The marker and the title alone.
FunctionList starterArrayForUserDefined(const FunctionList& list);
/// The list's first two items and one entry for each of the user's constants, "@k1" to "@k50".
FunctionList userdefinedExpressionsList(const FunctionList& list);
/// The list's first two items, "Equations" for those it lacks, and "y1(" to "y4(".
FunctionList equationsFunctionList(const FunctionList& list);
/// userdefinedExpressionsList where the marker asks for it, otherwise the list itself.
FunctionList possiblySetUserdefinedFunctionList(FunctionList list);

} // namespace velmora
