#include "ui/machine/QtDocumentsFolder.h"

#include "platform/text/Log.h"

#include <QDir>
#include <QStandardPaths>

namespace velmora {

std::optional<std::filesystem::path> QtDocumentsFolder::path() const {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (folder.isEmpty() || !QDir().mkpath(folder)) {
        log("there is no folder for the user's files");
        return std::nullopt;
    }
    return std::filesystem::path(folder.toStdU16String());
}

} // namespace velmora
