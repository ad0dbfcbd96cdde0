#include "ui/machine/QtLinkOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace velmora {

bool QtLinkOpener::open(std::string_view url) {
    const QUrl link(QString::fromUtf8(url.data(), qsizetype(url.size())), QUrl::StrictMode);
    return link.isValid() && QDesktopServices::openUrl(link);
}

} // namespace velmora
