#pragma once

#include "runtime/console/view/item_painter.h"
#include <tetrad/console/console_view.h>

#include <QImage>
#include <QPainter>

namespace tetrad {

/// Draws every item of a view's list in order, wherever it is.
class WholeList : public QWidget
{
public:
    explicit WholeList(CUI_PrintToWindowView &view) : m_view(view) { resize(view.size()); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (qsizetype i = 0; i < m_view.items().size(); ++i) {
            drawItem({painter, m_view.mirror(), palette()}, m_view, static_cast<quint32>(i));
        }
    }

private:
    CUI_PrintToWindowView &m_view;
};

/// What a widget shows in a part of itself, over white; seen in its coordinates.
inline QImage partOf(QWidget &widget, const QRect &seen, double scale)
{
    QImage image(seen.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    widget.render(&painter, QPoint(), seen, QWidget::RenderFlags());
    return image;
}

} // namespace tetrad
