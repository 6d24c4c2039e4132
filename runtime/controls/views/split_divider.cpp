#include "runtime/controls/views/split_divider.h"

#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/controls/split_view.h>
#include <tetrad/events/event_codes.h>

#include <QMouseEvent>
#include <QPainter>

namespace tetrad {

SplitDivider::SplitDivider(Qt::Orientation orientation, SplitViewSC *splitView)
    : QSplitterHandle(orientation, splitView), m_splitView(splitView)
{}

void SplitDivider::setHiddenByProgram(bool hidden)
{
    m_isHiddenByProgram = hidden;
    setAttribute(Qt::WA_TransparentForMouseEvents, hidden);
    update();
}

void SplitDivider::paintEvent(QPaintEvent *event)
{
    if (m_isHiddenByProgram) {
        return;
    }
    CUI_DialogEventObj()->rectVal = rect();
    CUI_DialogEventObj()->viewObj = this;
    CUI_DialogEventObj()->longVal = index();
    if (answersYes(m_splitView, splitViewEventDrawDivider)) {
        return;
    }
    if (m_splitView->dividerColor().isValid()) {
        QPainter(this).fillRect(event->rect(), m_splitView->dividerColor());
    } else {
        QSplitterHandle::paintEvent(event);
    }
}

void SplitDivider::mousePressEvent(QMouseEvent *event)
{
    m_grip = along(event->position().toPoint());
    QSplitterHandle::mousePressEvent(event);
}

void SplitDivider::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        const QPoint place = m_splitView->mapFromGlobal(event->globalPosition().toPoint());
        m_splitView->setPosition(along(place) - m_grip, index());
    }
}

int SplitDivider::along(const QPoint &point) const
{
    return orientation() == Qt::Horizontal ? point.x() : point.y();
}

// The platform also counts one before the first subview, which is never seen.
int SplitDivider::index() const
{
    return m_splitView->indexOf(const_cast<SplitDivider *>(this)) - 1;
}

} // namespace tetrad
