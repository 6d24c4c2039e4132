#include "game/rules/puzzle_deck.h"

#include <QRandomGenerator>

#include <array>
#include <cmath>
#include <cstdlib>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 lastEasyPosition = 32;
constexpr qint64 firstHardPosition = 65;

// clang-format off
constexpr std::array<const char16_t *, puzzleCount> deck = {
    // Easy: positions 0 to 32
    u"1 2 3 4", u"2 4 6 8", u"1 2 4 8", u"1 3 4 6", u"1 2 6 8", u"2 3 4 8", u"1 3 6 9", u"1 2 7 8",
    u"2 3 6 8", u"1 4 6 8", u"2 2 3 9", u"3 4 6 6", u"2 3 3 8", u"1 5 6 6", u"2 4 4 6", u"1 3 8 8",
    u"2 2 6 9", u"3 3 6 9", u"1 2 5 9", u"2 4 5 5", u"1 3 5 9", u"2 2 4 9", u"1 2 3 6", u"1 2 2 9",
    u"1 2 3 9", u"1 2 4 6", u"1 2 4 4", u"1 2 2 6", u"1 3 3 6", u"1 1 4 6", u"1 1 2 8", u"1 1 3 8",
    u"1 5 5 9",
    // Medium: positions 33 to 64
    u"4 4 6 9", u"2 3 7 9", u"3 5 8 8", u"1 6 6 8", u"3 3 5 6", u"1 4 5 8", u"3 3 6 7", u"2 5 5 8",
    u"4 4 7 9", u"1 5 6 9", u"3 3 8 9", u"2 6 6 7", u"4 5 7 8", u"2 2 5 9", u"2 4 6 7", u"1 5 6 8",
    u"3 4 7 7", u"2 5 6 6", u"3 4 5 9", u"1 6 7 9", u"2 3 7 8", u"1 4 6 9", u"2 3 5 9", u"3 4 4 8",
    u"2 5 8 9", u"1 4 8 9", u"3 3 4 9", u"2 6 7 9", u"1 3 5 7", u"1 3 6 6", u"2 2 5 7", u"1 5 7 9",
    // Hard: positions 65 to 95
    u"3 4 7 9", u"2 5 7 8", u"3 4 8 9", u"3 4 5 8", u"2 6 6 9", u"4 4 5 7", u"2 4 6 9", u"1 4 7 7",
    u"2 3 8 9", u"2 3 4 7", u"3 3 4 8", u"1 3 7 9", u"2 4 5 9", u"1 3 6 8", u"2 4 4 9", u"1 5 8 9",
    u"3 3 5 9", u"2 6 8 9", u"1 4 4 7", u"2 3 6 7", u"1 3 5 8", u"2 4 7 8", u"1 3 4 7", u"2 3 5 6",
    u"1 4 5 6", u"3 3 5 7", u"2 2 3 6", u"3 3 7 7", u"3 3 7 9", u"4 4 8 9", u"2 4 8 9",
};
// clang-format on

} // namespace

qint64 gPosition = 0;

quint32 systemRandom()
{
#ifdef TETRAD_HAVE_ARC4RANDOM
    return arc4random();
#else
    return QRandomGenerator::system()->generate();
#endif
}

qint64 ArcRandom(qint64 lo, qint64 hi, const RandomSource &source)
{
    const qint64 random = source();
    const qint64 span = hi - lo + 1;
    const qint64 result = random - random / span * span + lo;
    // The way through a double changes no result below 2 to the power 53 and is kept for those above.
    return static_cast<qint64>(std::floor(static_cast<double>(result)));
}

QString puzzleText(qint64 position)
{
    return QString::fromUtf16(deck.at(static_cast<std::size_t>(position)));
}

QString GetRandomNumbers(const RandomSource &source)
{
    gPosition = ArcRandom(0, puzzleCount - 1, source);
    return puzzleText(gPosition);
}

Level levelAtPosition(qint64 position)
{
    if (position <= lastEasyPosition) {
        return Level::easy;
    }
    return position < firstHardPosition ? Level::medium : Level::hard;
}

QString levelLabel(Level level)
{
    switch (level) {
    case Level::easy:
        return u"\u26AA Easy"_s;
    case Level::medium:
        return u"\U0001F534 \U0001F534 Medium"_s;
    case Level::hard:
        return u"\U0001F7E1 \U0001F7E1 \U0001F7E1 Hard"_s;
    }
    Q_UNREACHABLE();
}

} // namespace tetrad
