#pragma once

#include <tetrad/console/band_index.h>
#include <tetrad/console/console_item.h>

#include <QRectF>
#include <QVariantList>

#include <deque>
#include <vector>

namespace tetrad {

/// The console's items in drawing order, with what was measured when they were added, and a way to find those that a
/// part of the document shows.
class DisplayList
{
public:
    struct Entry
    {
        CUI_PrintToWindowItem item;
        /// A text's measured width.
        double width = 0;
        /// A text that was followed by the end of its line.
        bool endsLine = false;
        /// What drawing it touches from left to right, set by append.
        float inkLeft = 0;
        float inkRight = 0;
    };

    quint32 size() const { return static_cast<quint32>(m_entries.size()); }
    const Entry &at(quint32 index) const { return m_entries[index]; }
    const CUI_PrintToWindowItem &item(quint32 index) const { return m_entries[index].item; }

    /// ink covers every pixel that drawing the item may touch; what it does not meet need not be redrawn. Returns
    /// whether there is such a pixel at all: not with an ink that is empty or not finite.
    bool append(Entry entry, const QRectF &ink);
    void clear();

    /// The items, in drawing order, that may touch the part of the document between two heights.
    std::vector<quint32> itemsIn(double top, double bottom) const;

    /// Whether drawing the item may touch anything between two places from left to right.
    bool isBetween(quint32 index, double left, double right) const
    {
        return m_entries[index].inkRight >= left && m_entries[index].inkLeft <= right;
    }

    /// One dictionary per item, in drawing order.
    QVariantList itemArray() const;

    /// One line per item for people and tests to read: type, position, text or extent, size, colours.
    QString dump() const;

private:
    std::deque<Entry> m_entries;
    BandIndex m_bands;
};

} // namespace tetrad
