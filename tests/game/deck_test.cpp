#include "game/rules/puzzle_deck.h"

#include "tests/support/table.h"

#include <QCryptographicHash>

#include <set>

using namespace tetrad;

// That the puzzles differ and have a solution is seen by the tests that go through all of them.
TEST(Deck, IsTheTypedOneWithItsLevels)
{
    QByteArray deck;
    for (qint64 position = 0; position < puzzleCount; ++position) {
        deck += (puzzleText(position) + u':' + levelLabel(levelAtPosition(position)) + u'\n').toUtf8();
    }
    EXPECT_EQ(QCryptographicHash::hash(deck, QCryptographicHash::Sha1).toHex(),
              "1f2ed7569a42ffc4b6a9fdf59f391d796042fbf4");
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
