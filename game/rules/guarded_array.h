#pragma once

#include <QString>

#include <array>

namespace tetrad {

/// Returns the index, after stopping the program when it lies above the bound (ChkBounds). Handed in
/// by the program, so that the rules need neither an alert nor a window.
using BoundsCheck = quint32 (*)(quint32 index, quint32 bound, quint32 line, const QString &file);

/// An array with the indices 0 to `bound` inclusive whose every access is checked. The line is the one
/// that a range error names, a line of "Tetrad Game.zr".
template <typename T, qint16 bound>
class GuardedArray
{
public:
    explicit GuardedArray(BoundsCheck check) : m_check(check) {}

    T &at(qint16 index, quint32 line) { return m_items[checked(index, line)]; }
    const T &at(qint16 index, quint32 line) const { return m_items[checked(index, line)]; }

private:
    // The sign is extended, so a negative index is above every bound.
    quint32 checked(qint16 index, quint32 line) const
    {
        return m_check(static_cast<quint32>(index), bound, line, QStringLiteral("Tetrad Game.zr"));
    }

    std::array<T, bound + 1> m_items{};
    BoundsCheck m_check = nullptr;
};

inline constexpr qint16 numbersPerPuzzle = 4;

/// The numbers of a puzzle, in the order of its text, at the indices 1 to 4; index 0 is not used.
using PuzzleNumbers = GuardedArray<qint16, numbersPerPuzzle>;

} // namespace tetrad
