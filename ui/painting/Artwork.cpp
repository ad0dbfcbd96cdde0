#include "ui/painting/Artwork.h"

#include "platform/text/Log.h"
#include "ui/painting/KeyColors.h"
#include "ui/painting/SystemFont.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

/// What a drawing needs to know of the place it fills.
struct Canvas {
    QPainter& painter;
    QRectF area;
    double pixelsPerPoint;
};

constexpr double kKeyRadius = 7;
constexpr double kPanelRadius = 13;
constexpr QRgb kPanelColor = 0xff3a3f47;
constexpr QRgb kPanelEdgeColor = 0xff5a616b;

void fillRounded(const Canvas& canvas, const QRectF& area, double radius, const QBrush& brush) {
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(brush);
    canvas.painter.drawRoundedRect(area, radius * canvas.pixelsPerPoint, radius * canvas.pixelsPerPoint);
}

/// A key stands out by a lower edge in shadow and a face that is a little lighter at the top; pressed, it
/// sinks onto its edge and lights up.
void drawKey(const Canvas& canvas, const QColor& color, bool isPressed) {
    const double edge = std::max(1.0, std::round(canvas.pixelsPerPoint));
    const QRectF face =
        isPressed ? canvas.area.adjusted(0, edge, 0, 0) : canvas.area.adjusted(0, 0, 0, -edge);
    fillRounded(canvas, canvas.area.adjusted(0, edge, 0, 0), kKeyRadius, color.darker(190));
    QLinearGradient shading(face.topLeft(), face.bottomLeft());
    shading.setColorAt(0, isPressed ? color.lighter(128) : color);
    shading.setColorAt(1, isPressed ? color.lighter(136) : color.darker(116));
    fillRounded(canvas, face, kKeyRadius, shading);
}

void drawPanel(const Canvas& canvas) {
    const double edge = std::max(1.0, std::round(canvas.pixelsPerPoint * 0.5));
    fillRounded(canvas, canvas.area, kPanelRadius, QColor::fromRgba(kPanelEdgeColor));
    fillRounded(canvas, canvas.area.adjusted(edge, edge, -edge, -edge), kPanelRadius - 0.5,
                QColor::fromRgba(kPanelColor));
}

/// Signs are given on a square of 24 units, centred in the area.
void useUnitSquare(const Canvas& canvas) {
    constexpr double units = 24;
    const double side = std::min(canvas.area.width(), canvas.area.height());
    canvas.painter.translate(canvas.area.center() - QPointF(side / 2, side / 2));
    canvas.painter.scale(side / units, side / units);
}

void drawRoot(const Canvas& canvas) {
    useUnitSquare(canvas);
    QPainterPath radical(QPointF(3.5, 13.4));
    radical.lineTo(6, 12);
    radical.lineTo(9.6, 19);
    radical.lineTo(13.4, 5);
    radical.lineTo(20.5, 5);
    QPen pen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    canvas.painter.setPen(pen);
    canvas.painter.setBrush(Qt::NoBrush);
    canvas.painter.drawPath(radical);
    QPainterPath radicand(QPointF(14.6, 10));
    radicand.lineTo(19.2, 16.6);
    radicand.moveTo(19.2, 10);
    radicand.lineTo(14.6, 16.6);
    pen.setWidthF(1.5);
    canvas.painter.setPen(pen);
    canvas.painter.drawPath(radicand);
}

/// Draws a picture that stands in a file, centred in the area. The reader of such files is only loaded when
/// the first picture is shown.
bool drawPicture(QStringView name, const Canvas& canvas) {
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(name);
    if (!QFile::exists(file)) {
        return false;
    }
    const double side = std::min(canvas.area.width(), canvas.area.height());
    QImageReader reader(file, "svg");
    reader.setScaledSize(QSize(qRound(side), qRound(side)));
    const QImage picture = reader.read();
    canvas.painter.drawImage(canvas.area.center() - QPointF(side / 2, side / 2), picture);
    return !picture.isNull();
}

/// Thin round lines in the unit square, for outlines.
QPainter& useLinePen(const Canvas& canvas, double width = 1.6) {
    useUnitSquare(canvas);
    canvas.painter.setPen(QPen(Qt::white, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    canvas.painter.setBrush(Qt::NoBrush);
    return canvas.painter;
}

constexpr double kSignWidth = 1.9; // as heavy as the digits beside it

void drawPlus(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas, kSignWidth);
    painter.drawLine(QPointF(12, 5.5), QPointF(12, 18.5));
    painter.drawLine(QPointF(5.5, 12), QPointF(18.5, 12));
}

void drawMinus(const Canvas& canvas) {
    useLinePen(canvas, kSignWidth).drawLine(QPointF(5.5, 12), QPointF(18.5, 12));
}

void drawTimes(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas, kSignWidth);
    painter.drawLine(QPointF(12, 6), QPointF(12, 18));
    painter.drawLine(QPointF(6.8, 9), QPointF(17.2, 15));
    painter.drawLine(QPointF(6.8, 15), QPointF(17.2, 9));
}

