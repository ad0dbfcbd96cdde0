#pragma once

#include "platform/files/PropertyList.h"
#include "platform/machine/InstallScope.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmora {

/// The type under which an item holds plain text.
inline constexpr std::string_view kPlainTextType = "public.text";

/// The type under which an item holds a picture, as a PNG file's bytes.
inline constexpr std::string_view kPngType = "public.png";

/// One thing copied, in one or more representations by type: text or bytes.
using PasteboardRepresentation = std::variant<std::string, PropertyData>;
using PasteboardItem = std::map<std::string, PasteboardRepresentation, std::less<>>;

/// What is exchanged by copy and paste, also with other programs.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Replaces everything on the pasteboard.
    virtual void setItems(std::vector<PasteboardItem> items) = 0;
    virtual std::vector<PasteboardItem> items() const = 0;

    /// Replaces everything by one item of plain text.
    void setText(std::string text);
    /// The plain text of the first item that has some.
    std::optional<std::string> text() const;
    /// The bytes of that type of the first item that has some.
    std::optional<PropertyData> data(std::string_view type) const;
};

/// A pasteboard of this program alone.
class PlainPasteboard final : public Pasteboard {
public:
    void setItems(std::vector<PasteboardItem> items) override { m_items = std::move(items); }
    std::vector<PasteboardItem> items() const override { return m_items; }

private:
    std::vector<PasteboardItem> m_items;
};

using PasteboardScope = InstallScope<Pasteboard>;

/// The pasteboard in force; one of this program alone while none is installed.
Pasteboard& generalPasteboard();

} // namespace velmora
