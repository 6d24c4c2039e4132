#include <tetrad/app/content_view.h>

#include "runtime/controls/events/current_event.h"
#include <tetrad/events/view_relay.h>

#include <QFileInfo>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tetrad {

ContentViewSC::ContentViewSC(QWidget *parent) : EventView(parent)
{
    setObjectName(QString::number(contentViewTag));
    setMouseTracking(true);
    setAcceptDrops(true);
}

void ContentViewSC::setResponderFlag(bool flag)
{
    m_responderFlag = flag;
    setFocusPolicy(flag ? Qt::StrongFocus : Qt::NoFocus);
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

ReportingView ContentViewSC::source()
{
    return {this, contentViewTag, objectTag(window())};
}

bool ContentViewSC::acceptsDrag(const QMimeData &dragged) const
{
    const QList<QUrl> urls = dragged.urls();
    const auto matches = [this](const QUrl &url) {
        return m_dragFileExtensions.contains(QFileInfo(url.path()).suffix(), Qt::CaseInsensitive);
    };
    return std::any_of(urls.begin(), urls.end(), matches) ||
           std::any_of(m_dragFileTypes.begin(), m_dragFileTypes.end(),
                       [&dragged](const QString &type) { return dragged.hasFormat(type); });
}

void ContentViewSC::paintEvent(QPaintEvent *event)
{
    // The painter must be gone before the program draws with its own.
    QPainter(this).fillRect(event->rect(), backgroundColor());
    if (m_subclassFlag) {
        const CurrentEventScope scope(event);
        CUI_ViewSubclassDrawRect(source(), event->rect());
    }
}

} // namespace tetrad