void drawSlash(const Canvas& canvas) {
    useLinePen(canvas, kSignWidth).drawLine(QPointF(15, 4.5), QPointF(9, 19.5));
}

void drawCaret(const Canvas& canvas) {
    useLinePen(canvas, kSignWidth)
        .drawPolyline(QPolygonF({QPointF(6.5, 14.8), QPointF(12, 8.2), QPointF(17.5, 14.8)}));
}

void drawCalculator(const Canvas& canvas) {
    useUnitSquare(canvas);
    QPainter& painter = canvas.painter;
    painter.setPen(QPen(Qt::white, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(4.5, 2.5, 15, 19), 3, 3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(7.3, 5.4, 9.4, 3.8), 0.9, 0.9);
    for (const double y : {12.4, 15.6, 18.6}) {
        for (const double x : {8.5, 12.0, 15.5}) {
            painter.drawEllipse(QPointF(x, y), 1.05, 1.05);
        }
    }
}

void drawCentred(QPainter& painter, const QRectF& area, const QString& text, int size, bool italic) {
    QFont font(systemFontFamily());
    font.setPixelSize(size);
    font.setItalic(italic);
    font.setWeight(QFont::Medium);
    painter.setFont(font);
    painter.drawText(area, Qt::AlignCenter, text);
}

void drawEquation(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    drawCentred(painter, QRectF(0, 0, 13, 24), QStringLiteral("y"), 17, true);
    painter.drawLine(QPointF(13.5, 10), QPointF(21, 10));
    painter.drawLine(QPointF(13.5, 14.5), QPointF(21, 14.5));
}

void drawGraph(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    painter.drawLine(QPointF(4, 3), QPointF(4, 20));
    painter.drawLine(QPointF(4, 20), QPointF(21, 20));
    QPainterPath curve(QPointF(4, 16));
    curve.cubicTo(9, 16, 9, 5, 13, 7);
    curve.cubicTo(16, 8.5, 16, 15, 21, 5);
    painter.drawPath(curve);
}

void drawReference(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    QPainterPath book(QPointF(12, 6));
    book.cubicTo(9, 4, 6, 4, 3, 4.6);
    book.lineTo(3, 18.6);
    book.cubicTo(6, 18, 9, 18, 12, 20);
    book.cubicTo(15, 18, 18, 18, 21, 18.6);
    book.lineTo(21, 4.6);
    book.cubicTo(18, 4, 15, 4, 12, 6);
    book.lineTo(12, 20);
    painter.drawPath(book);
}

void drawTable(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    painter.drawRoundedRect(QRectF(3, 4, 18, 16), 1.8, 1.8);
    painter.drawLine(QPointF(3, 9), QPointF(21, 9));
    painter.drawLine(QPointF(3, 14.5), QPointF(21, 14.5));
    painter.drawLine(QPointF(9.5, 4), QPointF(9.5, 20));
}

void drawSettings(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    constexpr double left = 3.5;
    constexpr double right = 20.5;
    const QPointF knobs[] = {{15, 6}, {8, 12}, {13, 18}};
    for (const QPointF& knob : knobs) {
        constexpr double radius = 2.2;
        painter.drawLine(QPointF(left, knob.y()), QPointF(knob.x() - radius, knob.y()));
        painter.drawLine(QPointF(knob.x() + radius, knob.y()), QPointF(right, knob.y()));
        painter.drawEllipse(knob, radius, radius);
    }
}

void drawTriangleSolver(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    painter.drawPolygon(QPolygonF({QPointF(3, 19.5), QPointF(21, 19.5), QPointF(15.5, 4.5)}));
    QPainterPath angle(QPointF(8.4, 19.5)); // of the corner at the left
    angle.quadTo(QPointF(8.4, 17.3), QPointF(7.1, 14.6));
    painter.drawPath(angle);
}

void drawPolynomialSolver(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    painter.drawLine(QPointF(2.5, 13), QPointF(21.5, 13));
    QPainterPath curve(QPointF(3.5, 20.5));
    curve.cubicTo(8, -6, 11, 6, 13, 13);
    curve.cubicTo(15, 20, 18, 20, 20.5, 4);
    painter.drawPath(curve);
    painter.setBrush(Qt::white);
    for (const double x : {5.3, 13.0, 18.9}) {
        painter.drawEllipse(QPointF(x, 13), 1.4, 1.4);
    }
}

void drawHeart(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    QPainterPath heart(QPointF(12, 7.6));
    heart.cubicTo(10.4, 3.4, 3.4, 3.6, 3.4, 9.4);
    heart.cubicTo(3.4, 13.6, 8, 17, 12, 20.4);
    heart.cubicTo(16, 17, 20.6, 13.6, 20.6, 9.4);
    heart.cubicTo(20.6, 3.6, 13.6, 3.4, 12, 7.6);
    painter.drawPath(heart);
}

void drawQuestionMark(const Canvas& canvas) {
    QPainter& painter = useLinePen(canvas);
    painter.drawEllipse(QPointF(12, 12), 9, 9);
    drawCentred(painter, QRectF(0, 0, 24, 24), QStringLiteral("?"), 13, false);
}

void drawMore(const Canvas& canvas) {
    useUnitSquare(canvas);
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(Qt::white);
    for (const double x : {5.5, 12.0, 18.5}) {
        canvas.painter.drawEllipse(QPointF(x, 12), 1.9, 1.9);
    }
}

struct Drawing {
    QLatin1String name;
    void (*draw)(const Canvas&);
};
const std::array kDrawings{
    Drawing{QLatin1String("panel"), drawPanel},
    Drawing{QLatin1String("root"), drawRoot},
    Drawing{QLatin1String("plus"), drawPlus},
    Drawing{QLatin1String("minus"), drawMinus},
    Drawing{QLatin1String("times"), drawTimes},
    Drawing{QLatin1String("slash"), drawSlash},
    Drawing{QLatin1String("caret"), drawCaret},
    Drawing{QLatin1String("calculator.png"), drawCalculator},
    Drawing{QLatin1String("equation.png"), drawEquation},
    Drawing{QLatin1String("graph.png"), drawGraph},
    Drawing{QLatin1String("reference.png"), drawReference},
    Drawing{QLatin1String("triangleSolver.png"), drawTriangleSolver},
    Drawing{QLatin1String("polynomialSolver.png"), drawPolynomialSolver},
    Drawing{QLatin1String("table.png"), drawTable},
    Drawing{QLatin1String("settings.png"), drawSettings},
    Drawing{QLatin1String("heart"), drawHeart},
    Drawing{QLatin1String("questionMark.png"), drawQuestionMark},
    Drawing{QLatin1String("more"), drawMore},
};

bool draw(QStringView name, const Canvas& canvas) {
    const auto* drawing =
        std::ranges::find_if(kDrawings, [&](const Drawing& row) { return name == row.name; });
    if (drawing != kDrawings.end()) {
        drawing->draw(canvas);
        return true;
    }
    if (drawPicture(name, canvas)) {
        return true;
    }
    const QLatin1String pressedSuffix(kPressedSuffix);
    const bool isPressed = name.endsWith(pressedSuffix);
    if (isPressed) {
        name.chop(pressedSuffix.size());
    }
    const QLatin1String doubledSuffix("@2x");
    if (name.endsWith(doubledSuffix)) {
        name.chop(doubledSuffix.size());
    }
    const auto color = keyColor(name);
    if (color) {
        drawKey(canvas, *color, isPressed);
    }
    return color.has_value();
}

} // namespace

