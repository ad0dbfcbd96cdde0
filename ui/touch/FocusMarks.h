#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace velmora {

/// Whether controls show which of them has the focus: since a key moved it, until a finger or the mouse
/// presses. Who points does not need to be shown where the keys would go.
class FocusMarks : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)

public:
    explicit FocusMarks(QObject* parent = nullptr);

    bool isShown() const { return m_isShown; }
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void shownChanged();

private:
    void setShown(bool shown);

    bool m_keysWork = false; ///< the last input came from a keyboard
    bool m_isShown = false;
};

} // namespace velmora
