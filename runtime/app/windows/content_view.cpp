#include <tetrad/app/content_view.h>

#include "runtime/controls/events/current_event.h"
#include "runtime/controls/events/view_event_code.h"
#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace tetrad {

ContentViewSC::ContentViewSC(QWidget *parent) : QWidget(parent)
{
    setObjectName(QString::number(contentViewTag));
    setMouseTracking(true);
}

void ContentViewSC::setResponderFlag(bool flag)
{
    m_responderFlag = flag;
    setFocusPolicy(flag ? Qt::StrongFocus : Qt::NoFocus);
}

void ContentViewSC::setDragFileTypes(const QStringList &types)
{
    m_dragFileTypes = types;
    setAcceptDrops(!m_dragFileTypes.isEmpty() || !m_dragFileExtensions.isEmpty());
}

void ContentViewSC::setDragFileExtensions(const QStringList &extensions)
{
    m_dragFileExtensions = extensions;
    setAcceptDrops(!m_dragFileTypes.isEmpty() || !m_dragFileExtensions.isEmpty());
}

void ContentViewSC::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    update();
}

QColor ContentViewSC::backgroundColor() const
{
    return m_backgroundColor.isValid() ? m_backgroundColor : palette().color(QPalette::Window);
}

bool ContentViewSC::event(QEvent *event)
{
    const qint64 code = m_subclassFlag ? viewEventCode(event) : 0;
    return (code && reports(code, event)) || QWidget::event(event);
}

void ContentViewSC::paintEvent(QPaintEvent *event)
{
    // The painter must be gone before the program draws with its own.
    QPainter(this).fillRect(event->rect(), backgroundColor());
    if (m_subclassFlag) {
        CUI_DialogEventObj()->rectVal = event->rect();
        reports(viewEventDraw, event);
    }
}

void ContentViewSC::contextMenuEvent(QContextMenuEvent *event)
{
    event->ignore();
    if (!m_subclassFlag) {
        return;
    }
    const QPoint position = event->globalPos();
    CUI_DialogEventObj()->menuObj = nullptr;
    if (reports(viewEventMenu, event)) {
        event->accept();
    } else if (auto *menu = qobject_cast<QMenu *>(CUI_DialogEventObj()->menuObj)) {
        event->accept();
        menu->popup(position);
    }
}

void ContentViewSC::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_subclassFlag || !acceptsDrag(event->mimeData())) {
        return;
    }
    m_dragInside = true;
    event->acceptProposedAction();
    reports(viewEventDraggingEntered, event);
}

void ContentViewSC::dragLeaveEvent(QDragLeaveEvent *event)
{
    if (std::exchange(m_dragInside, false)) {
        reports(viewEventDraggingExited, event);
    }
}

void ContentViewSC::dropEvent(QDropEvent *event)
{
    m_dragInside = false;
    CUI_DialogEventObj()->arrayObj.clear();
    for (const QUrl &url : event->mimeData()->urls()) {
        CUI_DialogEventObj()->arrayObj.append(url);
    }
    event->setAccepted(reports(viewEventPerformDrag, event));
}

// Returns true when the event needs no default handling: the program handled it, or the view is gone.
bool ContentViewSC::reports(qint64 code, QEvent *event)
{
    const QPointer<ContentViewSC> guard(this);
    const Tag wndTag = objectTag(window());
    CUI_DialogEventObj()->boolVal = false;
    const CurrentEventScope scope(event);
    CUI_OutputWindowSetTag(wndTag);
    CallUserDefinedOnDialogFunction(code, contentViewTag, wndTag, code == viewEventDraw ? 0 : tagFromEvent(event));
    return !guard || CUI_DialogEventObj()->boolVal;
}

bool ContentViewSC::acceptsDrag(const QMimeData *dragged) const
{
    const QList<QUrl> urls = dragged->urls();
    const auto matches = [this](const QUrl &url) {
        return m_dragFileExtensions.contains(QFileInfo(url.path()).suffix(), Qt::CaseInsensitive);
    };
    return std::any_of(urls.begin(), urls.end(), matches) ||
           std::any_of(m_dragFileTypes.begin(), m_dragFileTypes.end(),
                       [dragged](const QString &type) { return dragged->hasFormat(type); });
}

} // namespace tetrad
