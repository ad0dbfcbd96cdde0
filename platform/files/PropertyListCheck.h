#pragma once

#include <string_view>

namespace velmora {

/// Whether bytes that claim to be a binary property list are sound: every offset, length and reference
/// lies within the file, containers neither nest deeper than the limit nor hold themselves, texts are
/// well-formed without U+0000, no dictionary holds a key twice or more keys than the limit, and shared
/// references do not unfold into more than memory should bear. The library that builds the list recurses and
/// copies shared values, so it must see nothing else.
bool isSoundBinaryPropertyList(std::string_view bytes);

/// Whether an XML property list nests its containers no deeper than the limit. All else is left to the
/// library that reads it.
bool isXmlNestingWithinLimit(std::string_view text);

/// Whether an XML property list is small enough for the library: in bytes, in values, in the keys of its
/// dictionaries and in references such as "&amp;", for each of which it moves the rest of the text. Such
/// files come from hands and from other tools, the program itself writes none.
bool isXmlSizeWithinLimit(std::string_view text);

} // namespace velmora
