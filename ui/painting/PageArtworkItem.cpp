#include "ui/painting/PageArtworkItem.h"

#include "calculator/pages/PageViewController.h"
#include "ui/adapters/PageAdapter.h"
#include "ui/painting/FigurePainter.h"
#include "ui/painting/FormulaPainter.h"

#include <QPainter>

namespace velmora {

PageArtworkItem::PageArtworkItem(QQuickItem* parent) : DevicePixelItem(parent, Ground::Transparent) {}

void PageArtworkItem::setPage(PageAdapter* page) {
    m_page = page;
    repaint();
}

void PageArtworkItem::setRow(int row) {
    m_row = row;
    repaint();
}

void PageArtworkItem::setColor(const QColor& color) {
    m_color = color;
    repaint();
}

void PageArtworkItem::setFigureColors(const QVariantList& colors) {
    m_figureColors = colors;
    repaint();
}

void PageArtworkItem::paint(QPainter& painter) {
    PageViewController* page = m_page != nullptr ? &m_page->controller() : nullptr;
    if (page == nullptr || m_row < 0 || m_row >= int(page->rows().size())) {
        return;
    }
    const PageViewController::Row& row = page->rows()[std::size_t(m_row)];
    painter.setRenderHint(QPainter::Antialiasing);
    if (row.item.kind == PageItem::Kind::Figure && row.figure.size.width > 0) {
        FigureColors colors;
        for (std::size_t i = 0; i < colors.size() && qsizetype(i) < m_figureColors.size(); ++i) {
            colors.at(i) = m_figureColors[qsizetype(i)].value<QColor>();
        }
        painter.scale(width() / row.figure.size.width, width() / row.figure.size.width);
        paintFigure(painter, row.figure, colors);
    } else if (row.formula.width > 0) {
        constexpr double unitsOfTypeSize = 1000;
        painter.setBrush(m_color);
        paintFormula(painter, row.formula, page->outlines(), width() / row.formula.width * unitsOfTypeSize);
    }
}

} // namespace velmora
