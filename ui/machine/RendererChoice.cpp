#include "ui/machine/RendererChoice.h"

#include <QDir>
#include <QFileInfo>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>

namespace velmora {

namespace {

bool userHasChosen() {
    return !qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") ||
           !qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND");
}

bool hardwareIsUsable() {
#if defined(Q_OS_LINUX) && !defined(Q_OS_ANDROID)
    if (qEnvironmentVariableIntValue("LIBGL_ALWAYS_SOFTWARE") != 0) {
        return false;
    }
    const auto nodes =
        QDir(QStringLiteral("/dev/dri")).entryInfoList({QStringLiteral("renderD*")}, QDir::System);
    return std::ranges::any_of(nodes,
                               [](const QFileInfo& node) { return node.isReadable() && node.isWritable(); });
#else
    return true;
#endif
}

} // namespace

void chooseRenderer() {
    if (!userHasChosen() && !hardwareIsUsable()) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

} // namespace velmora
