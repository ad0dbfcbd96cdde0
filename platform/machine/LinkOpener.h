#pragma once

#include "platform/machine/InstallScope.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Opens links outside the program.
class LinkOpener {
public:
    virtual ~LinkOpener() = default;

    /// False when the machine cannot open the link.
    virtual bool open(std::string_view url) = 0;
};

/// Opens nothing and remembers the links.
class RecordingLinkOpener final : public LinkOpener {
public:
    bool open(std::string_view url) override {
        m_opened.emplace_back(url);
        return true;
    }
    const std::vector<std::string>& opened() const { return m_opened; }

private:
    std::vector<std::string> m_opened;
};

using LinkOpenerScope = InstallScope<LinkOpener>;

/// Opens a link with the opener in force. False, logged, when that fails or none is installed.
bool openLink(std::string_view url);

} // namespace velmora
