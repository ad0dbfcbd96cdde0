#include "platform/files/PropertyList.h"
#include "platform/files/PropertyListCheck.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace velmora {

namespace {

/// What looks like an element inside these is none.
struct SpanForm {
    std::string_view opening;
    std::string_view closing;
};
constexpr std::array kSpanForms{
    SpanForm{"<!--", "-->"},
    SpanForm{"<![CDATA[", "]]>"},
    SpanForm{"<?", "?>"},
};

bool isContainerTag(std::string_view tag, std::size_t nameStart) {
    const std::string_view fromName = tag.substr(std::min(nameStart, tag.size()));
    const std::string_view name = fromName.substr(0, fromName.find_first_of(" \t\r\n/>"));
    return name == "array" || name == "dict";
}

/// Whether a quoted attribute is still open where the tag seems to end.
bool endsWithinQuotes(std::string_view tag) {
    char quote = 0;
    for (const char c : tag) {
        if (quote != 0) {
            quote = c == quote ? char{0} : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        }
    }
    return quote != 0;
}

/// Finds an upper bound of the nesting, whatever a reader takes for a comment or for a quoted attribute.
/// An ill-formed text may make two readers differ on what is hidden in those, so inside of them elements
/// that open count, while elements that close do not end what was open before.
class NestingCount {
public:
    explicit NestingCount(std::string_view text) : m_text(text) {}

    bool isWithinLimit() {
        for (std::size_t at = m_text.find('<'); at != std::string_view::npos; at = m_text.find('<', at + 1)) {
            if (at >= m_doubtfulEnd) {
                m_floor = 0;
            }
            if (!enterSpan(at) && !countTag(at)) {
                return false;
            }
        }
        return true;
    }

private:
    static constexpr std::size_t kUnknown = 0;

    /// Where the marker next ends, or the end of the text. The place found last is kept: many openings
    /// before one closing would otherwise cost the square of the length.
    std::size_t endOfNext(std::string_view marker, std::size_t from, std::size_t& known) const {
        if (known == kUnknown || from + marker.size() > known) {
            const std::size_t found = m_text.find(marker, from);
            known = found == std::string_view::npos ? m_text.size() : found + marker.size();
        }
        return known;
    }

    void doubtUntil(std::size_t end) {
        m_floor = m_depth;
        m_doubtfulEnd = std::max(m_doubtfulEnd, end);
    }

    bool enterSpan(std::size_t at) {
        for (std::size_t form = 0; form < kSpanForms.size(); ++form) {
            const std::string_view opening = kSpanForms[form].opening;
            if (m_text.substr(at).starts_with(opening)) {
                doubtUntil(endOfNext(kSpanForms[form].closing, at + opening.size(), m_spanEnds[form]));
                return true;
            }
        }
        return false;
    }

    bool countTag(std::size_t at) {
        const std::size_t end = endOfNext(">", at, m_tagEnd);
        const std::size_t nextBracket = std::min(m_text.find('<', at + 1), m_text.size());
        const std::string_view tag = m_text.substr(at, std::min(end, nextBracket) - at);
        const bool isDoubtful = nextBracket < end || endsWithinQuotes(tag);
        if (tag.starts_with("</")) {
            m_depth -= isContainerTag(tag, 2) && m_depth > m_floor ? 1 : 0;
        } else if (isContainerTag(tag, 1) && (isDoubtful || !tag.ends_with("/>"))) {
            ++m_depth;
        }
        if (isDoubtful) {
            doubtUntil(m_text.size());
        }
        return m_depth <= kMaximumPropertyListDepth;
    }

    std::string_view m_text;
    int m_depth = 0;
    int m_floor = 0;
    std::size_t m_doubtfulEnd = 0;
    std::size_t m_tagEnd = kUnknown;
    std::array<std::size_t, kSpanForms.size()> m_spanEnds{};
};

constexpr std::size_t kLargestXml = std::size_t{16} << 20U;
constexpr std::size_t kMostTags = 2'000'000;
// The keys of all dictionaries together: which of them share one is not told here.
constexpr std::size_t kMostKeys = 20'000;
constexpr std::size_t kMostBytesMoved = std::size_t{1} << 30U;

std::size_t occurrences(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace

bool isXmlSizeWithinLimit(std::string_view text) {
    return text.size() <= kLargestXml && occurrences(text, "<") <= kMostTags &&
           occurrences(text, "<key") <= kMostKeys && occurrences(text, "&") * text.size() <= kMostBytesMoved;
}

bool isXmlNestingWithinLimit(std::string_view text) { return NestingCount(text).isWithinLimit(); }

} // namespace velmora
