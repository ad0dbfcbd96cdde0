#pragma once

#include "calculator/pages/CopyPasteLabel.h"

#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace velmora {

/// A label to copy from, as QML makes one: CopyPasteLabel.qml draws it.
class CopyPasteLabelAdapter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(bool menuShown READ isMenuShown NOTIFY changed)
    Q_PROPERTY(QPointF menuPoint READ menuPoint NOTIFY changed)

public:
    CopyPasteLabelAdapter();

    QString text() const { return QString::fromStdString(m_label.text()); }
    void setText(const QString& text) { m_label.setText(text.toStdString()); }
    bool isMenuShown() const { return m_label.isFirstResponder(); }
    QPointF menuPoint() const;

    Q_INVOKABLE void doubleTapped(QPointF point) { m_label.doubleTapped({point.x(), point.y()}); }
    Q_INVOKABLE void tapped() { m_label.tapped(); }
    Q_INVOKABLE void copy() { m_label.copy(); }

Q_SIGNALS:
    void changed();

private:
    CopyPasteLabel m_label;
};

} // namespace velmora
