// A program as somebody else would write it, in one scene of many; what happens to it goes to standard output.

#include <tetrad/tetrad.h>

#include <QCoreApplication>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
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
        if (answer == u"quit"_s) {
            AppTerminate();
        }
    }
}

static void later(const std::function<void()> &action)
{
    QTimer::singleShot(800, qApp, action);
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
         later([] { open(2, left.translated(60, 60)); });
     }},
    {"nested",
     [] {
         open(2, right);
         open(1, left);
         later([] { say(u"run %1"_s.arg(runModalForWindow(CUI_WindowWithTag(2)))); });
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
         later([] { PopoverShow(3, contentViewTag, QRectF(), Qt::BottomEdge); });
     }},
    {"tool bar",
     [] {
         open(1, left);
         later([] {
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
    {"sheet",
     [] {
         open(1, left);
         later([] { CUI_Alert(5, notGiven, u"Save?"_s, QString(), u"Save;Don't"_s, 1); });
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
        static QString last;
        const QString line = CUI_WindowWithTag(1) ? CUI_WindowWithTag(1)->dump() : u"gone"_s;
        if (line != std::exchange(last, line)) {
            say(line);
        }
    });
    watch.start(20);
    ask();
}
