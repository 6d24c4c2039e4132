// The game's own loop, unattended: a timer answers whatever the loop asks, until the given number of puzzles
// was played (10,000 unless told otherwise). From the 100th puzzle on, nothing may be left over from one
// question to the next: no object, no timer, no window, no slot of the string stack, and no memory.
//   soak [PUZZLES]

#include "solutions.h"

#include "runtime/app/alert.h"
#include "runtime/app/application.h"
#include "runtime/app/modal.h"
#include "runtime/console/console_statements.h"
#include "runtime/console/console_view.h"
#include "runtime/input/line_input_window.h"
#include "runtime/strings/string_stack.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <unistd.h>

int gameMain(int argc, char **argv);

// The library's hook for debuggers: told of every object that is made and deleted.
extern quintptr Q_CORE_EXPORT qtHookData[];

using namespace tetrad;

namespace {

constexpr int puzzlesBefore = 100;
// Two bytes for each of 10,000 puzzles; what the game has shown of a cycle takes some kilobytes.
constexpr qint64 memoryMayGrow_bytes = 20'000;

QSet<QObject *> &liveObjects()
{
    static QSet<QObject *> theObjects;
    return theObjects;
}

// The library's own threads have objects, too; those are none of the game's.
bool inGameThread()
{
    return QThread::currentThread() == qApp->thread();
}

void objectMade(QObject *object)
{
    if (inGameThread()) {
        liveObjects().insert(object);
    }
}

void objectDeleted(QObject *object)
{
    if (inGameThread()) {
        liveObjects().remove(object);
    }
}

void followObjects()
{
    constexpr int addObject = 3;
    constexpr int removeObject = 4;
    qtHookData[addObject] = reinterpret_cast<quintptr>(&objectMade);
    qtHookData[removeObject] = reinterpret_cast<quintptr>(&objectDeleted);
}

// What the process holds while the game asks.
struct Holdings
{
    qint64 objects = 0;
    qint64 timers = 0;
    qint64 windows = 0;
    qint64 openFiles = 0;
    qint64 stackSlots = 0;
    qint64 heap_bytes = 0;
};

qint64 heapInUse_bytes()
{
    const struct mallinfo2 facts = mallinfo2();
    return static_cast<qint64>(facts.uordblks) + static_cast<qint64>(facts.hblkhd);
}

Holdings holdingsNow()
{
    Holdings holdings;
    holdings.objects = liveObjects().size();
    for (QObject *object : std::as_const(liveObjects())) {
        holdings.timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    }
    holdings.windows = QApplication::topLevelWidgets().size();
    holdings.openFiles = QDir(QStringLiteral("/proc/self/fd")).entryList().size();
    holdings.stackSlots = gZRStk;
    holdings.heap_bytes = heapInUse_bytes();
    return holdings;
}

void print(const char *when, const Holdings &holdings)
{
    std::printf("%-20s %8lld %8lld %8lld %8lld %8lld %12lld\n", when, holdings.objects, holdings.timers,
                holdings.windows, holdings.openFiles, holdings.stackSlots, holdings.heap_bytes);
}

bool isFlat(const Holdings &before, const Holdings &after)
{
    return before.objects == after.objects && before.timers >= after.timers && before.windows == after.windows &&
           before.openFiles >= after.openFiles && before.stackSlots == 0 && after.stackSlots == 0 &&
           after.heap_bytes - before.heap_bytes < memoryMayGrow_bytes;
}

void fail(const char *what)
{
    std::printf("FAILED: %s\n", what);
    std::fflush(stdout);
    std::_Exit(1);
}

/// Answers what is asked, one modal run after the other.
class Player : public QObject
{
    Q_OBJECT

public:
    explicit Player(int puzzles) : m_puzzles(puzzles)
    {
        connect(&m_timer, &QTimer::timeout, this, &Player::look);
        m_timer.start(0);
    }

private:
    void look()
    {
        QWidget *widget = modalWindow();
        if (widget == nullptr || widget == m_answered || !widget->isActiveWindow()) {
            return;
        }
        m_answered = widget;
        if (auto *alert = qobject_cast<Alert *>(widget)) {
            alert->alertButtons().at(1)->click();
        } else if (auto *panel = qobject_cast<ZRInputWindow *>(widget)) {
            answer(panel);
        }
    }

