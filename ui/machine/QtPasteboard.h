#pragma once

#include "platform/machine/Pasteboard.h"

namespace velmora {

/// The system's clipboard. It holds one item: plain text as text, every other type as data of that name, so
/// that other programs see the text and this one finds its own types again.
class QtPasteboard final : public Pasteboard {
public:
    /// Of several items only the first is put on the clipboard.
    void setItems(std::vector<PasteboardItem> items) override;
    std::vector<PasteboardItem> items() const override;
};

} // namespace velmora
