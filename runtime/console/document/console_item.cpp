#include <tetrad/console/console_item.h>

#include <QSharedData>

namespace tetrad {

struct CUI_PrintToWindowItem::Shape : QSharedData
{
    QPointF linePt1;
    QPointF linePt2;
    QRectF rect;
    LineStyle lineStyle{.lineWidth = 0, .strokeColor = {}};
    QColor fillColor;
    bool strokeFlag = false;
    bool fillFlag = false;
};

CUI_PrintToWindowItem::CUI_PrintToWindowItem() = default;
CUI_PrintToWindowItem::CUI_PrintToWindowItem(const CUI_PrintToWindowItem &) = default;
CUI_PrintToWindowItem::CUI_PrintToWindowItem(CUI_PrintToWindowItem &&) noexcept = default;
CUI_PrintToWindowItem &CUI_PrintToWindowItem::operator=(const CUI_PrintToWindowItem &) = default;
CUI_PrintToWindowItem &CUI_PrintToWindowItem::operator=(CUI_PrintToWindowItem &&) noexcept = default;
CUI_PrintToWindowItem::~CUI_PrintToWindowItem() = default;

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

QPointF CUI_PrintToWindowItem::linePt1() const
{
    return shape().linePt1;
}

QPointF CUI_PrintToWindowItem::linePt2() const
{
    return shape().linePt2;
}

QRectF CUI_PrintToWindowItem::rect() const
{
    return shape().rect;
}

const LineStyle &CUI_PrintToWindowItem::lineStyle() const
{
    return shape().lineStyle;
}

void CUI_PrintToWindowItem::setLineStyle(const LineStyle &style)
{
    editShape().lineStyle = style;
}

void CUI_PrintToWindowItem::setColors(const QColor &strokeColor, const QColor &fillColor)
{
    editShape().lineStyle.strokeColor = strokeColor;
    editShape().fillColor = fillColor;
}

QColor CUI_PrintToWindowItem::fillColor() const
{
    return shape().fillColor;
}

bool CUI_PrintToWindowItem::strokeFlag() const
{
    return shape().strokeFlag;
}

void CUI_PrintToWindowItem::setStrokeFlag(bool flag)
{
    editShape().strokeFlag = flag;
}

bool CUI_PrintToWindowItem::fillFlag() const
{
    return shape().fillFlag;
}

void CUI_PrintToWindowItem::setFillFlag(bool flag)
{
    editShape().fillFlag = flag;
}

const CUI_PrintToWindowItem::Shape &CUI_PrintToWindowItem::noShape()
{
    static const Shape shape;
    return shape;
}

CUI_PrintToWindowItem::Shape &CUI_PrintToWindowItem::editShape()
{
    if (!m_shape) {
        m_shape = new Shape;
    }
    return *m_shape;
}

} // namespace tetrad
