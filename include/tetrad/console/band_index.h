#pragma once

#include <QtGlobal>

#include <unordered_map>
#include <vector>

namespace tetrad {

/// Finds the intervals of the y axis that meet a given one without looking at the others. Intervals are numbered by the
/// caller in ascending order. Each is entered into one or two bands of a level whose bands are at least as high as
/// itself, so that a tall interval costs no more than a short one.
class BandIndex
{
public:
    /// top <= bottom; values beyond a thousand million count as that.
    void add(quint32 number, double top, double bottom);

    void clear();

    /// The numbers, in ascending order, of at least all intervals that meet the one from top to bottom; some that only
    /// come near it may be among them.
    std::vector<quint32> numbersIn(double top, double bottom) const;

private:
    using Bands = std::unordered_map<qint64, std::vector<quint32>>;
    std::vector<Bands> m_levels;
};

} // namespace tetrad
