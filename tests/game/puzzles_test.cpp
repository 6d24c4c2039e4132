#include "game/rules/puzzle_history.h"

#include "game/rules/puzzle_deck.h"
#include "tests/support/table.h"

#include <QCryptographicHash>

#include <map>
#include <random>
#include <set>

using namespace tetrad;

namespace {

// What was accessed under each line of the source: first and last index, and the bound.
using Accesses = std::map<quint32, std::vector<quint32>>;
Accesses accesses;

quint32 recordAccess(quint32 index, quint32 bound, quint32 line, const QString &file)
{
    EXPECT_EQ(file, u"Tetrad Game.zr"_s);
    const auto known = accesses.try_emplace(line, std::vector{index, index, bound}).first;
    known->second = {std::min(known->second[0], index), std::max(known->second[1], index), bound};
    return index;
}

QString textOf(const PuzzleNumbers &numbers)
{
    return QString::asprintf("%d %d %d %d", numbers.at(1, 0), numbers.at(2, 0), numbers.at(3, 0), numbers.at(4, 0));
}

} // namespace

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
        {"the widest range", 4294967295U, 0, 4294967295, 4294967295},
    };
    for (const auto &[name, random, lo, hi, result] : rows) {
        EXPECT_EQ(ArcRandom(lo, hi, [drawn = random] { return drawn; }), result) << name;
    }
    EXPECT_NE(ArcRandom(0, 4294967295), ArcRandom(0, 4294967295)) << "from the system's source";
}

TEST(History, CycleShows96DifferentPuzzlesThenStartsAgain)
{
    std::mt19937 generator(24); // NOLINT(cert-msc51-cpp): the same cycle every time
    accesses.clear();
    PuzzleHistory history(recordAccess);
    for (int cycle = 0; cycle < 2; ++cycle) {
        std::set<QString> shown;
        std::map<Level, int> perLevel;
        for (int i = 0; i < 96; ++i) {
            const Puzzle puzzle = choosePuzzle(history, [&generator] { return quint32(generator()); });
            ++perLevel[puzzle.level];
            shown.insert(textOf(puzzle.numbers));
            EXPECT_EQ(history.count(), i + 1);
        }
        EXPECT_EQ(shown.size(), 96U);
        EXPECT_EQ(perLevel, (std::map<Level, int>{{Level::easy, 33}, {Level::medium, 32}, {Level::hard, 31}}));
    }
    accesses.erase(0); // this test's own
    EXPECT_EQ(accesses, (Accesses{{128, {1, 96, 97}},
                                  {166, {1, 96, 97}},
                                  {172, {1, 96, 97}},
                                  {173, {11, 95, 97}},
                                  {179, {1, 96, 97}},
                                  {181, {1, 1, 4}},
                                  {182, {2, 2, 4}},
                                  {183, {3, 3, 4}},
                                  {184, {4, 4, 4}}}));
}

TEST(GuardedArray, HandsANegativeIndexOnAsALargeOne)
{
    PuzzleNumbers([](quint32 index, quint32, quint32, const QString &) {
        EXPECT_EQ(index, 4294967295U);
        return 0U;
    }).at(-1, 272);
}
