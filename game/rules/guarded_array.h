#pragma once

#include <QString>

#include <array>

namespace tetrad {

/// The file and the lines that a range error of the game names, one line for each place that accesses an array.
namespace source {

inline constexpr char16_t file[] = u"Tetrad Game.zr";

inline constexpr quint32 historyEmptiedAtStart = 128;
inline constexpr quint32 historyEmptiedWhenFull = 166;
inline constexpr quint32 historyCompared = 172;
inline constexpr quint32 historyReadAfterRepeat = 173;
inline constexpr quint32 historyStored = 179;
inline constexpr quint32 firstNumberStored = 181; ///< the others follow
inline constexpr quint32 numberPrinted = 215;
inline constexpr quint32 numberChecked = 272;

} // namespace source

/// Returns the index, or stops the program when it is above the bound (ChkBounds). The program supplies it, so that the
/// rules need neither an alert nor a window.
using BoundsCheck = quint32 (*)(quint32 index, quint32 bound, quint32 line, const QString &file);

/// An array with the indices 0 to `bound` inclusive whose every access is checked. line: one of those above.
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
