#include "ui/painting/PictureItem.h"

#include "ui/adapters/QtConversions.h"
#include "ui/painting/LabelPainter.h"
#include "ui/painting/QtDrawingContext.h"

#include <QPainter>

namespace velmora {

void PictureItem::setScreen(QObject* screen) {
    m_screen = screen;
    if (auto* source = dynamic_cast<PictureSource*>(screen)) {
        m_changes = source->picture().changed().subscribe([this] { repaint(); });
    }
    repaint();
}

void PictureItem::paint(QPainter& painter) {
    auto* source = dynamic_cast<PictureSource*>(m_screen.data());
    if (source == nullptr) {
        return;
    }
    Picture& picture = source->picture();
    const Rect bounds{0, 0, width(), height()};
    picture.setSize({width(), height()});
    painter.fillRect(toQRectF(bounds), toQColor(picture.backgroundColor()));
    {
        QtDrawingContext context(painter, bounds);
        picture.draw(context);
    }
    for (const LabelRecord& label : picture.labels()) {
        paintLabel(painter, label, picture.backgroundColor());
    }
}

} // namespace velmora
