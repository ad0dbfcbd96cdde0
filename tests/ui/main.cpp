#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Scenes are drawn, but need neither a screen nor a graphics card.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) {
        qputenv("QT_QUICK_BACKEND", "software");
    }
    // Files and pictures go to a home of their own, which goes with the tests.
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    QGuiApplication::setApplicationName(QStringLiteral("velmora-tests"));
    const QGuiApplication application(argc, argv);
    // A language that writes numbers another way; the program must not follow it.
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where the machine has it
    return RUN_ALL_TESTS();
}
