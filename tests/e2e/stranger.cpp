// A program as somebody else would write it: carries out its arguments one by one, then asks for lines for ever. An
// answer may be a command as well, and so may a line of standard input, which is read in whatever modal run there is.
// What happens to it goes to standard output.
//   stranger COMMAND...        each in one argument, as in "open 1 100 100"

#include <tetrad/tetrad.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <span>
#include <string>
#include <thread>

using namespace tetrad;
using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    std::cout << line.toStdString() << std::endl;
}

Window *window()
{
    return CUI_WindowWithTag(1);
}

// What a window may be made: no smaller, and whole steps.
QSizeF least;
double step = 0;

qint64 onEvent(qint64 event, Tag tag, Tag, qint64)
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
    } else if (event == windowEventWillResize) {
        record.sizeVal = step > 0 ? (record.sizeVal / step).toSize() * step : record.sizeVal.expandedTo(least);
    }
    return 0;
}

// Ends the program with a signal if anything of it still runs after its end was reported.
void watchTheEnd()
{
    static bool isOver = false;
    CUI_SetOnAppEventFunction([](qint64 event, const QVariant &) {
        isOver = isOver || event == appEventWillTerminate;
        return QVariant();
    });
    auto *const timer = new QTimer(qApp);
    timer->callOnTimeout([] { isOver ? std::abort() : void(); });
    timer->start(0);
}

using Numbers = std::function<qint64(qsizetype)>;

const std::map<QString, std::function<void(const Numbers &)>> commands = {
    {u"open"_s,
     [](const Numbers &at) { // tag, x, y and perhaps style
         CUI_Window(at(1), u"Window %1"_s.arg(at(1)), at(4), QRectF(double(at(2)), double(at(3)), 400, 150));
     }},
    {u"button"_s, [](const Numbers &) { CUI_Button(7, u"Press"_s, QRectF(20, 20, 120, 40)); }},
    {u"works"_s, [](const Numbers &at) { WindowSetWorksWhenModal(at(1), true); }},
    {u"silent"_s, [](const Numbers &) { CUI_SetOnDialogFunction(nullptr); }},
    {u"front"_s, [](const Numbers &at) { CUI_Window(at(1), QString(), notGiven, QRectF()); }},
    {u"run"_s, [](const Numbers &at) { say(u"run %1"_s.arg(runModalForWindow(CUI_WindowWithTag(at(1))))); }},
    {u"sleep"_s, [](const Numbers &at) { std::this_thread::sleep_for(std::chrono::seconds(at(1))); }},
    {u"popover"_s, [](const Numbers &) { CUI_Popover(3, QSizeF(160, 80), popoverTransient); }},
    {u"show"_s, [](const Numbers &) { PopoverShow(3, contentViewTag, QRectF(), Qt::BottomEdge); }},
    {u"toolbar"_s, [](const Numbers &) { CUI_Toolbar(4), CUI_ToolbarAddItem(4, 41, u"Item"_s); }},
    {u"least"_s, [](const Numbers &) { least = QSizeF(380, 120); }},
    {u"step"_s, [](const Numbers &) { step = 50; }},
    {u"restyle"_s, [](const Numbers &) { window()->setStyleMask(window()->styleMask() ^ windowStyleDefault); }},
    {u"sheet"_s, [](const Numbers &) { CUI_Alert(5, notGiven, u"Save?"_s, QString(), u"Save;Don't"_s, 1); }},
    {u"copy"_s, [](const Numbers &) { QGuiApplication::clipboard()->setText(u"kept"_s); }},
    {u"watch"_s, [](const Numbers &) { watchTheEnd(); }},
    {u"quit"_s, [](const Numbers &) { AppTerminate(); }},
};

void carryOut(const QString &line)
{
    const QStringList words = line.split(u' ');
    if (const auto command = commands.find(words.first()); command != commands.end()) {
        command->second([&](qsizetype index) { return index < words.size() ? words[index].toLongLong() : notGiven; });
    }
}

// Also what window 1 is like, whenever that changed.
void watch()
{
    static QString last;
    QString line = u"gone"_s;
    if (window()) {
        const QRect frame = window()->frameGeometry();
        line = u"%1 frame %2 %3 %4 %5 chrome %6"_s.arg(window()->dump()).arg(frame.x()).arg(frame.y());
        line = line.arg(frame.width()).arg(frame.height()).arg(window()->height() - window()->contentView()->height());
    }
    if (line != std::exchange(last, line)) {
        say(line);
    }
}

} // namespace

int main(int count, char **arguments)
{
    QCoreApplication::setApplicationName(u"Stranger"_s);
    CocoaInit();
    CUI_EditMenu(1);
    CUI_SetOnDialogFunction(onEvent);
    for (const char *command : std::span(arguments, std::size_t(count)).subspan(1)) {
        carryOut(QString::fromUtf8(command));
    }
    QTimer timer;
    timer.callOnTimeout(watch);
    timer.start(20);
    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            std::_Exit(3);
        }
        QTimer::singleShot(0, qApp, [line] { carryOut(QString::fromStdString(line)); });
    });
    for (;;) {
        const QString answer = ZRInput(10, 60, u"Which?"_s, QString(), notGiven, notGiven, notGiven);
        say(u"answer "_s + (answer.isNull() ? u"none"_s : answer));
        CUI_PrintToWindowPrintStatement({answer});
        carryOut(answer);
    }
}
