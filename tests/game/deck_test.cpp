#include "game/puzzle_deck.h"

#include "tests/table.h"

#include <QStringList>

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
    const Table<qint64, const char *> rows = {{"⚪ Easy", 0, "1 2 3 4"},
                                              {"⚪ Easy", 32, "1 5 5 9"},
                                              {"🔴 🔴 Medium", 33, "4 4 6 9"},
                                              {"🔴 🔴 Medium", 64, "1 5 7 9"},
                                              {"🟡 🟡 🟡 Hard", 65, "3 4 7 9"},
                                              {"🟡 🟡 🟡 Hard", 95, "2 4 8 9"}};
    for (const auto &[level, position, puzzle] : rows) {
        EXPECT_EQ(puzzleText(position), QString::fromUtf8(puzzle));
        EXPECT_EQ(levelLabel(levelAtPosition(position)).toStdString(), level);
    }
}

TEST(ArcRandom, ReducesThe32BitNumberToTheRange)
{
    const Table<quint32, qint64, qint64, qint64> rows = {
        {"zero is the low end", 0, 0, 95, 0},   {"the last of the span", 95, 0, 95, 95},
        {"wraps after the span", 96, 0, 95, 0}, {"the largest number has no sign", 4294967295U, 0, 95, 63},
        {"low end above zero", 7, 10, 12, 11},  {"low end below zero", 5, -3, 3, 2},
        {"range of one", 123456789, 7, 7, 7},   {"the widest range", 4294967295U, 0, 4294967295, 4294967295},
    };
    for (const auto &[name, random, lo, hi, result] : rows) {
        EXPECT_EQ(ArcRandom(lo, hi, [drawn = random] { return drawn; }), result) << name;
    }
    std::set<qint64> seen;
    for (int i = 0; i < 10000; ++i) {
        seen.insert(ArcRandom(1, 6));
    }
    EXPECT_EQ(seen, (std::set<qint64>{1, 2, 3, 4, 5, 6})) << "from the system's source";
}
