#pragma once

#include "tests/support/table.h"
#include <tetrad/tetrad.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace tetrad {

/// The window statement with a place alone, carried out in full.
inline Window *open(Tag tag, const QRectF &rect = QRectF(40, 60, 300, 200))
{
    CUI_Window(tag, QString(), notGiven, rect);
    QApplication::processEvents();
    return CUI_WindowWithTag(tag);
}

/// The main menu as a program starts with it, whatever cases before this one made of it.
inline void resetMainMenu()
{
    if (MainMenu *const menu = mainMenu()) {
        qDeleteAll(std::exchange(menu->menus, {}));
    }
    CUI_BuildMinimalMenu();
}

/// What the dialog function was called with since this was emptied, as "code tag wndTag", with what `valuesOf`
/// made of the record behind it.
inline QStringList dialogCalls;
/// Reads the record's values that belong to an event.
inline std::function<QString(qint64 event)> valuesOf;
/// Called at every event, to answer it or to do harm.
inline std::function<void(qint64 event)> atEvent;
/// The object or number that the last event came with.
inline qint64 lastObject = 0;

/// A dialog function that keeps its calls and returns their number.
inline qint64 recordCall(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    const QString values = valuesOf ? valuesOf(event) : QString();
    dialogCalls << QString::asprintf("%lld %lld %lld", event, tag, wndTag) + (values.isEmpty() ? u""_s : u' ' + values);
    lastObject = obj;
    if (const auto callback = atEvent) {
        callback(event);
    }
    return dialogCalls.size();
}

using Answers = std::map<qint64, std::function<void(CUI_DialogEvent &)>>;

/// Answers the events in the list, each in its way.
inline std::function<void(qint64)> answers(const Answers &all)
{
    return [all](qint64 event) {
        if (const auto found = all.find(event); found != all.end()) {
            found->second(*CUI_DialogEventObj());
        }
    };
}

/// Whether every alert is off the screen again.
inline bool noAlertLeft()
{
    const auto isLeft = [](const QWidget *each) { return qobject_cast<const Alert *>(each) && each->isVisible(); };
    return !modalWindow() && std::ranges::none_of(QApplication::topLevelWidgets(), isLeft);
}

/// Leaves no alert, no window, no output window and no dialog function behind.
class WindowTest : public testing::Test
{
protected:
    void TearDown() override
    {
        EXPECT_TRUE(noAlertLeft());
        atEvent = nullptr;
        valuesOf = nullptr;
        CUI_SetOnDialogFunction(nullptr);
        qDeleteAll(orderedWindows());
        CUI_OutputWindowSetTag(0);
        dialogCalls.clear();
    }
};

/// Calls `action` with the widget of this kind that is run modally next, once it is on the screen and active; start it
/// before the call that blocks.
template <typename Widget>
void whenRuns(std::function<void(Widget *)> action)
{
    QTimer::singleShot(0, qApp, [action = std::move(action)] {
        auto *const widget = qobject_cast<Widget *>(modalWindow());
        if (widget && widget->isVisible() && widget->window()->isActiveWindow()) {
            action(widget);
        } else {
            whenRuns<Widget>(action);
        }
    });
}

using Answer = std::function<void(Alert *)>;

/// Answers an alert with a click on one of its buttons.
inline Answer clicks(int index)
{
    return [index](Alert *alert) { alert->alertButtons().at(index)->click(); };
}

inline QStringList titlesOf(const Alert *alert)
{
    QStringList titles;
    for (const QPushButton *const button : alert->alertButtons()) {
        titles << button->text().replace(u"&&"_s, u"&"_s);
    }
    return titles;
}

/// How an exit test expects its program to end: by this signal, or with status 0 if the signal is 0.
inline std::function<bool(int)> endedBy(int signal)
{
    return signal ? std::function<bool(int)>(testing::KilledBySignal(signal)) : testing::ExitedWithCode(0);
}

/// The texts of every alert that a statement queues, as "title|text"; each is answered with its first button. One more
/// alert is queued behind them, so that none that was to come is missed and none is waited for in vain.
inline QString alertsOf(const std::function<void()> &statement)
{
    QStringList shown;
    QTimer answerer;
    answerer.callOnTimeout([&shown] {
        if (const auto *const alert = qobject_cast<Alert *>(modalWindow())) {
            shown << alert->text() + u'|' + alert->informativeText();
            alert->alertButtons().constFirst()->click();
        }
    });
    answerer.start(0);
    statement();
    EXPECT_TRUE(shown.isEmpty()) << "alerts appear in the next modal loop";
    CUI_ShowAlert(alertStyleWarning, u"(end)"_s, QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.contains(u"(end)|"_s); }));
    shown.removeAll(u"(end)|"_s);
    return shown.join(u", "_s);
}

/// Whether the receiver accepts an event of this class, made of the arguments.
template <typename Event, typename... Arguments>
bool send(QObject *receiver, const Arguments &...arguments)
{
    Event event(arguments...);
    QApplication::sendEvent(receiver, &event);
    return event.isAccepted();
}

/// What the mouse does at a place of the widget, with the buttons that are down then.
inline void sendMouse(QWidget *widget, QEvent::Type type, const QPointF &place, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    send<QMouseEvent>(widget, type, place, widget->mapToGlobal(place), button, buttons, Qt::NoModifier);
}

/// Presses the left button and moves with it down.
inline void dragMouse(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    sendMouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
}

} // namespace tetrad
