// A program as somebody else would write it, in one scene of many; what happens to it goes to standard output.

#include <tetrad/tetrad.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <thread>

using namespace tetrad;
using namespace Qt::StringLiterals;

static void say(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

static void open(Tag tag, const QRectF &rect, qint64 style = notGiven)
{
    CUI_Window(tag, u"Window %1"_s.arg(tag), style, rect);
}

static void ask()
{
    for (;;) {
        const QString answer = ZRInput(10, 60, u"Which?"_s, QString(), notGiven, notGiven, notGiven);
        say(u"answer "_s + (answer.isNull() ? u"none"_s : answer));
        CUI_PrintToWindowPrintStatement({answer});
        if (answer == u"other"_s) {
            CUI_Window(1, QString(), notGiven, QRectF());
        } else if (answer == u"quit"_s) {
            AppTerminate();
        }
    }
}

static std::function<void()> action;
static volatile std::sig_atomic_t isSignalled = 0;

// Inside a modal run, each time the test sends SIGUSR1.
static void whenSignalled(const std::function<void()> &given)
{
    action = given;
}

static void addButton(Tag tag, const QString &title)
{
    CUI_Button(tag, title, QRectF(20, 20, 120, 40));
}

static QSizeF (*sizeFor)(QSizeF) = nullptr;

static qint64 onEvent(qint64 event, Tag tag, Tag, qint64)
{
    if (event == windowEventDidUpdate) {
        return 0;
    }
    say(u"%1 %2"_s.arg(event).arg(tag));
    CUI_DialogEvent &record = *CUI_DialogEventObj();
    if (event == windowEventShouldClose) {
        const bool closes =
            CUI_Alert(5, notGiven, u"Close?"_s, QString(), u"Stay;Close"_s, notGiven) == alertSecondButton;
        record.boolVal = closes;
    } else if (event == windowEventWillResize && sizeFor) {
        record.sizeVal = sizeFor(record.sizeVal);
    }
    return 0;
}

static const QRectF left(100, 100, 400, 150);
static const QRectF right(600, 300, 400, 150);

static Window *window()
{
    return CUI_WindowWithTag(1);
}

static const std::map<std::string, std::function<void()>> scenes = {
    {"one", [] { open(1, left); }},
    {"two",
     [] {
         open(2, right);
         addButton(7, u"Press"_s);
         WindowSetWorksWhenModal(2, true);
         open(1, left);
     }},
    {"later",
     [] {
         open(1, left);
         whenSignalled([] { open(2, left.translated(60, 60)); });
     }},
    {"equal",
     [] {
         open(1, left);
         open(2, right);
         CUI_SetOnDialogFunction(nullptr);
     }},
    {"nested",
     [] {
         open(2, right);
         open(1, left);
         whenSignalled([] { say(u"run %1"_s.arg(runModalForWindow(CUI_WindowWithTag(2)))); });
     }},
    {"early",
     [] {
         open(1, left);
         std::this_thread::sleep_for(std::chrono::seconds(2));
     }},
    {"high", [] { open(1, QRectF(10, 10, 400, 150)); }},
    {"untouchable", [] { open(1, left, windowStyleTitled); }},
    {"popover",
     [] {
         open(1, left);
         CUI_Popover(3, QSizeF(160, 80), popoverTransient);
         addButton(7, u"Press"_s);
         whenSignalled([] { PopoverShow(3, contentViewTag, QRectF(), Qt::BottomEdge); });
     }},
    {"tool bar",
     [] {
         open(1, left);
         whenSignalled([] {
             CUI_Toolbar(4);
             CUI_ToolbarAddItem(4, 41, u"Item"_s);
         });
     }},
    {"least",
     [] {
         sizeFor = [](QSizeF size) { return size.expandedTo(QSizeF(380, 120)); };
         open(1, left);
     }},
    {"steps",
     [] {
         sizeFor = [](QSizeF size) { return QSizeF(50 * qRound(size.width() / 50), 50 * qRound(size.height() / 50)); };
         open(1, left);
     }},
    {"styles",
     [] {
         open(1, left);
         whenSignalled([] { window()->setStyleMask(window()->styleMask() ^ windowStyleDefault); });
     }},
    {"copied",
     [] {
         open(1, left);
         QGuiApplication::clipboard()->setText(u"kept"_s);
         static bool isOver = false;
         CUI_SetOnAppEventFunction([](qint64 event, const QVariant &) {
             isOver = isOver || event == appEventWillTerminate;
             return QVariant();
         });
         auto *const timer = new QTimer(qApp);
         QObject::connect(timer, &QTimer::timeout, [] { isOver ? std::abort() : void(); });
         timer->start(0);
     }},
    {"sheet",
     [] {
         open(1, left);
         whenSignalled([] { CUI_Alert(5, notGiven, u"Save?"_s, QString(), u"Save;Don't"_s, 1); });
     }},
};

int main(int count, char **arguments)
{
    const std::string name = arguments[1];
    if (name == "nothing") {
        AppTerminate();
    } else if (name == "without windows") {
        const QCoreApplication application(count, arguments);
        CUI_ShowAlert(alertStyleWarning, u"Full"_s, u"100 %"_s);
        AppTerminate();
    }
    std::signal(SIGUSR1, [](int) { isSignalled = 1; });
    QCoreApplication::setApplicationName(u"Stranger"_s);
    CocoaInit();
    CUI_EditMenu(1);
    CUI_SetOnDialogFunction(onEvent);
    const auto scene = scenes.find(name);
    if (scene == scenes.end()) {
        return 2;
    }
    scene->second();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [] {
        if (std::exchange(isSignalled, 0) && action) {
            QTimer::singleShot(0, qApp, action);
        }
        static QString last;
        QString line = u"gone"_s;
        if (window()) {
            const QRect frame = window()->frameGeometry();
            line = u"%1 frame %2 %3 %4 %5 chrome %6"_s.arg(window()->dump()).arg(frame.x()).arg(frame.y());
            line =
                line.arg(frame.width()).arg(frame.height()).arg(window()->height() - window()->contentView()->height());
        }
        if (line != std::exchange(last, line)) {
            say(line);
        }
    });
    watch.start(20);
    ask();
}
