#pragma once

#include "runtime/app/modal.h"
#include "runtime/app/output_window.h"
#include "runtime/app/window.h"
#include "runtime/app/windows.h"
#include "runtime/controls/dialog_event.h"
#include "runtime/strings/not_given.h"
#include "tests/table.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>

namespace tetrad {

/// The window statement with a place alone, carried out in full.
inline Window *open(Tag tag, const QRectF &rect = QRectF(40, 60, 300, 200))
{
    CUI_Window(tag, QString(), notGiven, rect);
    QApplication::processEvents();
    return CUI_WindowWithTag(tag);
}

/// Leaves no window, no output window and no dialog function behind.
class WindowTest : public testing::Test
{
protected:
    void TearDown() override
    {
        CUI_SetOnDialogFunction(nullptr);
        const QList<Window *> left = orderedWindows();
        qDeleteAll(left);
        CUI_OutputWindowSetTag(0);
    }
};

/// What the mouse does at a place of the widget, with the buttons that are down then.
inline void sendMouse(QWidget *widget, QEvent::Type type, const QPointF &place, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// Presses the left button and moves with it down.
inline void dragMouse(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    sendMouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
}

} // namespace tetrad
