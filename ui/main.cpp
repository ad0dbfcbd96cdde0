#include "platform/machine/StandardStreams.h"
#include "platform/text/Log.h"
#include "ui/Application.h"
#include "ui/machine/RendererChoice.h"
#include "ui/machine/StartReport.h"
#include "ui/machine/TerminationSignals.h"

#include <QGuiApplication>
#include <QIcon>

#include <cstdio>
#include <exception>
#include <string>

namespace {

int runVelmora(int argc, char** argv) {
    velmora::chooseRenderer();
    QGuiApplication::setApplicationName(QStringLiteral("velmora"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Velmora"));
    QGuiApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("velmora"));
    QGuiApplication qtApplication(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icon/velmora.svg")));

    velmora::Application application;
    const velmora::TerminationSignals termination;
    QObject::connect(&termination, &velmora::TerminationSignals::requested, &qtApplication,
                     &QCoreApplication::quit);
    velmora::reportStart(application.window());
    application.window().show();
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    velmora::secureStandardStreams();
    std::puts("Velmora starts");
    try {
        return runVelmora(argc, argv);
    } catch (const std::exception& exception) {
        velmora::log(std::string("exception: ") + exception.what());
    } catch (...) {
        velmora::log("exception: of unknown kind");
    }
    return 1;
}
