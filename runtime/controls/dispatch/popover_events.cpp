#include "runtime/controls/dispatch/popover_events.h"

#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

namespace tetrad {

namespace {

constexpr char asksKey[] = "popoverAsks";

void report(Popover *popover, qint64 event)
{
    setObjectWindowTag(popover, popover->tag());
    sendObjectEvent(popover, event);
}

bool ask(Popover *popover, qint64 event)
{
    CUI_DialogEventObj()->boolVal = false;
    report(popover, event);
    return CUI_DialogEventObj()->boolVal;
}

// Turns a popover whose background is dragged off into a window, if the program lets it.
class PopoverDetacher : public QObject
{
public:
    explicit PopoverDetacher(Popover *popover) : QObject(popover), m_popover(popover)
    {
        popover->contentView()->installEventFilter(this);
        // Shown at a view again, it is attached again.
        connect(popover, &Popover::willShow, this, [this] { m_isDetached = false; });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isMove = event->type() == QEvent::MouseMove;
        if (isMove || event->type() == QEvent::MouseButtonPress) {
            const auto *const mouse = static_cast<QMouseEvent *>(event);
            const QPoint position = mouse->globalPosition().toPoint();
            const QPoint distance = position - m_pressedAt;
            if (!isMove) {
                m_pressedAt = position;
            } else if (mouse->buttons() & Qt::LeftButton && !m_isDetached &&
                       distance.manhattanLength() > QApplication::startDragDistance()) {
                m_pressedAt = position;
                detach(distance);
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void detach(const QPoint &distance)
    {
        if (!popoverAsks(m_popover)) {
            return;
        }
        const QPointer<Popover> guard(m_popover);
        if (!ask(m_popover, popoverEventShouldDetach) || !guard) {
            return;
        }
        const QPoint position = m_popover->pos() + distance;
        CUI_DialogEventObj()->viewObj = nullptr;
        report(m_popover, popoverEventDetachableWindow);
        if (!guard) {
            return;
        }
        const QPointer<QWidget> window = qobject_cast<QWidget *>(CUI_DialogEventObj()->viewObj);
        m_isDetached = !window;
        if (window) {
            m_popover->hide();
            window->move(position);
            window->show();
        } else {
            m_popover->setWindowFlags(Qt::Tool);
            m_popover->move(position);
            m_popover->show();
        }
        report(m_popover, popoverEventDidDetach);
    }

    Popover *m_popover = nullptr;
    QPoint m_pressedAt;
    bool m_isDetached = false;
};

} // namespace

void reportPopoverEvents(Popover *popover)
{
    const auto reports = [popover](auto signal, qint64 event) {
        QObject::connect(popover, signal, popover, [popover, event] { report(popover, event); });
    };
    reports(&Popover::willShow, popoverEventWillShow);
    reports(&Popover::didShow, popoverEventDidShow);
    reports(&Popover::willClose, popoverEventWillClose);
    reports(&Popover::didClose, popoverEventDidClose);
    QObject::connect(popover, &Popover::shouldClose, popover, [popover](bool *answer) {
        if (popoverAsks(popover)) {
            *answer = ask(popover, popoverEventShouldClose);
        }
    });
    new PopoverDetacher(popover);
}

bool popoverAsks(const Popover *popover)
{
    return popover->property(asksKey).toBool();
}

void setPopoverAsks(Popover *popover, bool asks)
{
    popover->setProperty(asksKey, asks);
}

} // namespace tetrad
