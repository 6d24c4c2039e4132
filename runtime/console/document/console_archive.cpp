#include <tetrad/console/console_document.h>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QVariantMap archived(const CUI_PrintToWindowItem &item)
{
    const LineStyle &style = item.lineStyle();
    QVariantMap map{
        {u"type"_s, item.type()},
        {u"pt"_s, item.pt()},
        {u"pt1"_s, item.linePt1()},
        {u"pt2"_s, item.linePt2()},
        {u"rect"_s, item.rect()},
        {u"lineWidth"_s, style.lineWidth},
        {u"lineCapStyle"_s, style.lineCapStyle},
        {u"lineDashPhase"_s, style.lineDashPhase},
        {u"strokeFlag"_s, item.strokeFlag()},
        {u"fillFlag"_s, item.fillFlag()},
    };
    if (!item.string().isNull()) {
        map.insert(u"text"_s, item.string());
        // Deliberately the string and not the attributes: readers of archives expect it there.
        map.insert(u"attributes"_s, item.string());
    }
    if (!style.lineDashPattern.isEmpty()) {
        map.insert(u"lineDashPattern"_s, QVariantList(style.lineDashPattern.begin(), style.lineDashPattern.end()));
    }
    if (style.strokeColor.isValid()) {
        map.insert(u"strokeColor"_s, style.strokeColor);
    }
    if (item.fillColor().isValid()) {
        map.insert(u"fillColor"_s, item.fillColor());
    }
    return map;
}

} // namespace

QVariantList ConsoleDocument::itemArray() const
{
    QVariantList array;
    for (qsizetype index = 0; index < m_items.size(); ++index) {
        array.append(archived(m_items.at(index)));
    }
    return array;
}

} // namespace tetrad