QUrl artworkUrl(const std::string& name, double sceneScale, double pixelsPerPoint) {
    constexpr char plain = 'g';
    constexpr int allDigits = 17;
    return QUrl(QStringLiteral("image://%1/%2/%3/%4")
                    .arg(QLatin1String(Artwork::kProviderName))
                    .arg(sceneScale, 0, plain, allDigits)
                    .arg(pixelsPerPoint, 0, plain, allDigits)
                    .arg(QString::fromStdString(name)));
}

QImage Artwork::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const qsizetype afterScale = id.indexOf(u'/');
    const qsizetype afterPixels = id.indexOf(u'/', afterScale + 1);
    const QStringView whole(id);
    const double sceneScale = whole.left(afterScale).toDouble();
    const double pixelsPerPoint = whole.mid(afterScale + 1, afterPixels - afterScale - 1).toDouble();
    const QStringView name = whole.mid(afterPixels + 1);
    const auto pixels = [&](int length) { return std::max(1, qRound(length * sceneScale)); };
    const QSize wanted(pixels(requestedSize.width()), pixels(requestedSize.height()));
    if (size != nullptr) {
        *size = wanted;
    }
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!draw(name, {painter, QRectF(QPointF(), QSizeF(wanted)), pixelsPerPoint})) {
        log("no artwork of the name " + name.toString().toStdString());
    }
    return image;
}

} // namespace velmora
