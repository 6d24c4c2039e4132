#include <tetrad/console/console_document.h>

namespace tetrad {

using namespace Qt::StringLiterals;

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
    QString dump = u" width "_s + number(style.lineWidth);
    if (style.lineCapStyle != 0) {
        dump += u" cap "_s + QString::number(style.lineCapStyle);
    }
    for (qsizetype i = 0; i < style.lineDashPattern.size(); ++i) {
        dump += (i == 0 ? u" dash "_s : u","_s) + number(style.lineDashPattern.at(i));
    }
    if (style.lineDashPhase != 0) {
        dump += u" phase "_s + number(style.lineDashPhase);
    }
    return dump + u" stroke "_s + colorName(style.strokeColor, u"black"_s);
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
    QString dump = u"text "_s + point(item.pt()) + u" \""_s + readable(item.string()) + u"\" size "_s +
                   number(attributes.fontSize()) + u" color "_s +
                   colorName(attributes.foregroundColor(), u"standard"_s);
    if (attributes.backgroundColor().isValid() && attributes.backgroundColor().alpha() != 0) {
        dump += u" background "_s + attributes.backgroundColor().name();
    }
    return dump;
}

QString shapeDump(const Item &item)
{
    if (item.type() == Item::line) {
        return u"line "_s + point(item.linePt1()) + u" to "_s + point(item.linePt2()) + strokeDump(item.lineStyle());
    }
    const QRectF rect = item.rect();
    return (item.type() == Item::oval ? u"oval "_s : u"rect "_s) + point(rect.topLeft()) + u" size "_s +
           number(rect.width()) + u'x' + number(rect.height()) + strokeDump(item.lineStyle()) + u" fill "_s +
           colorName(item.fillColor(), u"none"_s);
}

} // namespace

QString DisplayList::dump() const
{
    QString dump;
    for (qsizetype index = 0; index < size(); ++index) {
        dump += (at(index).isShape() ? shapeDump(at(index)) : textDump(at(index))) + u'\n';
    }
    return dump;
}

} // namespace tetrad
