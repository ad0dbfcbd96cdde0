#pragma once

#include "toolkit/LabelRecord.h"

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace velmora {

/// A label record as QML reads it.
class LabelAdapter {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(QRectF frame MEMBER m_frame)
    Q_PROPERTY(QFont font MEMBER m_font)
    Q_PROPERTY(double minimumPointSize MEMBER m_minimumPointSize) ///< of the font's own unit
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor backgroundColor MEMBER m_backgroundColor)
    Q_PROPERTY(int alignment MEMBER m_alignment) ///< a Qt::Alignment
    Q_PROPERTY(int elide MEMBER m_elide)         ///< a Qt::TextElideMode
    Q_PROPERTY(int lineCount MEMBER m_lineCount)

public:
    LabelAdapter() = default;
    explicit LabelAdapter(const LabelRecord& record);
    bool operator==(const LabelAdapter&) const = default;

private:
    QString m_text;
    QRectF m_frame;
    QFont m_font;
    double m_minimumPointSize = 0;
    QColor m_textColor;
    QColor m_backgroundColor;
    int m_alignment = Qt::AlignLeft;
    int m_elide = Qt::ElideRight;
    int m_lineCount = 1;
};

} // namespace velmora
