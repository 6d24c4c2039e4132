#include <tetrad/console/console_view.h>

#include <tetrad/app/content_view.h>
#include <tetrad/app/modal.h>

#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace tetrad {

CUI_PrintToWindowScrollView::CUI_PrintToWindowScrollView(QWidget *contentView) : QScrollArea(contentView)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(contentView->rect());
    // A console can be scrolled and copied from at any time.
    setWorksWhenModal(this, true);
    viewport()->setAutoFillBackground(false);
    contentView->installEventFilter(this);
    lower();
    show();
}

void CUI_PrintToWindowScrollView::setDocumentView(CUI_PrintToWindowView *view)
{
    setWidget(view);
    view->setAutoFillBackground(false);
    view->show();
}

CUI_PrintToWindowView *CUI_PrintToWindowScrollView::documentView() const
{
    return qobject_cast<CUI_PrintToWindowView *>(widget());
}

QColor CUI_PrintToWindowScrollView::plainGround() const
{
    const auto *content = qobject_cast<const ContentViewSC *>(parentWidget());
    if (!content || content->subclassFlag() || content->backgroundColor().alpha() != 255) {
        return {};
    }
    const QObjectList &views = content->children();
    const auto lowest = std::ranges::find_if(views, &QObject::isWidgetType);
    return *lowest == this ? content->backgroundColor() : QColor();
}

void CUI_PrintToWindowScrollView::reveal(const QRectF &rect)
{
    QScrollBar *bar = verticalScrollBar();
    if (rect.top() < bar->value()) {
        bar->setValue(static_cast<int>(std::floor(rect.top())));
    } else if (rect.bottom() > bar->value() + viewport()->height()) {
        bar->setValue(static_cast<int>(std::ceil(rect.bottom())) - viewport()->height());
    }
}

bool CUI_PrintToWindowScrollView::eventFilter(QObject *object, QEvent *event)
{
    if (object == parentWidget() && event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QScrollArea::eventFilter(object, event);
}

void CUI_PrintToWindowScrollView::resizeEvent(QResizeEvent *event)
{
    if (QWidget *view = widget()) {
        view->resize(viewport()->width(), view->height());
        view->update();
    }
    QScrollArea::resizeEvent(event);
}

} // namespace tetrad
