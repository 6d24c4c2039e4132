#include "runtime/console/document/display_list.h"

#include "runtime/console/document/font_facts.h"
#include "runtime/console/document/shape_geometry.h"
#include "runtime/console/document/text_layout.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <map>

namespace tetrad {

namespace {

int bandOf(int y)
{
    return y >> 6; // rounded down also above the document
}

} // namespace

struct DisplayList::Contents
{
    std::deque<Entry> entries;

    // The indexes of the entries whose ink meets each band of 64 pixels, and of those that meet many bands.
    std::map<int, std::vector<quint32>> bands;
    std::vector<quint32> tall;
    quint32 banded = 0; // How many entries these know.

    void fillBands()
    {
        for (; banded < entries.size(); ++banded) {
            if (const QRect &ink = entries[banded].ink; !ink.isEmpty()) {
                enter(bandOf(ink.top()), bandOf(ink.bottom()));
            }
        }
    }

    void enter(int first, int last)
    {
        constexpr int mostBands = 8;
        if (last - first >= mostBands) {
            tall.push_back(banded);
            return;
        }
        for (int band = first; band <= last; ++band) {
            bands[band].push_back(banded);
        }
    }

    // From one index on, in ascending order.
    std::vector<quint32> entriesNear(const QRect &part, quint32 from) const
    {
        std::vector<quint32> found;
        const auto take = [&](const std::vector<quint32> &members) {
            found.insert(found.end(), std::ranges::lower_bound(members, from), members.end());
        };
        take(tall);
        const auto end = bands.upper_bound(bandOf(part.bottom()));
        for (auto band = bands.lower_bound(bandOf(part.top())); band != end; ++band) {
            take(band->second);
        }
        std::ranges::sort(found);
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }
};

QRect pixelsOf(const QRectF &rect)
{
    if (!std::isfinite(rect.left() + rect.top() + rect.right() + rect.bottom()) || rect.isEmpty()) {
        return {};
    }
    return QRectF(limited(rect.topLeft()), limited(rect.bottomRight())).toAlignedRect();
}

DisplayList::Entry DisplayList::Entry::of(const CUI_PrintToWindowItem &item)
{
    if (item.isShape()) {
        return {item, pixelsOf(shapeInk(item))};
    }
    const TextExtent extent = measureText(item.string(), item.attributes());
    return {item, pixelsOf(extent.ink.translated(item.pt())), static_cast<float>(extent.width)};
}

QRectF DisplayList::Entry::box() const
{
    return {item.pt(), QSizeF(width, item.attributes().facts().lineHeight)};
}

DisplayList::DisplayList(ConsoleDocument &document) : m_document(document), m_contents(std::make_unique<Contents>()) {}

DisplayList::~DisplayList() = default;

qsizetype DisplayList::size() const
{
    return static_cast<qsizetype>(m_contents->entries.size());
}

const DisplayList::Entry &DisplayList::entry(qsizetype index) const
{
    return m_contents->entries[static_cast<size_t>(index)];
}

const CUI_PrintToWindowItem &DisplayList::at(qsizetype index) const
{
    return entry(index).item;
}

void DisplayList::append(const CUI_PrintToWindowItem &item)
{
    append(Entry::of(item));
}

void DisplayList::append(Entry entry)
{
    m_contents->entries.push_back(std::move(entry));
    m_document.itemAppended(m_contents->entries.back().ink);
}

bool DisplayList::has(qsizetype index) const
{
    if (index >= 0 && index < size()) {
        return true;
    }
    qWarning("console: there is no item %lld of %lld", static_cast<qint64>(index), static_cast<qint64>(size()));
    return false;
}

void DisplayList::replace(qsizetype index, const CUI_PrintToWindowItem &item)
{
    if (has(index)) {
        m_contents->entries[static_cast<size_t>(index)] = Entry::of(item);
        changed();
    }
}

void DisplayList::insert(qsizetype index, const CUI_PrintToWindowItem &item)
{
    if (index == size()) {
        append(item);
    } else if (has(index)) {
        m_contents->entries.insert(m_contents->entries.begin() + index, Entry::of(item));
        changed();
    }
}

void DisplayList::removeAt(qsizetype index)
{
    if (has(index)) {
        m_contents->entries.erase(m_contents->entries.begin() + index);
        changed();
    }
}

void DisplayList::clear()
{
    // A new deque, because a cleared one keeps its memory.
    m_contents = std::make_unique<Contents>();
    changed();
}

void DisplayList::changed()
{
    m_contents->bands.clear();
    m_contents->tall.clear();
    m_contents->banded = 0;
    m_document.itemsChanged();
}

std::vector<quint32> DisplayList::itemsIn(const QRectF &part, qsizetype from) const
{
    m_contents->fillBands();
    const QRect pixels = pixelsOf(part);
    std::vector<quint32> items = m_contents->entriesNear(pixels, static_cast<quint32>(from));
    std::erase_if(items, [&](quint32 index) { return !entry(index).ink.intersects(pixels); });
    return items;
}

} // namespace tetrad
