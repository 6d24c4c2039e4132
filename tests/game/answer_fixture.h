#pragma once

#include "game/guarded_array.h"

#include <QStringList>

/// The numbers of a puzzle text, in an array that lets every index pass.
inline tetrad::PuzzleNumbers numbersOf(const QString &puzzle)
{
    tetrad::PuzzleNumbers numbers([](quint32 index, quint32, quint32, const QString &) { return index; });
    const QStringList digits = puzzle.split(u' ');
    for (qint16 i = 1; i <= 4; ++i) {
        numbers.at(i, 0) = digits.at(i - 1).toShort();
    }
    return numbers;
}
