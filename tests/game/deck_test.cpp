#include "game/puzzle_deck.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace tetrad;

TEST(Deck, Holds96DifferentPuzzlesOfAscendingDigits)
{
    std::set<QString> puzzles;
    for (qint64 position = 0; position < puzzleCount; ++position) {
        const QString puzzle = puzzleText(position);
        SCOPED_TRACE(puzzle.toStdString());
        const QStringList digits = puzzle.split(u' ');
        ASSERT_EQ(digits.size(), 4);
        EXPECT_TRUE(std::is_sorted(digits.begin(), digits.end()));
        EXPECT_TRUE(std::all_of(digits.begin(), digits.end(), [](const QString &digit) {
            return digit.size() == 1 && digit >= QStringLiteral("1") && digit <= QStringLiteral("9");
        }));
        puzzles.insert(puzzle);
    }
    EXPECT_EQ(puzzles.size(), 96U);
}

TEST(Deck, LevelsChangeBetweenTheRuns)
{
    const struct
    {
        qint64 position;
        const char16_t *puzzle;
        Level level;
        const char *label;
    } rows[] = {
        {0, u"1 2 3 4", Level::easy, "⚪ Easy"},
        {32, u"1 5 5 9", Level::easy, "⚪ Easy"},
        {33, u"4 4 6 9", Level::medium, "🔴 🔴 Medium"},
        {64, u"1 5 7 9", Level::medium, "🔴 🔴 Medium"},
        {65, u"3 4 7 9", Level::hard, "🟡 🟡 🟡 Hard"},
        {95, u"2 4 8 9", Level::hard, "🟡 🟡 🟡 Hard"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.position);
        EXPECT_EQ(puzzleText(row.position), QString::fromUtf16(row.puzzle));
        EXPECT_EQ(levelAtPosition(row.position), row.level);
        EXPECT_EQ(levelLabel(row.level).toStdString(), row.label);
    }
}

TEST(ArcRandom, ReducesThe32BitNumberToTheRange)
{
    const struct
    {
        const char *name;
        quint32 random;
        qint64 lo;
        qint64 hi;
        qint64 result;
    } rows[] = {
        {"zero is the low end", 0, 0, 95, 0},   {"the last of the span", 95, 0, 95, 95},
        {"wraps after the span", 96, 0, 95, 0}, {"the largest number has no sign", 4294967295U, 0, 95, 63},
        {"low end above zero", 7, 10, 12, 11},  {"low end below zero", 5, -3, 3, 2},
        {"range of one", 123456789, 7, 7, 7},   {"the widest range", 4294967295U, 0, 4294967295, 4294967295},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ArcRandom(row.lo, row.hi, [&row] { return row.random; }), row.result);
    }
    std::set<qint64> seen;
    for (int i = 0; i < 10000; ++i) {
        seen.insert(ArcRandom(1, 6));
    }
    EXPECT_EQ(seen, (std::set<qint64>{1, 2, 3, 4, 5, 6})) << "from the system's source";
}
