#include <tetrad/controls/popovers.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/windows.h>
#include <tetrad/events/event_codes.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVariant>

namespace tetrad {

namespace {

constexpr char asksKey[] = "popoverAsks";

bool asks(const Popover *popover)
{
    return popover->property(asksKey).toBool();
}

// Reports a popover's events. Turns one whose background is dragged off into a window, if the program lets it.
class PopoverEvents : public QObject
{
public:
    explicit PopoverEvents(Popover *popover) : QObject(popover), m_popover(popover)
    {
        const auto reports = [popover](auto signal, qint64 event) {
            connect(popover, signal, popover, [popover, event] { sendObjectEvent(popover, event); });
        };
        reports(&Popover::willShow, popoverEventWillShow);
        reports(&Popover::didShow, popoverEventDidShow);
        reports(&Popover::willClose, popoverEventWillClose);
        reports(&Popover::didClose, popoverEventDidClose);
        connect(popover, &Popover::shouldClose, popover, [popover](bool *answer) {
            if (asks(popover)) {
                *answer = answersYes(popover, popoverEventShouldClose);
            }
        });
        popover->contentView()->installEventFilter(this);
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
            } else if (mouse->buttons() & Qt::LeftButton && isAttached() &&
                       distance.manhattanLength() > QApplication::startDragDistance()) {
                m_pressedAt = position;
                detach(distance);
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // A detached popover has a frame until it is shown at a view again.
    bool isAttached() const { return m_popover->windowFlags() & Qt::FramelessWindowHint; }

    void detach(const QPoint &distance)
    {
        const QPointer<Popover> guard(m_popover);
        if (!asks(m_popover) || !answersYes(m_popover, popoverEventShouldDetach) || !guard) {
            return;
        }
        const QPoint position = m_popover->pos() + distance;
        CUI_DialogEventObj()->viewObj = nullptr;
        sendObjectEvent(m_popover, popoverEventDetachableWindow);
        if (!guard) {
            return;
        }
        const QPointer<QWidget> window = qobject_cast<QWidget *>(CUI_DialogEventObj()->viewObj);
        if (window) {
            m_popover->hide();
            window->move(position);
            window->show();
        } else {
            m_popover->setWindowFlags(Qt::Tool);
            m_popover->move(position);
            m_popover->show();
        }
        sendObjectEvent(m_popover, popoverEventDidDetach);
    }

    Popover *m_popover = nullptr;
    QPoint m_pressedAt;
};

// Null after an alert.
Popover *popoverWithTag(Tag tag)
{
    Popover *const popover = CUI_PopoverWithTag(tag);
    if (!popover) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find popover %1."), tag);
    }
    return popover;
}

} // namespace

void CUI_Popover(Tag tag, const QSizeF &contentSize, PopoverBehavior behavior)
{
    const Tag popoverTag = tagIdentity(tag);
    if (!canBeTag(popoverTag, QT_TRANSLATE_NOOP("Runtime", "A popover needs a tag from 1 to 1000000, not %1."))) {
        return;
    }
    if (CUI_WindowWithTag(popoverTag)) {
        showStatementAlert(QT_TRANSLATE_NOOP("Runtime", "Window tag error."),
                           QT_TRANSLATE_NOOP("Runtime", "Windows and Popovers cannot have same tag value."));
        return;
    }
    Popover *popover = CUI_PopoverWithTag(popoverTag);
    if (!popover) {
        popover = new Popover(popoverTag, contentSize.isEmpty() ? QSize(200, 100) : contentSize.toSize());
        setObjectWindowTag(popover, popoverTag);
        new PopoverEvents(popover);
    } else if (!contentSize.isEmpty()) {
        popover->contentView()->setFixedSize(contentSize.toSize());
    }
    popover->setBehavior(behavior);
    CUI_OutputWindowSetTag(popoverTag);
}

void PopoverSetAsks(Tag tag, bool asks)
{
    if (Popover *const popover = popoverWithTag(tag)) {
        popover->setProperty(asksKey, asks);
    }
}

void PopoverShow(Tag tag, Tag relativeToView, const QRectF &rect, Qt::Edge preferredEdge)
{
    Popover *const popover = popoverWithTag(tag);
    if (QWidget *const view = popover ? viewOfClass<QWidget>(relativeToView) : nullptr) {
        popover->showRelativeTo(view, rect.toRect(), preferredEdge);
    }
}

void PopoverClose(Tag tag)
{
    if (Popover *const popover = CUI_PopoverWithTag(tag)) {
        popover->close();
    }
}

void PopoverRemove(Tag tag)
{
    if (Popover *const popover = CUI_PopoverWithTag(tag)) {
        setObjectTag(popover, 0);
        popover->hide();
        popover->deleteLater();
    }
}

} // namespace tetrad
