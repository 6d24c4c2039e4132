// The game's own loop, unattended: a timer answers whatever the loop asks, until the given number of puzzles
// was played (10,000 unless told otherwise). No cycle of 96 may show a puzzle twice. From the 100th puzzle on, nothing
// may be left over from one question to the next: no memory, no file and no slot of the string stack.
//   soak [PUZZLES]

#include "game/rules/puzzle_deck.h"
#include "tests/game/puzzles.h"
#include "tests/support/windows.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <malloc.h>

int gameMain(int argc, char **argv);

namespace tetrad {

// The loop draws from here.
quint32 drawnRandom()
{
    return systemRandom();
}

} // namespace tetrad

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

constexpr int puzzlesBefore = 100;

// What the process holds while the game asks. Windows and widgets are seen in the heap.
struct Holding
{
    qint64 bytes = qint64(mallinfo2().uordblks + mallinfo2().hblkhd);
    qsizetype files = QDir(u"/proc/self/fd"_s).entryList().size();
};

[[noreturn]] void finish(const Holding &before)
{
    const Holding now;
    // Two bytes for each of 10,000 puzzles, less than any object, timer or connection takes; what the game has shown of
    // a cycle takes some kilobytes.
    require(now.bytes <= before.bytes + 20'000, "no memory is left over", QString::number(now.bytes - before.bytes));
    require(now.files <= before.files, "no file is left open", QString::number(now.files - before.files));
    std::remove(qgetenv("TEST_PREMATURE_EXIT_FILE").constData());
    std::_Exit(0);
}

// Every puzzle takes one of four ways: solved at once, solved after wrong answers, skipped, or left unanswered for a
// while. The solution is none here, and Escape is the answer that cancels.
const QString cancelled = u"\x1b"_s;
const QList<QStringList> ways = {
    {QString()},
    {u"1+2+3+4+5"_s, u"9"_s, u"(((1"_s, QString()},
    {u"s"_s},
    {u""_s, cancelled, QString()},
};

QString puzzleOnScreen()
{
    static const QRegularExpression pattern(u"\\b\\d \\d \\d \\d\\b"_s);
    const QString text = CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow())->textString().remove(u'\b').simplified();
    require(text.contains(pattern), "a puzzle is on the screen", text);
    return pattern.match(text).captured();
}

/// Answers what is asked, one modal run after the other.
class Player
{
public:
    explicit Player(int puzzles) : m_puzzles(puzzles) { answerNext(); }

private:
    void answerNext()
    {
        whenRuns<QWidget>([this](QWidget *widget) {
            if (auto *alert = qobject_cast<Alert *>(widget)) {
                clicks(1)(alert);
            } else if (auto *panel = qobject_cast<ZRInputWindow *>(widget)) {
                require(gZRStk == 0, "the string stack is back at its start");
                answer(panel->field());
            }
            answerNext();
        });
    }

    void answer(QLineEdit *field)
    {
        if (m_turn == way().size()) {
            m_turn = 0;
            startPuzzle(puzzleOnScreen());
        }
        const QString answer = way().at(m_turn++);
        if (answer == cancelled) {
            QTest::keyClick(field, Qt::Key_Escape);
        } else {
            QTest::keyClicks(field, answer.isNull() ? m_solutions[puzzleOnScreen()].first() : answer);
            QTest::keyClick(field, Qt::Key_Return);
        }
    }

    const QStringList &way() const { return ways.at(m_played % ways.size()); }

    // Compares when the same is on the screen as it was then: a fresh puzzle's first question.
    void startPuzzle(const QString &puzzle)
    {
        require(!m_cycle.contains(puzzle), "no puzzle is shown twice in a cycle", puzzle);
        m_cycle.insert(puzzle);
        if (m_cycle.size() == puzzleCount) {
            m_cycle.clear();
        }
        ++m_played;
        if (m_played == puzzlesBefore) {
            m_before = Holding();
        } else if (m_played == m_puzzles) {
            finish(m_before);
        }
    }

    QMap<QString, QStringList> m_solutions = solvedPuzzles();
    QSet<QString> m_cycle;
    Holding m_before;
    int m_puzzles = 0;
    int m_played = 0;
    qsizetype m_turn = 1; // the way before the first is done
};

} // namespace

int main(int argc, char **argv)
{
    CocoaInit();
    Player player(argc > 1 ? std::atoi(argv[1]) : 10'000);
    return gameMain(argc, argv);
}
