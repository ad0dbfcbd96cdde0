#include "calculator/model/HalfTypedLine.h"

#include "platform/files/KeyedArchive.h"
#include "platform/text/Utf8.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kTokens = "TokenArrayKey";
constexpr const char* kCursor = "CursorPositionKey";
constexpr const char* kTyped = "TypedTextKey";

} // namespace

void HalfTypedLine::encodeWithCoder(KeyedArchiver& coder) const {
    coder.encode(kTokens, archivedTokenArray(tokens));
    coder.encode(kCursor, place.cursor);
    coder.encode(kTyped, place.typed);
}

HalfTypedLine HalfTypedLine::decode(const KeyedUnarchiver& coder) {
    HalfTypedLine line;
    if (const PropertyList* tokens = coder.value(kTokens)) {
        line.tokens = unarchivedTokenArray(*tokens);
    }
    const auto count = static_cast<std::int64_t>(line.tokens.size());
    const std::int64_t cursor = coder.integer(kCursor).value_or(count);
    line.place.cursor = static_cast<int>(cursor < 0 || cursor > count ? count : cursor);
    const std::string typed = coder.text(kTyped).value_or(std::string());
    line.place.typed = isValidUtf8(typed) ? typed : std::string();
    return line;
}

} // namespace velmora
