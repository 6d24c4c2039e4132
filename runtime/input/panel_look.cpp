#include "runtime/input/panel_look.h"

#include "runtime/input/panel_layout.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr int shadowOffset = 3;
constexpr double cornerRadius = 10.0;
// From the panel's left and right to where its picture no longer depends on x.
constexpr int endWidth = 25;
static_assert(endWidth > shadowMargin + cornerRadius);

QColor bodyColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::Window);
    color.setAlphaF(0.93F);
    return color;
}

QColor edgeColor(const QPalette &palette)
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.25F);
    return color;
}

// Rings that add up to a shadow which fades outwards and stays outside the body.
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

void paintOutlines(QPainter &painter, const QRect &panel, const QPalette &palette)
{
    const QRectF body = QRectF(panel).adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, body);
    painter.setPen(QPen(edgeColor(palette), 1));
    painter.setBrush(bodyColor(palette));
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

// Both ends of a panel of this height with one pixel between them, kept because smooth outlines cost more than
// everything else that a key press paints: without it a key takes three times as long.
QPixmap narrowPanel(int height, int scale, const QPalette &palette)
{
    const QString key = u"tetrad panel %1 %2 %3 %4"_s.arg(height).arg(scale).arg(
        bodyColor(palette).name(QColor::HexArgb), edgeColor(palette).name(QColor::HexArgb));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QRect panel(0, 0, 2 * endWidth + 1, height);
        picture = QPixmap(panel.size() * scale);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paintOutlines(painter, panel, palette);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace

QFont panelFont()
{
    QFont font = QApplication::font();
    int size = 13;
    do {
        font.setPixelSize(size);
    } while (QFontMetrics(font).tightBoundingRect(u"Ay(|)"_s).height() > panelLineHeight && --size > 8);
    return font;
}

QPalette panelPalette()
{
    const QPalette source = QApplication::palette();
    QPalette palette;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto colorGroup = static_cast<QPalette::ColorGroup>(group);
            const auto colorRole = static_cast<QPalette::ColorRole>(role);
            palette.setBrush(colorGroup, colorRole, source.brush(colorGroup, colorRole));
        }
    }
    palette.setBrush(QPalette::Base, Qt::transparent);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setBrush(group, QPalette::Text, source.brush(group, QPalette::WindowText));
    }
    return palette;
}

void paintPanelBackdrop(QPainter &painter, const QRect &panel, const QPalette &palette)
{
    const double ratio = painter.device()->devicePixelRatio();
    const int scale = static_cast<int>(ratio);
    // Where pixels are divided, the parts of a picture would meet in a seam.
    if (scale != ratio || panel.width() <= 2 * endWidth) {
        paintOutlines(painter, panel, palette);
        return;
    }
    const QPixmap picture = narrowPanel(panel.height(), scale, palette);
    const QRect source(0, 0, endWidth * scale, picture.height());
    const QRect middle = panel.adjusted(endWidth, 0, -endWidth, 0);
    painter.drawPixmap(QRect(panel.topLeft(), QSize(endWidth, panel.height())), picture, source);
    painter.drawPixmap(middle, picture, QRect(endWidth * scale, 0, scale, picture.height()));
    painter.drawPixmap(QRect(middle.topRight() + QPoint(1, 0), QSize(endWidth, panel.height())), picture,
                       source.translated((endWidth + 1) * scale, 0));
}

} // namespace tetrad
