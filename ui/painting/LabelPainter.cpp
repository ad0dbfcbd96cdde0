#include "ui/painting/LabelPainter.h"

#include "ui/adapters/QtConversions.h"
#include "ui/painting/SystemFont.h"

#include <QFontMetricsF>
#include <QPainter>

#include <utility>

namespace velmora {

void paintLabel(QPainter& painter, const LabelRecord& label, std::optional<Color> halo) {
    if (label.hidden || label.text.empty()) {
        return;
    }
    const QRectF frame = toQRectF(label.frame);
    if (label.backgroundColor.alpha > 0) {
        painter.fillRect(frame, toQColor(label.backgroundColor));
    }
    const double size = fittedFontSize(label);
    painter.setFont(sceneFont(label.fontName, size));
    QString text = QString::fromStdString(label.text);
    int flags = static_cast<int>(toQtAlignment(label.alignment)) | Qt::AlignVCenter | Qt::TextDontClip;
    painter.save();
    if (label.truncation == TextTruncation::Clip) {
        painter.setClipRect(frame);
        flags |= Qt::TextSingleLine;
    } else if (label.lineCount == 1) {
        flags |= Qt::TextSingleLine;
        LabelRecord fitted = label;
        fitted.fontSize = size;
        constexpr double rounding = 0.5; // of a fitted width
        if (textSize(fitted).width > label.frame.width + rounding) {
            const Qt::TextElideMode elided =
                label.truncation == TextTruncation::Head ? Qt::ElideLeft : Qt::ElideRight;
            text = QFontMetricsF(painter.font(), painter.device()).elidedText(text, elided, frame.width());
        }
    } else {
        flags |= Qt::TextWordWrap;
    }
    if (halo) {
        painter.setPen(toQColor(*halo));
        constexpr double reach = 1;
        for (const auto& [dx, dy] : {std::pair(-reach, -reach), std::pair(reach, -reach),
                                     std::pair(-reach, reach), std::pair(reach, reach)}) {
            painter.drawText(frame.translated(dx, dy), flags, text);
        }
    }
    painter.setPen(toQColor(label.textColor));
    painter.drawText(frame, flags, text);
    painter.restore();
}

} // namespace velmora
