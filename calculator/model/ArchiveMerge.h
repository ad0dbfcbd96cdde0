#pragma once

#include "platform/files/PropertyList.h"

namespace velmora {

/// Joins two states that came from one: what the file has become since (by another copy of the program,
/// or because it could not be read before), and what the user has done here. Of a setting or a slot the
/// side that has changed it is taken, the user's where both have; the history gets the file's lines and
/// behind them those that were added here.
PropertyDictionary mergedArchive(const PropertyDictionary& base, const PropertyDictionary& file,
                                 const PropertyDictionary& here);

} // namespace velmora
