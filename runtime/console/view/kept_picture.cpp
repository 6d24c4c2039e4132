#include "runtime/console/view/kept_picture.h"

#include "runtime/console/view/item_painter.h"
#include <tetrad/console/console_view.h>

#include <QBackingStore>
#include <QPaintEngine>
#include <QPainter>

namespace tetrad {

namespace {

// The window's own pixels, when the painter paints into them and not into a picture of the widget.
const QImage *screenOf(const QPainter &painter, const QWidget &widget)
{
    QBackingStore *const store = widget.window()->backingStore();
    QPaintDevice *const device = painter.paintEngine()->paintDevice();
    const bool isScreen = store && store->paintDevice() == device && device->devType() == QInternal::Image;
    return isScreen ? static_cast<const QImage *>(device) : nullptr;
}

} // namespace

bool KeptPicture::paint(QPainter &painter, CUI_PrintToWindowView &view, const QRect &visible, const QColor &ground)
{
    const QImage *const screen = screenOf(painter, view);
    if (!screen) {
        return false;
    }
    const QTransform toScreen = painter.deviceTransform();
    const QRect part = toScreen.mapRect(QRectF(visible)).toAlignedRect() & screen->rect();
    const QPalette palette = view.palette();
    const Look look{toScreen,
                    view.mirror(),
                    part,
                    screen->format(),
                    {ground.rgba(), palette.color(QPalette::WindowText).rgba(),
                     palette.color(QPalette::Highlight).rgba(), palette.color(QPalette::HighlightedText).rgba()}};
    if (look != m_look || m_drawn < 0) {
        if (m_image.size() != part.size() || m_image.format() != look.format) {
            m_image = QImage(part.size(), look.format);
        }
        m_image.fill(ground);
        m_look = look;
        m_drawn = 0;
    }
    if (m_drawn < view.items().size()) {
        QPainter onto(&m_image);
        // Moved by whole pixels only, so that everything is rounded as on the screen.
        onto.setTransform(toScreen * QTransform::fromTranslate(-part.x(), -part.y()));
        drawItems({onto, look.mirror, palette}, view, look.mirror.mapRect(QRectF(visible).adjusted(-1, -1, 1, 1)),
                  m_drawn);
        m_drawn = view.items().size();
    }
    painter.save();
    painter.setTransform(toScreen.inverted(), true);
    painter.drawImage(part.topLeft(), m_image);
    painter.restore();
    return true;
}

} // namespace tetrad
