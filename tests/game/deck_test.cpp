#include "game/rules/puzzle_deck.h"

#include "tests/support/table.h"

#include <QCryptographicHash>

#include <set>

using namespace tetrad;

// That the puzzles differ and have a solution is seen by the tests that go through all of them.
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

TEST(Deck, IsTheTypedOneWithItsLevels)
{
    QByteArray deck;
    for (qint64 position = 0; position < puzzleCount; ++position) {
        deck += puzzleText(position).toLatin1() + ':' + char('0' + qint16(levelAtPosition(position))) + '\n';
    }
    EXPECT_EQ(QCryptographicHash::hash(deck, QCryptographicHash::Sha1).toHex(),
              "105cc78718eac4be49b5a66ef4621f2c56088178");
}

TEST(ArcRandom, ReducesThe32BitNumberToTheRange)
{
    const Table<quint32, qint64, qint64, qint64> rows = {
        {"the last of the span", 95, 0, 95, 95},
        {"wraps after the span", 96, 0, 95, 0},
        {"the largest number has no sign", 4294967295U, 0, 95, 63},
        {"low end below zero", 5, -3, 3, 2},
        {"range of one", 123456789, 7, 7, 7},
        {"the widest range", 4294967295U, 0, 4294967295, 4294967295},
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
