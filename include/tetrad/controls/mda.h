#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <algorithm>

namespace tetrad {

/// A dynamic array of values with any number of dimensions, and of values by key. An element is named by one index
/// for each dimension, counting from 0. Only elements that were set take room.
///
///     MDAObj board({3, 3});
///     board.setValue({1, 2}, "x");  // board.value({1, 2}) is "x"
///     board.setValue({1, 7}, "o");  // board.dimensions() is {3, 8}
class MDAObj
{
public:
    using Indices = QList<qint64>;

    /// The number of indices in each dimension; a negative one counts as 0.
    explicit MDAObj(const Indices &dimensions = {}) : m_dimensions(dimensions)
    {
        for (qint64 &dimension : m_dimensions) {
            dimension = std::max<qint64>(dimension, 0);
        }
    }

    const Indices &dimensions() const { return m_dimensions; }

    /// An invalid value for an element outside the dimensions and for one never set.
    QVariant value(const Indices &indices) const { return m_elements.value(indices); }

    /// Grows the array where an index is outside it. False, with nothing changed, when an index is negative or their
    /// number is not that of the dimensions.
    bool setValue(const Indices &indices, const QVariant &value)
    {
        const bool isElement = indices.size() == m_dimensions.size() &&
                               std::none_of(indices.begin(), indices.end(), [](qint64 index) { return index < 0; });
        for (qsizetype i = 0; isElement && i < indices.size(); ++i) {
            m_dimensions[i] = std::max(m_dimensions[i], indices[i] + 1);
        }
        if (isElement) {
            m_elements.insert(indices, value);
        }
        return isElement;
    }

    /// An invalid value for an unknown key.
    QVariant valueForKey(const QString &key) const { return m_keyed.value(key); }
    void setValueForKey(const QString &key, const QVariant &value) { m_keyed.insert(key, value); }
    QStringList keys() const { return m_keyed.keys(); }

    /// Forgets all values and keeps the dimensions.
    void clear()
    {
        m_elements.clear();
        m_keyed.clear();
    }

private:
    Indices m_dimensions;
    QMap<Indices, QVariant> m_elements;
    QMap<QString, QVariant> m_keyed;
};

} // namespace tetrad
