#include <tetrad/app/popover.h>

#include "runtime/app/process/tag_registry.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/modal.h>

#include <QCloseEvent>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

namespace tetrad {

namespace {

QPoint positionAtEdge(const QRect &anchor, const QSize &size, Qt::Edge edge)
{
    const QPoint centred = anchor.center() - QRect(QPoint(), size).center();
    switch (edge) {
    case Qt::TopEdge:
        return {centred.x(), anchor.top() - size.height()};
    case Qt::LeftEdge:
        return {anchor.left() - size.width(), centred.y()};
    case Qt::RightEdge:
        return {anchor.right() + 1, centred.y()};
    case Qt::BottomEdge:
        break;
    }
    return {centred.x(), anchor.bottom() + 1};
}

} // namespace

Popover::Popover(Tag tag, const QSize &contentSize) : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
{
    m_contentView = new ContentViewSC(this);
    auto *const box = new QVBoxLayout(this);
    box->setContentsMargins(1, 1, 1, 1);
    box->setSizeConstraint(QLayout::SetFixedSize);
    box->addWidget(m_contentView);
    m_contentView->setFixedSize(contentSize);
    setObjectTag(this, tag);
    setWorksWhenModal(this, true);
    TagRegistry<Popover>::instance().add(this);
}

Popover::~Popover()
{
    TagRegistry<Popover>::instance().remove(this);
}

void Popover::showRelativeTo(QWidget *view, const QRect &rect, Qt::Edge preferredEdge)
{
    // A popup is what the window system closes on a click outside, and Qt on Escape.
    setWindowFlags((m_behavior == popoverTransient ? Qt::Popup : Qt::Tool) | Qt::FramelessWindowHint);
    const QRect local = rect.isEmpty() ? view->rect() : rect;
    const QRect anchor(view->mapToGlobal(local.topLeft()), local.size());
    const QRect screenArea = view->screen()->availableGeometry();
    adjustSize();
    const QRect preferred(positionAtEdge(anchor, size(), preferredEdge), size());
    const QRect opposite(anchor.topLeft() + anchor.bottomRight() - preferred.bottomRight(), size());
    const bool changesSides = !screenArea.contains(preferred) && screenArea.contains(opposite);
    const QPointer<Popover> guard(this);
    Q_EMIT willShow();
    if (!guard) {
        return;
    }
    TagRegistry<Popover>::instance().bringToFront(this);
    move(changesSides ? opposite.topLeft() : preferred.topLeft());
    show();
    Q_EMIT didShow();
}

void Popover::closeEvent(QCloseEvent *event)
{
    const QPointer<Popover> guard(this);
    bool closes = true;
    Q_EMIT shouldClose(&closes);
    if (!closes || !guard) {
        event->setAccepted(closes);
        return;
    }
    Q_EMIT willClose();
    if (guard) {
        hide();
        Q_EMIT didClose();
    }
}

Popover *CUI_PopoverWithTag(Tag tag)
{
    return tag == 0 ? nullptr : TagRegistry<Popover>::instance().withTag(tagIdentity(tag));
}

Popover *CUI_PopoverShown()
{
    return TagRegistry<Popover>::instance().frontVisible();
}

} // namespace tetrad
