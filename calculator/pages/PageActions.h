#pragma once

#include <string>
#include <vector>

namespace velmora {

/// A button of a page that leads out of the program.
struct PageAction {
    std::string title;
    std::string link;
};

/// What the actions of that name are: "mail", to write to the makers, where the build names an address, and
/// "applications", those that the resource "OtherApplications.plist" lists by "title" and "link". None for a
/// name that is neither.
std::vector<PageAction> pageActions(const std::string& name);

/// A text of a page with the program's version in the place of "{version}".
std::string withVersion(std::string text);

} // namespace velmora
