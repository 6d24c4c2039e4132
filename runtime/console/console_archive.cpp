#include "runtime/console/console_archive.h"

#include "runtime/console/console_item.h"

namespace tetrad {

QVariantMap archivedItem(const CUI_PrintToWindowItem &item)
{
    const LineStyle &style = item.lineStyle();
    QVariantMap map{
        {QStringLiteral("type"), item.type()},
        {QStringLiteral("pt"), item.pt()},
        {QStringLiteral("pt1"), item.linePt1()},
        {QStringLiteral("pt2"), item.linePt2()},
        {QStringLiteral("rect"), item.rect()},
        {QStringLiteral("lineWidth"), style.lineWidth},
        {QStringLiteral("lineCapStyle"), style.lineCapStyle},
        {QStringLiteral("lineDashPhase"), style.lineDashPhase},
        {QStringLiteral("strokeFlag"), item.strokeFlag()},
        {QStringLiteral("fillFlag"), item.fillFlag()},
    };
    if (!item.string().isNull()) {
        map.insert(QStringLiteral("text"), item.string());
        // Deliberately the string and not the attributes: readers of archives have always found it there.
        map.insert(QStringLiteral("attributes"), item.string());
    }
    if (!style.lineDashPattern.isEmpty()) {
        map.insert(QStringLiteral("lineDashPattern"),
                   QVariantList(style.lineDashPattern.begin(), style.lineDashPattern.end()));
    }
    if (style.strokeColor.isValid()) {
        map.insert(QStringLiteral("strokeColor"), style.strokeColor);
    }
    if (item.fillColor().isValid()) {
        map.insert(QStringLiteral("fillColor"), item.fillColor());
    }
    return map;
}

} // namespace tetrad
