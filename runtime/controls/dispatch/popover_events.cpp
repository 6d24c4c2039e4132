#include <tetrad/controls/popovers.h>

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

void tell(Popover *popover, qint64 event)
{
    setObjectWindowTag(popover, popover->tag());
    sendObjectEvent(popover, event);
}

bool ask(Popover *popover, qint64 event)
{
    CUI_DialogEventObj()->boolVal = false;
    tell(popover, event);
    return CUI_DialogEventObj()->boolVal;
}

// Turns a popover whose background is dragged off its place into a window, if the program lets it.
class PopoverDetacher : public QObject
{
public:
    explicit PopoverDetacher(Popover *popover) : QObject(popover), m_popover(popover)
    {
        popover->contentView()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isMove = event->type() == QEvent::MouseMove;
        if (isMove || event->type() == QEvent::MouseButtonPress) {
            const auto *const mouse = static_cast<QMouseEvent *>(event);
            const QPoint place = mouse->globalPosition().toPoint();
            const QPoint distance = place - m_pressedAt;
            if (!isMove) {
                m_pressedAt = place;
            } else if (mouse->buttons() & Qt::LeftButton && !m_isDetached &&
                       distance.manhattanLength() > QApplication::startDragDistance()) {
                m_pressedAt = place;
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
        const QPoint place = m_popover->pos() + distance;
        CUI_DialogEventObj()->viewObj = nullptr;
        tell(m_popover, popoverEventDetachableWindow);
        if (!guard) {
            return;
        }
        const QPointer<QWidget> window = qobject_cast<QWidget *>(CUI_DialogEventObj()->viewObj);
        m_isDetached = !window;
        if (window) {
            m_popover->hide();
            window->move(place);
            window->show();
        } else {
            m_popover->setWindowFlags(Qt::Tool);
            m_popover->move(place);
            m_popover->show();
        }
        tell(m_popover, popoverEventDidDetach);
    }

    Popover *m_popover = nullptr;
    QPoint m_pressedAt;
    bool m_isDetached = false;
};

} // namespace

void reportPopoverEvents(Popover *popover)
{
    const auto tells = [popover](auto signal, qint64 event) {
        QObject::connect(popover, signal, popover, [popover, event] { tell(popover, event); });
    };
    tells(&Popover::willShow, popoverEventWillShow);
    tells(&Popover::didShow, popoverEventDidShow);
    tells(&Popover::willClose, popoverEventWillClose);
    tells(&Popover::didClose, popoverEventDidClose);
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
