#include "ui/painting/FigurePainter.h"

#include "calculator/pages/Figure.h"
#include "ui/painting/FormulaPainter.h"
#include "ui/painting/SystemFont.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <vector>

namespace velmora {

namespace {

constexpr double kTextSize = 15;
constexpr double kSmallTextSize = 12.5;
constexpr double kIndexScale = 0.72;
constexpr double kIndexDrop = 0.2; // of the type size
// Fonts of small sizes come with rounded widths, so they are measured large.
constexpr double kMeasuredScale = 8;

/// A part of a label that is written in one font.
struct Run {
    QString text;
    bool isVariable = false; ///< a letter by itself, in italics as in formulas
    bool isIndex = false;
};

std::vector<Run> runsOf(const QString& text) {
    std::vector<Run> runs;
    bool isIndex = false;
    for (qsizetype i = 0; i < text.size();) {
        const QChar character = text[i];
        if (character == u'_') {
            isIndex = true;
            ++i;
            continue;
        }
        qsizetype end = i + 1;
        if (character.isLetter()) {
            while (end < text.size() && text[end].isLetter()) {
                ++end;
            }
        } else {
            while (end < text.size() && !text[end].isLetter() && text[end] != u'_' && text[end] != u' ') {
                ++end;
            }
        }
        isIndex = isIndex && character != u' ';
        runs.push_back({text.mid(i, end - i), character.isLetter() && end == i + 1, isIndex});
        i = end;
    }
    return runs;
}

QFont fontOf(const Run& run, double size) {
    QFont font(systemFontFamily());
    font.setPixelSize(qRound(size * kMeasuredScale * (run.isIndex ? kIndexScale : 1)));
    font.setItalic(run.isVariable);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void paintLabel(QPainter& painter, const Figure::Label& label, const QColor& color) {
    const double size = label.small ? kSmallTextSize : kTextSize;
    const std::vector<Run> runs = runsOf(QString::fromStdString(label.text));
    double width = 0;
    for (const Run& run : runs) {
        width += QFontMetricsF(fontOf(run, size)).horizontalAdvance(run.text) / kMeasuredScale;
    }
    double x = label.point.x;
    if (label.anchor != Figure::Label::Anchor::Left) {
        x -= label.anchor == Figure::Label::Anchor::Centre ? width / 2 : width;
    }
    constexpr double capHeight = 0.72;
    const double base = label.point.y + capHeight * size / 2;
    painter.setPen(color);
    for (const Run& run : runs) {
        const QFont font = fontOf(run, size);
        painter.save();
        painter.translate(x, base + (run.isIndex ? kIndexDrop * size : 0));
        painter.scale(1 / kMeasuredScale, 1 / kMeasuredScale);
        painter.setFont(font);
        painter.drawText(QPointF(), run.text);
        painter.restore();
        x += QFontMetricsF(font).horizontalAdvance(run.text) / kMeasuredScale;
    }
}

} // namespace

void paintFigure(QPainter& painter, const Figure& figure, const FigureColors& colors) {
    for (const Figure::Shape& shape : figure.shapes) {
        const QColor& color = colors.at(static_cast<std::size_t>(shape.color));
        QPen pen(color, shape.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        if (shape.dashed) {
            pen.setDashPattern({3, 3});
        }
        QColor fill = color;
        fill.setAlphaF(static_cast<float>(shape.fillOpacity));
        painter.setPen(shape.lineWidth > 0 ? pen : Qt::NoPen);
        painter.setBrush(shape.fillOpacity > 0 ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.drawPath(qtPath(shape.path));
    }
    for (const Figure::Label& label : figure.labels) {
        paintLabel(painter, label, colors.at(static_cast<std::size_t>(label.color)));
    }
}

} // namespace velmora
