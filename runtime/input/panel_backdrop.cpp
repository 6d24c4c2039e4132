#include "runtime/input/panel_backdrop.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmapCache>

#include <cmath>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr int shadowOffset = 3;
constexpr double cornerRadius = 10.0;
constexpr double bodyOpacity = 0.93;
static_assert(panelEndWidth > shadowMargin + cornerRadius);

QColor bodyColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::Window);
    color.setAlphaF(bodyOpacity);
    return color;
}

QColor edgeColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.25);
    return color;
}

/// Rings that add up to a shadow which fades outwards and stays outside the body.
void paintShadow(QPainter &painter, const QRectF &body)
{
    QPainterPath outside;
    outside.addRect(body.adjusted(-shadowMargin, -shadowMargin, shadowMargin, shadowMargin));
    outside.addRoundedRect(body, cornerRadius, cornerRadius);
    painter.save();
    painter.setClipPath(outside);
    painter.setPen(Qt::NoPen);
    for (int spread = shadowMargin - shadowOffset; spread > 0; --spread) {
        painter.setBrush(QColor(0, 0, 0, 2 + (shadowMargin - spread) / 2));
        painter.drawRoundedRect(body.adjusted(-spread, -spread, spread, spread).translated(0, shadowOffset),
                                cornerRadius + spread, cornerRadius + spread);
    }
    painter.restore();
}

void paintAnew(QPainter &painter, const QRect &panel, const QPalette &palette)
{
    const QRectF body = QRectF(panel).adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, body);
    painter.setPen(QPen(edgeColor(palette), 1));
    painter.setBrush(bodyColor(palette));
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

/// Both ends of a panel of this height with one pixel between them. Made once for all panels alike: smooth outlines
/// cost more than everything else that a key press paints.
QPixmap narrowPanel(int height, int scale, const QPalette &palette)
{
    const QString key = u"tetrad panel %1 %2 %3 %4"_s.arg(height).arg(scale).arg(
        bodyColor(palette).name(QColor::HexArgb), edgeColor(palette).name(QColor::HexArgb));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QRect panel(0, 0, 2 * panelEndWidth + 1, height);
        picture = QPixmap(panel.size() * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintAnew(painter, panel, palette);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace

void paintPanelBackdrop(QPainter &painter, const QRect &panel, const QPalette &palette)
{
    const double ratio = painter.device()->devicePixelRatio();
    const int scale = static_cast<int>(ratio);
    // Parts of a picture do not meet without a seam where pixels are divided.
    if (scale != ratio || panel.width() <= 2 * panelEndWidth) {
        paintAnew(painter, panel, palette);
        return;
    }
    const QPixmap picture = narrowPanel(panel.height(), scale, palette);
    const QRect source(0, 0, panelEndWidth * scale, picture.height());
    const QRect middle = panel.adjusted(panelEndWidth, 0, -panelEndWidth, 0);
    painter.drawPixmap(QRect(panel.topLeft(), QSize(panelEndWidth, panel.height())), picture, source);
    painter.drawPixmap(middle, picture, QRect(panelEndWidth * scale, 0, scale, picture.height()));
    painter.drawPixmap(QRect(middle.topRight() + QPoint(1, 0), QSize(panelEndWidth, panel.height())), picture,
                       source.translated((panelEndWidth + 1) * scale, 0));
}

} // namespace tetrad
