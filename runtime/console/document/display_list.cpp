#include <tetrad/console/display_list.h>

#include "runtime/console/document/console_dump.h"
#include <tetrad/console/console_archive.h>

#include <cmath>

namespace tetrad {

namespace {

bool isDrawable(const QRectF &ink)
{
    return std::isfinite(ink.top()) && std::isfinite(ink.bottom()) && std::isfinite(ink.left()) &&
           std::isfinite(ink.right()) && !ink.isEmpty();
}

} // namespace

bool DisplayList::append(Entry entry, const QRectF &ink)
{
    const bool drawable = isDrawable(ink);
    if (drawable) {
        m_bands.add(size(), ink.top(), ink.bottom());
        // Whole pixels, which a float holds as they are.
        entry.inkLeft = static_cast<float>(std::floor(ink.left()) - 1);
        entry.inkRight = static_cast<float>(std::ceil(ink.right()) + 1);
    }
    m_entries.push_back(std::move(entry));
    return drawable;
}

void DisplayList::clear()
{
    m_entries.clear();
    m_entries.shrink_to_fit();
    m_bands.clear();
}

std::vector<quint32> DisplayList::itemsIn(double top, double bottom) const
{
    return m_bands.numbersIn(top, bottom);
}

QVariantList DisplayList::itemArray() const
{
    QVariantList array;
    array.reserve(static_cast<qsizetype>(m_entries.size()));
    for (const Entry &entry : m_entries) {
        array.append(archivedItem(entry.item));
    }
    return array;
}

QString DisplayList::dump() const
{
    QString dump;
    for (const Entry &entry : m_entries) {
        dump += dumpedItem(entry.item) + u'\n';
    }
    return dump;
}

} // namespace tetrad
