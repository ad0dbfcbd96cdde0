#include "ui/machine/StartReport.h"

#include "platform/text/Log.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QQuickWindow>

#include <string>

namespace velmora {

namespace {

constexpr const char* kCalledAt = "VELMORA_START_MILLISECONDS";

/// What the system counts as resident, in kibibytes; 0 where it does not tell.
qlonglong residentKibibytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.simplified().split(' ').value(1).toLongLong();
            }
        }
    }
    return 0;
}

} // namespace

void reportStart(QQuickWindow& window) {
    const qlonglong calledAt = qEnvironmentVariable(kCalledAt).toLongLong();
    if (calledAt <= 0) {
        return;
    }
    const auto report = [calledAt] {
        const qlonglong elapsed = QDateTime::currentMSecsSinceEpoch() - calledAt;
        log("start: " + std::to_string(elapsed) + " ms, " + std::to_string(residentKibibytes()) + " KiB");
        QCoreApplication::quit();
    };
    QObject::connect(&window, &QQuickWindow::frameSwapped, QCoreApplication::instance(), report,
                     Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

} // namespace velmora
