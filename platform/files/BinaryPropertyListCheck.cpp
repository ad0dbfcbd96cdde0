#include "platform/files/PropertyList.h"
#include "platform/files/PropertyListCheck.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;

// A reference shared by containers is built anew at each place, so a few hundred bytes can unfold into
// billions of values. Files of this program share only single values: they never unfold into more values
// than they have bytes.
constexpr std::uint64_t kUnfoldedObjectsBeyondFileSize = 100'000;
constexpr std::uint64_t kMaximumUnfoldedObjects = 4'000'000;
constexpr std::uint64_t kUnfoldedBytesBeyondFileSize = std::uint64_t{64} << 20;

enum class Kind : unsigned char {
    Simple = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiText = 0x5,
    Utf16Text = 0x6,
    Identifier = 0x8,
    Array = 0xA,
    Dictionary = 0xD,
};

/// What an object amounts to with all that it refers to.
struct Extent {
    int depth = 0;
    std::uint64_t objects = 1;
    std::uint64_t bytes = 0;
};

bool isAsciiOfText(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0 && byte < 0x80;
}

class BinaryCheck {
public:
    explicit BinaryCheck(std::string_view bytes) : m_bytes(bytes) {}

    bool isSound() {
        if (!readTrailer()) {
            return false;
        }
        m_extents.resize(m_objectCount);
        return visit(m_topObject, 1).has_value();
    }

private:
    struct Header {
        Kind kind;
        unsigned low;        // the lower half of the marker
        std::uint64_t count; // how many elements follow
        std::size_t content; // where they begin
    };

