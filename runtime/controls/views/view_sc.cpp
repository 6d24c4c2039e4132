#include <tetrad/controls/view_sc.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/events/current_event.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/events/view_relay.h>

#include <QApplication>
#include <QFocusEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tetrad {

namespace {

// Whether the platform chose the view: by Tab, or as the first of a window that became active.
bool isPlatformsChoice(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
}

} // namespace

ViewSC::ViewSC(QWidget *parent) : EventView(parent)
{
    setMouseTracking(true);
    // A click sends the question first, so the platform must not give the focus on its own.
    setFocusPolicy(Qt::TabFocus);
}

void ViewSC::setDraggedTypes(const QStringList &types)
{
    m_draggedTypes = types;
    setAcceptDrops(!types.isEmpty());
}

void ViewSC::awakeFromNib()
{
    CUI_ViewSubclassAwakeFromNib(source());
}

ReportingView ViewSC::source()
{
    return {this, CUI_ViewTag(this), CUI_ViewWindowTag(this)};
}

bool ViewSC::acceptsDrag(const QMimeData &dragged) const
{
    return std::any_of(m_draggedTypes.begin(), m_draggedTypes.end(),
                       [&dragged](const QString &type) { return dragged.hasFormat(type); });
}

bool ViewSC::report(QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress && !hasFocus()) {
        const QPointer<ViewSC> guard(this);
        const bool accepts = CUI_ViewSubclassAcceptsFirstResponder(source());
        if (!guard) {
            return true;
        }
        if (accepts) {
            setFocus(Qt::MouseFocusReason);
        }
    }
    return EventView::report(event);
}

bool ViewSC::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Resize:
        callSoon(this, [this] { CUI_ViewSubclassResetCursorRects(source()); });
        break;
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        callSoon(this, [this] { CUI_ViewSubclassAppearanceChanged(source()); });
        break;
    default:
        break;
    }
    return EventView::event(event);
}

void ViewSC::paintEvent(QPaintEvent *event)
{
    const CurrentEventScope scope(event);
    if (CUI_ViewSubclassWantsUpdateLayer(source())) {
        CUI_ViewSubclassUpdateLayer(source());
    } else {
        CUI_ViewSubclassDrawRect(source(), event->rect());
    }
}

void ViewSC::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (isPlatformsChoice(event->reason())) {
        m_searchStart = this;
        callSoon(this, [this, forward = event->reason() != Qt::BacktabFocusReason] { confirmFocus(forward); });
    }
}

// A view that refuses the keyboard passes it on, until the view where the search began would have it again.
void ViewSC::confirmFocus(bool forward)
{
    const QPointer<ViewSC> guard(this);
    if (!hasFocus() || CUI_ViewSubclassAcceptsFirstResponder(source()) || !guard || !hasFocus()) {
        return;
    }
    focusNextPrevChild(forward);
    auto *const next = qobject_cast<ViewSC *>(QApplication::focusWidget());
    if (next && (next == this || next == m_searchStart)) {
        next->clearFocus();
    } else if (next) {
        next->m_searchStart = m_searchStart;
    }
}

void VisualEffectView::setCoverage(qreal coverage)
{
    m_coverage = std::clamp(coverage, 0.0, 1.0);
    update();
}

void VisualEffectView::paintEvent(QPaintEvent *event)
{
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(float(m_coverage));
    QPainter(this).fillRect(event->rect(), veil);
}

void CUI_ViewSubclass(Tag tag, const QRectF &rect)
{
    statementView<ViewSC>(tag, rect, [tag](ViewSC *made) { made->setObjectName(QString::number(tagIdentity(tag))); });
}

} // namespace tetrad
