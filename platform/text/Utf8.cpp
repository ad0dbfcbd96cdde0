#include "platform/text/Utf8.h"

#include <algorithm>

namespace velmora {

namespace {

/// The well-formed sequences by their first byte: total length and the range of the second byte
/// (Unicode Standard, table 3-7). All later bytes are 80 to BF.
struct SequenceForm {
    unsigned char firstLow;
    unsigned char firstHigh;
    std::size_t length;
    unsigned char secondLow;
    unsigned char secondHigh;
};
constexpr SequenceForm kSequenceForms[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the well-formed sequence at the start; 0 when there is none.
std::size_t wellFormedLength(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const auto within = [](unsigned char value, unsigned char low, unsigned char high) {
        return low <= value && value <= high;
    };
    const auto* form = std::ranges::find_if(kSequenceForms, [&](const SequenceForm& candidate) {
        return within(byte(0), candidate.firstLow, candidate.firstHigh);
    });
    if (form == std::end(kSequenceForms) || text.size() < form->length) {
        return 0;
    }
    for (std::size_t index = 1; index < form->length; ++index) {
        const bool isSecond = index == 1;
        if (!within(byte(index), isSecond ? form->secondLow : 0x80, isSecond ? form->secondHigh : 0xBF)) {
            return 0;
        }
    }
    return form->length;
}

/// As above, but a stray byte has the length 1.
std::size_t firstLength(std::string_view text) {
    return text.empty() ? 0 : std::max<std::size_t>(wellFormedLength(text), 1);
}

} // namespace

std::size_t codePointCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(firstLength(text))) {
        ++count;
    }
    return count;
}

std::vector<std::string> splitCodePoints(std::string_view text) {
    std::vector<std::string> result;
    for (; !text.empty(); text.remove_prefix(firstLength(text))) {
        result.emplace_back(firstCodePoint(text));
    }
    return result;
}

std::string_view firstCodePoint(std::string_view text) { return text.substr(0, firstLength(text)); }

std::string_view lastCodePoint(std::string_view text) { return text.substr(dropLast(text, 1).size()); }

std::string_view dropFirst(std::string_view text, std::size_t count) {
    for (; count > 0 && !text.empty(); --count) {
        text.remove_prefix(firstLength(text));
    }
    return text;
}

std::string_view dropLast(std::string_view text, std::size_t count) {
    // Walking back by continuation bytes would cut stray bytes otherwise than walking forward does.
    const std::size_t total = codePointCount(text);
    return count >= total ? text.substr(0, 0) : takeFirst(text, total - count);
}

std::string_view takeFirst(std::string_view text, std::size_t count) {
    return text.substr(0, text.size() - dropFirst(text, count).size());
}

bool isValidUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = wellFormedLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::string validUtf8(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = wellFormedLength(text);
        result += length == 0 ? std::string_view("\uFFFD") : text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

} // namespace velmora
