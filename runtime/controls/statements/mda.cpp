#include <tetrad/controls/mda.h>

#include <algorithm>

namespace tetrad {

MDAObj::MDAObj(const Indices &dimensions) : m_dimensions(dimensions)
{
    for (qint64 &dimension : m_dimensions) {
        dimension = std::max<qint64>(dimension, 0);
    }
}

bool MDAObj::setValue(const Indices &indices, const QVariant &value)
{
    const bool isElement = indices.size() == m_dimensions.size() &&
                           std::none_of(indices.begin(), indices.end(), [](qint64 index) { return index < 0; });
    if (!isElement) {
        return false;
    }
    for (qsizetype i = 0; i < indices.size(); ++i) {
        m_dimensions[i] = std::max(m_dimensions[i], indices[i] + 1);
    }
    m_elements.insert(indices, value);
    return true;
}

void MDAObj::clear()
{
    m_elements.clear();
    m_keyed.clear();
}

} // namespace tetrad
