#include "ui/adapters/LabelAdapter.h"

#include "ui/adapters/QtConversions.h"
#include "ui/painting/SystemFont.h"

namespace velmora {

namespace {

int toQtElide(TextTruncation truncation) {
    switch (truncation) {
    case TextTruncation::Head:
        return Qt::ElideLeft;
    case TextTruncation::Tail:
        return Qt::ElideRight;
    case TextTruncation::WordWrap:
    case TextTruncation::Clip:
        return Qt::ElideNone;
    }
    return Qt::ElideRight;
}

} // namespace

LabelAdapter::LabelAdapter(const LabelRecord& record)
    : m_text(QString::fromStdString(record.text)), m_frame(toQRectF(record.frame)),
      m_font(sceneFont(record.fontName, record.fontSize)),
      m_minimumPointSize(
          sceneFont(record.fontName, record.minimumFontSize.value_or(record.fontSize)).pointSizeF()),
      m_textColor(toQColor(record.textColor)), m_backgroundColor(toQColor(record.backgroundColor)),
      m_alignment(toQtAlignment(record.alignment)), m_elide(toQtElide(record.truncation)),
      m_lineCount(record.lineCount) {}

} // namespace velmora
