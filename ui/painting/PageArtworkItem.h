#pragma once

#include "ui/painting/DevicePixelItem.h"

#include <QColor>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace velmora {

class PageAdapter;

/// The formula or the figure in a row of a page, as large as the item.
class PageArtworkItem : public DevicePixelItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(PageArtwork)
    Q_PROPERTY(velmora::PageAdapter* page MEMBER m_page WRITE setPage)
    Q_PROPERTY(int row MEMBER m_row WRITE setRow)
    Q_PROPERTY(QColor color MEMBER m_color WRITE setColor)
    Q_PROPERTY(QVariantList figureColors MEMBER m_figureColors WRITE setFigureColors)

public:
    explicit PageArtworkItem(QQuickItem* parent = nullptr);

    void setPage(PageAdapter* page);
    void setRow(int row);
    /// Of a formula.
    void setColor(const QColor& color);
    /// Of a figure: one for each FigureColor.
    void setFigureColors(const QVariantList& colors);

protected:
    void paint(QPainter& painter) override;

private:
    PageAdapter* m_page = nullptr;
    int m_row = -1;
    QColor m_color = Qt::white;
    QVariantList m_figureColors;
};

} // namespace velmora
