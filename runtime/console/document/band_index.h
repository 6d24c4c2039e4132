#pragma once

#include <QtGlobal>

#include <map>
#include <vector>

namespace tetrad {

/// Finds the intervals of the y axis that meet a given one: each is entered into the bands of 64 pixels that it meets,
/// or, if these were many, into one list of tall ones, which are all looked at.
class BandIndex
{
public:
    /// Numbers ascend; top <= bottom.
    void add(quint32 number, int top, int bottom);
    void clear();

    /// The numbers from one on, in ascending order, of at least all intervals that meet the one from top to bottom;
    /// some that only come near it may be among them.
    std::vector<quint32> numbersIn(int top, int bottom, quint32 from = 0) const;

private:
    std::map<int, std::vector<quint32>> m_bands;
    std::vector<quint32> m_tall;
};

} // namespace tetrad
