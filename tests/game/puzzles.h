#pragma once

#include "game/rules/puzzle_numbers.h"

#include <QFile>
#include <QMap>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace tetrad {

/// Ends the program, for a fuzzer a finding.
inline void require(bool holds, const char *what, const QString &input = QString())
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s, for \"%s\"\n", what, qUtf8Printable(input.left(1000)));
        std::abort();
    }
}

/// The four numbers of a puzzle's text, unchecked.
inline PuzzleNumbers numbersOf(const QString &puzzle)
{
    PuzzleNumbers numbers([](quint32 index, quint32, quint32, const QString &) { return index; });
    for (qint16 i = 1; i <= 4; ++i) {
        numbers.at(i, 0) = puzzle.section(u' ', i - 1, i - 1).toShort();
    }
    return numbers;
}

#ifdef TEST_SOLUTIONS
/// What tools/driver/solver.py found: each puzzle's text with all its solutions, fully parenthesised.
inline QMap<QString, QStringList> solvedPuzzles()
{
    QMap<QString, QStringList> solutions;
    QFile file(QStringLiteral(TEST_SOLUTIONS));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", TEST_SOLUTIONS, qPrintable(file.errorString()));
    }
    while (!file.atEnd()) {
        const QStringList parts = QString::fromLatin1(file.readLine().trimmed()).split(QStringLiteral(": "));
        solutions[parts.first()] = parts.value(1).split(u' ');
    }
    return solutions;
}
#endif

} // namespace tetrad
