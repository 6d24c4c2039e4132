#include <tetrad/console/console_item.h>

namespace tetrad {

CUI_PrintToWindowItem CUI_PrintToWindowItem::itemWithString(const QString &string, QPointF pt,
                                                            const TextAttributes &attributes)
{
    CUI_PrintToWindowItem item;
    item.m_string = string;
    item.m_pt = pt;
    item.m_attributes = attributes;
    return item;
}

CUI_PrintToWindowItem CUI_PrintToWindowItem::itemWithLinePoint1(QPointF linePt1, QPointF linePt2)
{
    CUI_PrintToWindowItem item;
    item.m_type = line;
    item.editShape().linePt1 = linePt1;
    item.editShape().linePt2 = linePt2;
    return item;
}

CUI_PrintToWindowItem CUI_PrintToWindowItem::itemWithType(quint32 type, const QRectF &rect, const QColor &strokeColor,
                                                          const QColor &fillColor)
{
    CUI_PrintToWindowItem item;
    item.m_type = type;
    item.editShape().rect = rect;
    item.setColors(strokeColor, fillColor);
    return item;
}

void CUI_PrintToWindowItem::setColors(const QColor &strokeColor, const QColor &fillColor)
{
    editShape().lineStyle.strokeColor = strokeColor;
    editShape().fillColor = fillColor;
}

CUI_PrintToWindowItem::Shape &CUI_PrintToWindowItem::editShape()
{
    if (!m_shape) {
        m_shape = new Shape;
    }
    return *m_shape;
}

} // namespace tetrad
