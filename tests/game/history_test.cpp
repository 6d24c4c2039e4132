#include "game/rules/puzzle_history.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <vector>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

using Access = std::pair<quint32, quint32>; // index and bound

std::map<quint32, std::set<Access>> accessesByLine;

quint32 recordAccess(quint32 index, quint32 bound, quint32 line, const QString &file)
{
    EXPECT_EQ(file, u"Tetrad Game.zr"_s);
    EXPECT_LE(index, bound);
    accessesByLine[line].insert({index, bound});
    return index;
}

// Draws the given positions one after the other.
RandomSource replay(std::vector<quint32> positions)
{
    return [positions = std::move(positions), next = std::size_t(0)]() mutable { return positions.at(next++); };
}

QString textOf(const PuzzleNumbers &numbers)
{
    QStringList digits;
    for (qint16 i = 1; i <= 4; ++i) {
        digits.append(QString::number(numbers.at(i, 0)));
    }
    return digits.join(u' ');
}

class History : public testing::Test
{
protected:
    PuzzleHistory history{recordAccess};
};

} // namespace

TEST_F(History, RepeatIsDrawnAgainAndTheAcceptedDrawIsGraded)
{
    const RandomSource source = replay({10, 10, 10, 70, 70, 10, 40});
    for (const auto &[numbers, level] : {std::pair(u"2 2 3 9"_s, Level::easy), {u"4 4 5 7"_s, Level::hard}}) {
        const Puzzle puzzle = choosePuzzle(history, source);
        EXPECT_EQ(textOf(puzzle.numbers), numbers);
        EXPECT_EQ(puzzle.level, level);
    }
    EXPECT_EQ(choosePuzzle(history, source).level, Level::medium);
    EXPECT_EQ(gPosition, 40);
    EXPECT_EQ(history.count(), 3);
    QString key = u"2 2 3 9 "_s;
    EXPECT_TRUE(history.holds(key));
    EXPECT_EQ(key, u"2 5 5 8 "_s) << "a repeat becomes the newest key";
}

TEST_F(History, CycleShows96DifferentPuzzlesThenStartsAgain)
{
    std::mt19937 generator(24); // NOLINT(cert-msc51-cpp): the same cycle every time
    const RandomSource source = [&generator] { return static_cast<quint32>(generator()); };
    for (int cycle = 0; cycle < 2; ++cycle) {
        std::set<QString> shown;
        std::map<Level, int> perLevel;
        for (int i = 0; i < 96; ++i) {
            const Puzzle puzzle = choosePuzzle(history, source);
            ++perLevel[puzzle.level];
            shown.insert(textOf(puzzle.numbers));
            EXPECT_EQ(history.count(), i + 1);
        }
        EXPECT_EQ(shown.size(), 96U);
        EXPECT_EQ(perLevel, (std::map<Level, int>{{Level::easy, 33}, {Level::medium, 32}, {Level::hard, 31}}));
    }
}

TEST_F(History, EveryArrayAccessIsCheckedUnderItsLine)
{
    accessesByLine.clear();
    PuzzleHistory fresh(recordAccess);
    EXPECT_EQ(accessesByLine[128].size(), 96U);
    const RandomSource source = replay({5, 5, 6});
    choosePuzzle(fresh, source);
    choosePuzzle(fresh, source);
    EXPECT_EQ(accessesByLine[172].size(), 96U);
    EXPECT_EQ(accessesByLine[173], (std::set<Access>{{1, 97}}));
    EXPECT_EQ(accessesByLine[179], (std::set<Access>{{1, 97}, {2, 97}}));
    EXPECT_EQ(accessesByLine[181], (std::set<Access>{{1, 4}}));
    EXPECT_EQ(accessesByLine[184], (std::set<Access>{{4, 4}}));
    const RandomSource anything = [] { return systemRandom(); };
    while (fresh.count() < 96) {
        choosePuzzle(fresh, anything);
    }
    EXPECT_FALSE(accessesByLine.contains(166));
    choosePuzzle(fresh, anything);
    EXPECT_EQ(accessesByLine[166].size(), 96U);
}

TEST(GuardedArray, NegativeIndexIsHandedOnAsALargeOne)
{
    static quint32 handedOn = 0;
    PuzzleNumbers numbers([](quint32 index, quint32, quint32, const QString &) -> quint32 {
        handedOn = index;
        return 0;
    });
    numbers.at(-1, 272);
    EXPECT_EQ(handedOn, 4294967295U);
}
