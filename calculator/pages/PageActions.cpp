#include "calculator/pages/PageActions.h"

#include "platform/files/KeyedArchive.h"
#include "platform/files/Resources.h"

#include <string_view>

namespace velmora {

namespace {

// Both from the build, see calculator/CMakeLists.txt.
constexpr std::string_view kVersion = VELMORA_VERSION;
constexpr std::string_view kMailLink = VELMORA_MAIL_LINK;

std::vector<PageAction> otherApplications() {
    std::vector<PageAction> actions;
    const auto resource = readPropertyListResource("OtherApplications.plist");
    const PropertyArray* list = resource ? resource->asArray() : nullptr;
    for (const PropertyList& item : list ? *list : PropertyArray()) {
        const KeyedUnarchiver application(item);
        const auto title = application.text("title");
        const auto link = application.text("link");
        if (title && link) {
            actions.push_back({*title, *link});
        }
    }
    return actions;
}

} // namespace

std::vector<PageAction> pageActions(const std::string& name) {
    if (name == "mail" && !kMailLink.empty()) {
        return {{"Write to us", std::string(kMailLink)}};
    }
    return name == "applications" ? otherApplications() : std::vector<PageAction>();
}

std::string withVersion(std::string text) {
    constexpr std::string_view kPlace = "{version}";
    if (const auto at = text.find(kPlace); at != std::string::npos) {
        text.replace(at, kPlace.size(), kVersion);
    }
    return text;
}

} // namespace velmora
