#pragma once

#include <tetrad/console/console_view.h>

#include <QImage>
#include <QPainter>

namespace tetrad {

/// Draws every item of a view's list in order, wherever it is, and all of its selection.
class WholeList : public QWidget
{
public:
    explicit WholeList(CUI_PrintToWindowView &view) : m_view(view) { resize(view.size()); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr double everywhere = 1e9;
        QPainter painter(this);
        const ItemPainter::Canvas canvas{painter, palette().color(QPalette::WindowText), !m_view.flipView(),
                                         m_view.documentSize().height()};
        for (quint32 i = 0; i < m_view.items().size(); ++i) {
            m_itemPainter.draw(canvas, m_view.items(), i);
        }
        m_view.reader().drawSelection(canvas, palette(), -everywhere, everywhere);
    }

private:
    CUI_PrintToWindowView &m_view;
    ItemPainter m_itemPainter;
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