    void answer(ZRInputWindow *panel)
    {
        if (gZRStk != 0) {
            fail("the string stack is back at its start");
        }
        const QString puzzle = puzzleOnScreen();
        if (puzzle != m_puzzle) {
            m_puzzle = puzzle;
            m_turn = 0;
            startPuzzle();
        }
        type(panel, nextAnswer());
    }

    static QString puzzleOnScreen()
    {
        static const QRegularExpression pattern(
            QStringLiteral("\\n[\\s\\x08]*(\\d)[\\s\\x08]+(\\d)[\\s\\x08]+(\\d)[\\s\\x08]+(\\d)[\\s\\x08]*\\n"));
        const auto match = pattern.match(CUI_PrintToWindowViewObj(CUI_PrintToWindowWindow())->textString());
        if (!match.hasMatch()) {
            fail("a puzzle is on the screen");
        }
        return match.capturedTexts().mid(1).join(u' ');
    }

    // Compares when the same is on the screen as it was then: a fresh puzzle's first question.
    void startPuzzle()
    {
        ++m_played;
        if (m_played == puzzlesBefore) {
            m_before = holdingsNow();
        } else if (m_played == m_puzzles) {
            finish();
        }
    }

    void finish()
    {
        const Holdings after = holdingsNow();
        std::printf("%-20s %8s %8s %8s %8s %8s %12s\n", "at puzzle", "objects", "timers", "windows", "files", "stack",
                    "heap bytes");
        print("100", m_before);
        print(qPrintable(QString::number(m_puzzles)), after);
        std::fflush(stdout);
        if (!isFlat(m_before, after)) {
            fail("nothing is left over");
        }
        std::_Exit(0);
    }

    // Every puzzle takes one of four ways: solved at once, solved after wrong answers, skipped, or left unanswered
    // for a while.
    QString nextAnswer()
    {
        static const QList<QStringList> ways = {
            {QString()},
            {QStringLiteral("1+2+3+4+5"), QStringLiteral("9"), QStringLiteral("(((1"), QString()},
            {QStringLiteral("s")},
            {QStringLiteral(""), QStringLiteral("\x1b"), QString()},
        };
        const QStringList &way = ways.at(m_played % ways.size());
        const QString planned = way.at(m_turn++);
        const QString answer = planned.isNull() ? solution() : planned;
        if (m_turn == way.size()) {
            // What comes next is another puzzle, even if a new cycle begins with the same numbers.
            m_puzzle.clear();
        }
        return answer;
    }

    QString solution()
    {
        QString &known = m_solutions[m_puzzle];
        if (known.isNull()) {
            known = solutionsOf(m_puzzle).first();
        }
        return known;
    }

    static void type(ZRInputWindow *panel, const QString &answer)
    {
        if (answer == u"\x1b") {
            QTest::keyClick(panel->field(), Qt::Key_Escape);
            return;
        }
        QTest::keyClicks(panel->field(), answer);
        QTest::keyClick(panel->field(), Qt::Key_Return);
    }

    int m_puzzles = 0;
    int m_played = 0;
    qsizetype m_turn = 0;
    QTimer m_timer;
    QPointer<QWidget> m_answered;
    QString m_puzzle;
    QHash<QString, QString> m_solutions;
    Holdings m_before;
};

// The C library keeps freed memory in a cache for each thread and counts it as in use; it fills up over thousands of
// puzzles. Without it what is counted is what is held.
void startWithoutCache(char **argv)
{
    constexpr char tunables[] = "GLIBC_TUNABLES";
    if (!qEnvironmentVariableIsSet(tunables)) {
        qputenv(tunables, "glibc.malloc.tcache_count=0");
        execv("/proc/self/exe", argv);
    }
}

} // namespace

int main(int argc, char **argv)
{
    startWithoutCache(argv);
    CocoaInit();
    followObjects();
    Player player(argc > 1 ? std::atoi(argv[1]) : 10'000);
    return gameMain(argc, argv);
}

#include "soak.moc"
