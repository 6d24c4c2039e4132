#include "runtime/console/document/band_index.h"

#include <algorithm>

namespace tetrad {

namespace {

constexpr int mostBands = 8;

int bandOf(int y)
{
    return y >> 6; // rounded down also above the document
}

} // namespace

void BandIndex::add(quint32 number, int top, int bottom)
{
    const int first = bandOf(top);
    const int last = bandOf(bottom);
    if (last - first >= mostBands) {
        m_tall.push_back(number);
        return;
    }
    for (int band = first; band <= last; ++band) {
        m_bands[band].push_back(number);
    }
}

void BandIndex::clear()
{
    m_bands.clear();
    m_tall.clear();
}

std::vector<quint32> BandIndex::numbersIn(int top, int bottom, quint32 from) const
{
    std::vector<quint32> numbers;
    const auto take = [&](const std::vector<quint32> &members) {
        numbers.insert(numbers.end(), std::ranges::lower_bound(members, from), members.end());
    };
    take(m_tall);
    const auto end = m_bands.upper_bound(bandOf(bottom));
    for (auto band = m_bands.lower_bound(bandOf(top)); band != end; ++band) {
        take(band->second);
    }
    std::ranges::sort(numbers);
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace tetrad
