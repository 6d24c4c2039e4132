#pragma once

#include "game/rules/source_lines.h"

#include <QString>

#include <array>

namespace tetrad {

/// Returns the index, or stops the program when it is above the bound (ChkBounds). The program supplies it, so that the
/// rules need neither an alert nor a window.
using BoundsCheck = quint32 (*)(quint32 index, quint32 bound, quint32 line, const QString &file);

/// An array with the indices 0 to `bound` inclusive whose every access is checked. line: of source_lines.h.
template <typename T, qint16 bound>
class GuardedArray
{
public:
    explicit GuardedArray(BoundsCheck check) : m_check(check) {}

    BoundsCheck boundsCheck() const { return m_check; }

    T &at(qint16 index, quint32 line) { return m_items[checked(index, line)]; }
    const T &at(qint16 index, quint32 line) const { return m_items[checked(index, line)]; }

private:
    // The sign is extended, so a negative index is above every bound.
    quint32 checked(qint16 index, quint32 line) const
    {
        return m_check(static_cast<quint32>(index), bound, line, QString::fromUtf16(source::file));
    }

    std::array<T, bound + 1> m_items{};
    BoundsCheck m_check = nullptr;
};

} // namespace tetrad
