#include <tetrad/console/band_index.h>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

constexpr double farthest = 1e9;
constexpr double lowestBandHeight = 64;
constexpr double levelFactor = 8;

double bandHeight(size_t level)
{
    return lowestBandHeight * std::pow(levelFactor, static_cast<double>(level));
}

qint64 bandOf(double y, size_t level)
{
    return static_cast<qint64>(std::floor(std::clamp(y, -farthest, farthest) / bandHeight(level)));
}

size_t levelOf(double height)
{
    size_t level = 0;
    while (bandHeight(level) < std::min(height, 2 * farthest)) {
        ++level;
    }
    return level;
}

} // namespace

void BandIndex::add(quint32 number, double top, double bottom)
{
    const size_t level = levelOf(bottom - top);
    if (level >= m_levels.size()) {
        m_levels.resize(level + 1);
    }
    const qint64 last = bandOf(bottom, level);
    for (qint64 band = bandOf(top, level); band <= last; ++band) {
        m_levels[level][band].push_back(number);
    }
}

void BandIndex::clear()
{
    m_levels.clear();
}

std::vector<quint32> BandIndex::numbersIn(double top, double bottom) const
{
    std::vector<quint32> numbers;
    for (size_t level = 0; level < m_levels.size(); ++level) {
        const qint64 first = bandOf(top, level);
        const qint64 last = bandOf(bottom, level);
        const auto take = [&](qint64 band, const std::vector<quint32> &members) {
            if (band >= first && band <= last) {
                numbers.insert(numbers.end(), members.begin(), members.end());
            }
        };
        const Bands &bands = m_levels[level];
        if (last - first >= static_cast<qint64>(bands.size())) {
            for (const auto &[band, members] : bands) {
                take(band, members);
            }
            continue;
        }
        for (qint64 band = first; band <= last; ++band) {
            if (const auto found = bands.find(band); found != bands.end()) {
                take(band, found->second);
            }
        }
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace tetrad
