#include "runtime/console/console_dump.h"

#include "runtime/console/console_item.h"

namespace tetrad {

namespace {

using Item = CUI_PrintToWindowItem;

QString number(double value)
{
    return QString::number(value, 'g', 10);
}

QString point(QPointF at)
{
    return u'(' + number(at.x()) + u',' + number(at.y()) + u')';
}

QString colorName(const QColor &color, const QString &invalid)
{
    if (!color.isValid()) {
        return invalid;
    }
    return color.alpha() == 255 ? color.name() : color.name(QColor::HexArgb);
}

QString strokeDump(const LineStyle &style)
{
    QString dump = QStringLiteral(" width ") + number(style.lineWidth);
    if (style.lineCapStyle != 0) {
        dump += QStringLiteral(" cap ") + QString::number(style.lineCapStyle);
    }
    for (qsizetype i = 0; i < style.lineDashPattern.size(); ++i) {
        dump += (i == 0 ? QStringLiteral(" dash ") : QStringLiteral(",")) + number(style.lineDashPattern.at(i));
    }
    if (style.lineDashPhase != 0) {
        dump += QStringLiteral(" phase ") + number(style.lineDashPhase);
    }
    return dump + QStringLiteral(" stroke ") + colorName(style.strokeColor, QStringLiteral("black"));
}

QString readable(const QString &text)
{
    QString out;
    for (const QChar c : text) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7F) {
            out += QString::asprintf("\\x%02x", c.unicode());
        } else {
            out += c;
        }
    }
    return out;
}

QString textDump(const Item &item)
{
    const TextAttributes &attributes = item.attributes();
    QString dump = QStringLiteral("text ") + point(item.pt()) + QStringLiteral(" \"") + readable(item.string()) +
                   QStringLiteral("\" size ") + number(attributes.fontSize()) + QStringLiteral(" color ") +
                   colorName(attributes.foregroundColor(), QStringLiteral("standard"));
    if (attributes.backgroundColor().isValid() && attributes.backgroundColor().alpha() != 0) {
        dump += QStringLiteral(" background ") + attributes.backgroundColor().name();
    }
    return dump;
}

QString shapeDump(const Item &item)
{
    if (item.type() == Item::line) {
        return QStringLiteral("line ") + point(item.linePt1()) + QStringLiteral(" to ") + point(item.linePt2()) +
               strokeDump(item.lineStyle());
    }
    const QRectF rect = item.rect();
    return (item.type() == Item::oval ? QStringLiteral("oval ") : QStringLiteral("rect ")) + point(rect.topLeft()) +
           QStringLiteral(" size ") + number(rect.width()) + u'x' + number(rect.height()) +
           strokeDump(item.lineStyle()) + QStringLiteral(" fill ") +
           colorName(item.fillColor(), QStringLiteral("none"));
}

} // namespace

QString dumpedItem(const CUI_PrintToWindowItem &item)
{
    return item.isShape() ? shapeDump(item) : textDump(item);
}

} // namespace tetrad
