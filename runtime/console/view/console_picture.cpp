#include <tetrad/console/console_picture.h>

#include <QBackingStore>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <cstring>

namespace tetrad {

namespace {

constexpr int bandHeight = 128;

/// The window's own pixels, when the painter paints into them and not into a picture of the widget.
const QImage *screenOf(const QPainter &painter, const QWidget &widget)
{
    QBackingStore *const store = widget.window()->backingStore();
    QPaintDevice *const device = painter.paintEngine()->paintDevice();
    const bool isScreen = store && store->paintDevice() == device && device->devType() == QInternal::Image;
    return isScreen ? static_cast<const QImage *>(device) : nullptr;
}

/// Device pixels to a pixel; 0 where that is not a whole number.
int wholeScale(const QTransform &toDevice)
{
    const int scale = qRound(toDevice.m11());
    const QTransform whole(scale, 0, 0, scale, qRound(toDevice.dx()), qRound(toDevice.dy()));
    return toDevice == whole ? scale : 0;
}

QRect scaled(const QRect &rect, int scale)
{
    return {rect.topLeft() * scale, rect.size() * scale};
}

void copyPixels(const QImage &from, const QRect &source, QImage &to, QPoint place)
{
    const qsizetype pixelBytes = from.depth() / 8;
    for (int y = 0; y < source.height(); ++y) {
        std::memcpy(to.scanLine(place.y() + y) + place.x() * pixelBytes,
                    from.constScanLine(source.y() + y) + source.x() * pixelBytes,
                    static_cast<size_t>(source.width() * pixelBytes));
    }
}

} // namespace

void ConsolePicture::paint(QPainter &painter, const QWidget &console, const QRegion &part, const Look &look,
                           const Draw &draw)
{
    const QRect bounds = part.boundingRect();
    const QTransform toScreen = painter.deviceTransform();
    const int scale = wholeScale(toScreen);
    const QImage *const screen = bounds.height() <= bandHeight && scale > 0 ? screenOf(painter, console) : nullptr;
    if (!screen) {
        draw(bounds);
        return;
    }
    if (!holds(*screen, bounds, look, scale)) {
        m_band = QImage(QSize(look.width, bandHeight) * scale, screen->format());
        m_place = QPoint(0, bounds.top() - (bandHeight - bounds.height()) / 2);
        m_scale = scale;
        m_look = look;
        m_known = QRegion();
    }
    const QRegion missing = part - m_known;
    for (const QRect &known : part - missing) {
        painter.drawImage(known, m_band, scaled(known.translated(-m_place), scale));
    }
    for (const QRect &each : missing) {
        painter.setClipRect(each);
        draw(each);
        painter.setClipping(false);
        const QRect onScreen = toScreen.mapRect(each) & screen->rect();
        copyPixels(*screen, onScreen, m_band, toScreen.inverted().map(onScreen.topLeft()) * scale - m_place * scale);
    }
    m_known += missing;
}

bool ConsolePicture::holds(const QImage &screen, const QRect &part, const Look &look, int scale) const
{
    const QRect band(m_place, QSize(m_look.width, bandHeight));
    return look == m_look && scale == m_scale && screen.format() == m_band.format() && band.contains(part);
}

} // namespace tetrad
