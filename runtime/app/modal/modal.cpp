#include <tetrad/app/modal.h>

#include "runtime/app/modal/modal_filter.h"
#include "runtime/app/process/platform_events.h"
#include "runtime/app/process/termination_signals.h"
#include <tetrad/app/dump.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tetrad {

namespace {

constexpr char worksWhenModalKey[] = "worksWhenModal";

struct ModalRun
{
    QPointer<QWidget> widget;
    QPointer<QWidget> focusBefore;
    QEventLoop loop;
    qint64 code = modalAborted;
    bool ended = false;
};

// Newest last. The runs themselves live on the stack of their runModalForWindow.
QList<ModalRun *> runs;

ModalFilter &filter()
{
    static auto *const theFilter = new ModalFilter;
    return *theFilter;
}

// The first end counts: a second one can only come from an event that was on its way already.
void endRun(ModalRun &run, qint64 code)
{
    if (run.ended) {
        return;
    }
    run.ended = true;
    run.code = code;
    run.loop.exit();
    if (&run != runs.last()) {
        return;
    }
    filter().focus().setWidget(nullptr);
    // An open menu has a loop of its own above this one.
    while (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
        if (QApplication::activePopupWidget() == popup) {
            break;
        }
    }
}

void endIfGone(ModalRun &run)
{
    if (!run.widget || !run.widget->isVisible()) {
        endRun(run, modalAborted);
    }
}

// A widget may be hidden only to be shown again at once, with other window flags for example.
void watch(ModalRun &run)
{
    QObject::connect(run.widget, &QObject::destroyed, &run.loop, [&run] { endRun(run, modalAborted); });
    QObject::connect(&filter(), &ModalFilter::hidden, &run.loop, [&run](const QWidget *hidden) {
        if (hidden == run.widget) {
            QMetaObject::invokeMethod(
                &run.loop, [&run] { endIfGone(run); }, Qt::QueuedConnection);
        }
    });
}

// Without a window manager a child gets no keys before its window was activated, hence this order.
void present(QWidget *widget)
{
    if (!widget->isWindow()) {
        widget->window()->activateWindow();
    }
    widget->show();
    widget->raise();
    if (widget->isWindow()) {
        widget->activateWindow();
    }
    filter().focus().focusInside();
}

void begin(ModalRun &run)
{
    if (runs.isEmpty()) {
        qApp->installEventFilter(&filter());
    }
    runs.append(&run);
    setServingEvents(true);
    filter().focus().setWidget(run.widget);
    watch(run);
    addMenuShortcutsTo(run.widget);
}

// Ends the process when not the run but the application was ended: newer versions of Qt do that when the connection to
// the display breaks. The program would go on without events.
void runLoop(ModalRun &run)
{
    const int status = run.loop.exec();
    if (!run.ended) {
        std::fflush(nullptr);
        std::_Exit(status);
    }
}

void returnTo(ModalRun &outer, QWidget *focusBefore)
{
    filter().focus().setWidget(outer.ended ? nullptr : outer.widget.data());
    if (outer.ended || !outer.widget) {
        return;
    }
    outer.widget->window()->activateWindow();
    if (focusBefore) {
        focusBefore->setFocus(Qt::OtherFocusReason);
    } else {
        filter().focus().focusInside();
    }
}

void finish(const ModalRun &run)
{
    runs.removeLast();
    setServingEvents(!runs.isEmpty());
    if (run.widget) {
        removeMenuShortcutsFrom(run.widget);
    }
    if (runs.isEmpty()) {
        filter().focus().setWidget(nullptr);
        qApp->removeEventFilter(&filter());
    } else {
        returnTo(*runs.last(), run.focusBefore);
    }
}

} // namespace

qint64 runModalForWindow(QWidget *window)
{
    if (!window) {
        return modalAborted;
    }
    announceLaunch();
    ModalRun run;
    run.widget = window;
    run.focusBefore = QApplication::focusWidget();
    begin(run);
    present(window);
    dumpIfWanted();
    endIfGone(run);
    filter().deliverKeptKeys();
    if (!run.ended) {
        runLoop(run);
    }
    finish(run);
    return run.code;
}

void stopModalWithCode(qint64 code)
{
    if (!runs.isEmpty()) {
        endRun(*runs.last(), code);
    }
}

void abortModal()
{
    stopModalWithCode(modalAborted);
}

void leaveInFront(QWidget *window)
{
    filter().focus().leaveInFront(window);
}

QWidget *modalWindow()
{
    return runs.isEmpty() ? nullptr : runs.last()->widget.data();
}

void setWorksWhenModal(QWidget *widget, bool works)
{
    widget->setProperty(worksWhenModalKey, works);
}

bool worksWhenModal(const QWidget *widget)
{
    return holdsOutwards(widget, [](const QWidget *each) { return each->property(worksWhenModalKey).toBool(); });
}

bool closeMeansQuit(const Window *window)
{
    const auto isWindow = [window](const QWidget *each) { return each == window; };
    const bool carriesTheOnlyRun = runs.size() == 1 && holdsOutwards(modalWindow(), isWindow);
    return carriesTheOnlyRun || (!runs.isEmpty() && isLastVisible(window));
}

bool isLastVisible(const Window *window)
{
    return std::ranges::none_of(orderedWindows(),
                                [window](const Window *other) { return other != window && other->isVisible(); });
}

} // namespace tetrad
