#include "runtime/controls/events/view_event_code.h"

#include <tetrad/events/event_codes.h>

#include <QKeyEvent>
#include <QMouseEvent>

namespace tetrad {

namespace {

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

qint64 keyCode(const QKeyEvent *event, qint64 code)
{
    return isModifier(event->key()) ? viewEventFlagsChanged : code;
}

qint64 buttonCode(const QMouseEvent *event, qint64 left, qint64 right)
{
    return event->button() == Qt::LeftButton ? left : event->button() == Qt::RightButton ? right : 0;
}

qint64 moveCode(const QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        return viewEventMouseDragged;
    }
    return event->buttons() & Qt::RightButton ? viewEventRightMouseDragged : viewEventMouseMoved;
}

} // namespace

qint64 viewEventCode(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return buttonCode(static_cast<const QMouseEvent *>(event), viewEventMouseDown, viewEventRightMouseDown);
    case QEvent::MouseButtonRelease:
        return buttonCode(static_cast<const QMouseEvent *>(event), viewEventMouseUp, viewEventRightMouseUp);
    case QEvent::MouseMove:
        return moveCode(static_cast<const QMouseEvent *>(event));
    case QEvent::Enter:
        return viewEventMouseEntered;
    case QEvent::Leave:
        return viewEventMouseExited;
    case QEvent::KeyPress:
        return keyCode(static_cast<const QKeyEvent *>(event), viewEventKeyDown);
    case QEvent::KeyRelease:
        return keyCode(static_cast<const QKeyEvent *>(event), viewEventKeyUp);
    default:
        return 0;
    }
}

} // namespace tetrad
