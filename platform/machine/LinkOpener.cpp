#include "platform/machine/LinkOpener.h"

#include "platform/text/Log.h"

namespace velmora {

namespace {

class NoLinkOpener final : public LinkOpener {
public:
    bool open(std::string_view) override { return false; }
};

} // namespace

bool openLink(std::string_view url) {
    static NoLinkOpener none;
    const bool opened = LinkOpenerScope::installedOr(none).open(url);
    if (!opened) {
        log("cannot open link: " + std::string(url));
    }
    return opened;
}

} // namespace velmora
