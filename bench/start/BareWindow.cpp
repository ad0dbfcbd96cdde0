// A window with forty plain keys and nothing behind them, measured as the program is.

#include "ui/machine/RendererChoice.h"
#include "ui/machine/StartReport.h"

#include <QGuiApplication>
#include <QQuickView>

int main(int argc, char** argv) {
    velmora::chooseRenderer();
    const QGuiApplication application(argc, argv);
    QQuickView window;
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(375, 667);
    window.setSource(QUrl(QStringLiteral("qrc:/BareWindow/BareKeys.qml")));
    velmora::reportStart(window);
    window.show();
    return QGuiApplication::exec();
}