    std::uint64_t bigEndian(std::size_t position, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t index = 0; index < size; ++index) {
            value = value << 8 | static_cast<unsigned char>(m_bytes[position + index]);
        }
        return value;
    }

    bool readTrailer() {
        if (m_bytes.size() < kMagic.size() + 1 + kTrailerSize || !m_bytes.starts_with(kMagic)) {
            return false;
        }
        const std::size_t trailer = m_bytes.size() - kTrailerSize;
        m_offsetSize = static_cast<unsigned char>(m_bytes[trailer + 6]);
        m_referenceSize = static_cast<unsigned char>(m_bytes[trailer + 7]);
        const std::uint64_t objectCount = bigEndian(trailer + 8, 8);
        m_topObject = bigEndian(trailer + 16, 8);
        const std::uint64_t offsetTable = bigEndian(trailer + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8 ||
            m_topObject >= objectCount || offsetTable < kMagic.size() + 1 || offsetTable > trailer ||
            objectCount > (trailer - offsetTable) / m_offsetSize) {
            return false;
        }
        m_objectCount = objectCount;
        m_offsetTable = offsetTable;
        return true;
    }

    /// Whether that many bytes from the position on lie before the offset table.
    bool holds(std::size_t position, std::uint64_t size) const {
        return position <= m_offsetTable && size <= m_offsetTable - position;
    }

    std::optional<Header> readHeader(std::uint64_t object) const {
        const std::uint64_t offset = bigEndian(m_offsetTable + object * m_offsetSize, m_offsetSize);
        if (offset < kMagic.size() || offset >= m_offsetTable) {
            return std::nullopt;
        }
        const auto marker = static_cast<unsigned char>(m_bytes[offset]);
        Header header{static_cast<Kind>(marker >> 4), marker & 0x0FU, marker & 0x0FU, offset + 1};
        const bool isCounted = header.kind == Kind::Data || header.kind == Kind::AsciiText ||
                               header.kind == Kind::Utf16Text || header.kind == Kind::Array ||
                               header.kind == Kind::Dictionary;
        if (isCounted && header.low == 0x0F) {
            // The count did not fit the marker: a whole number follows.
            if (!holds(header.content, 1)) {
                return std::nullopt;
            }
            const auto countMarker = static_cast<unsigned char>(m_bytes[header.content]);
            const std::size_t size = std::size_t{1} << (countMarker & 0x0FU);
            if (countMarker >> 4 != static_cast<int>(Kind::Integer) || size > 8 ||
                !holds(header.content + 1, size)) {
                return std::nullopt;
            }
            header.count = bigEndian(header.content + 1, size);
            header.content += 1 + size;
        }
        return header;
    }

    std::optional<Extent> visit(std::uint64_t object, int depth) {
        if (object >= m_objectCount) {
            return std::nullopt;
        }
        std::optional<Extent>& known = m_extents[object];
        if (!known) {
            const std::optional<Header> header = readHeader(object);
            if (!header) {
                return std::nullopt;
            }
            if (header->kind == Kind::Array || header->kind == Kind::Dictionary) {
                known = visitContainer(*header, depth);
            } else {
                known = visitLeaf(*header);
            }
        }
        // A container first met higher up may lie too deep here, and chains of such ones have no limit.
        if (known && depth - 1 + known->depth > kMaximumPropertyListDepth) {
            return std::nullopt;
        }
        return known;
    }

    std::optional<Extent> visitContainer(const Header& header, int depth) {
        const std::uint64_t referenceCount = header.kind == Kind::Dictionary ? 2 : 1;
        // The first test also ends the walk round a container that holds itself.
        if (depth > kMaximumPropertyListDepth || header.count > m_bytes.size() ||
            !holds(header.content, header.count * referenceCount * m_referenceSize)) {
            return std::nullopt;
        }
        Extent extent{.depth = 1};
        if (header.kind == Kind::Dictionary && !hasKeysOfItsOwn(header)) {
            return std::nullopt;
        }
        for (std::uint64_t index = 0; index < header.count * referenceCount; ++index) {
            const std::uint64_t child = bigEndian(header.content + index * m_referenceSize, m_referenceSize);
            const std::optional<Extent> part = visit(child, depth + 1);
            if (!part) {
                return std::nullopt;
            }
            extent.depth = std::max(extent.depth, 1 + part->depth);
            extent.objects += part->objects;
            extent.bytes += part->bytes;
            if (extent.objects >
                    std::min(m_bytes.size() + kUnfoldedObjectsBeyondFileSize, kMaximumUnfoldedObjects) ||
                extent.bytes > m_bytes.size() + kUnfoldedBytesBeyondFileSize) {
                return std::nullopt;
            }
        }
        return extent;
    }

    /// Whether the keys are texts, each another one. A key that stands twice would take the place of one
    /// that is missing.
    bool hasKeysOfItsOwn(const Header& header) const {
        if (header.count > kMaximumPropertyListKeys) {
            return false;
        }
        std::vector<std::string_view> keys;
        for (std::uint64_t index = 0; index < header.count; ++index) {
            const std::uint64_t key = bigEndian(header.content + index * m_referenceSize, m_referenceSize);
            const auto text = textBytes(key);
            if (!text) {
                return false;
            }
            keys.push_back(*text);
        }
        std::ranges::sort(keys);
        return std::ranges::adjacent_find(keys) == keys.end();
    }

    std::optional<std::string_view> textBytes(std::uint64_t object) const {
        const std::optional<Header> header = object < m_objectCount ? readHeader(object) : std::nullopt;
        if (!header || (header->kind != Kind::AsciiText && header->kind != Kind::Utf16Text)) {
            return std::nullopt;
        }
        const std::uint64_t unit = header->kind == Kind::Utf16Text ? 2 : 1;
        return header->count <= m_bytes.size() && holds(header->content, header->count * unit)
                   ? std::optional(m_bytes.substr(header->content, header->count * unit))
                   : std::nullopt;
    }

    std::optional<Extent> visitLeaf(const Header& header) const {
        std::uint64_t size = 0;
        switch (header.kind) {
        case Kind::Simple:
            return header.low == 0x8 || header.low == 0x9 ? std::optional(Extent{}) : std::nullopt;
        case Kind::Integer:
            size = header.low <= 4 ? std::uint64_t{1} << header.low : 0;
            break;
        case Kind::Real:
            size = header.low == 2 || header.low == 3 ? std::uint64_t{1} << header.low : 0;
            break;
        case Kind::Date:
            size = header.low == 3 ? 8 : 0;
            break;
        case Kind::Identifier:
            size =
                header.low == 0 || header.low == 1 || header.low == 3 || header.low == 7 ? header.low + 1 : 0;
            break;
        case Kind::Data:
        case Kind::AsciiText:
        case Kind::Utf16Text:
            return visitBytes(header);
        default:
            break;
        }
        return size > 0 && holds(header.content, size) ? std::optional(Extent{}) : std::nullopt;
    }

    std::optional<Extent> visitBytes(const Header& header) const {
        const std::uint64_t unit = header.kind == Kind::Utf16Text ? 2 : 1;
        if (header.count > m_bytes.size() || !holds(header.content, header.count * unit)) {
            return std::nullopt;
        }
        const std::string_view content = m_bytes.substr(header.content, header.count * unit);
        if (header.kind == Kind::AsciiText && !std::ranges::all_of(content, isAsciiOfText)) {
            return std::nullopt;
        }
        if (header.kind == Kind::Utf16Text && !isWellFormedUtf16(header)) {
            return std::nullopt;
        }
        return Extent{.bytes = content.size()};
    }

    bool isWellFormedUtf16(const Header& header) const {
        bool lowSurrogateDue = false;
        for (std::uint64_t index = 0; index < header.count; ++index) {
            const std::uint64_t unit = bigEndian(header.content + index * 2, 2);
            const bool isLowSurrogate = unit >= 0xDC00 && unit <= 0xDFFF;
            if (unit == 0 || isLowSurrogate != lowSurrogateDue) {
                return false;
            }
            lowSurrogateDue = unit >= 0xD800 && unit <= 0xDBFF;
        }
        return !lowSurrogateDue;
    }

    std::string_view m_bytes;
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    std::size_t m_offsetTable = 0;
    std::uint64_t m_objectCount = 0;
    std::uint64_t m_topObject = 0;
    std::vector<std::optional<Extent>> m_extents;
};

} // namespace

bool isSoundBinaryPropertyList(std::string_view bytes) { return BinaryCheck(bytes).isSound(); }

} // namespace velmora
