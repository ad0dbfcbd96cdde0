#pragma once

#include "platform/machine/LinkOpener.h"

namespace velmora {

/// Opens links in the program that the user has chosen for them.
class QtLinkOpener final : public LinkOpener {
public:
    bool open(std::string_view url) override;
};

} // namespace velmora
