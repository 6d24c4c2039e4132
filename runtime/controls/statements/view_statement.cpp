#include "runtime/controls/statements/view_statement.h"

#include "runtime/app/windows/output_window.h"
#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/controls/view_lookup.h>

#include <QWidget>

namespace tetrad {

QWidget *contentViewForStatement(Tag tag)
{
    return canBeTag(tag, QT_TRANSLATE_NOOP("Runtime", "A view needs a tag from 1 to 1000000, not %1."))
               ? viewOfClass<QWidget>(contentViewTag)
               : nullptr;
}

void adoptView(QWidget *view, Tag tag)
{
    setObjectTag(view, tagIdentity(tag));
    setObjectWindowTag(view, CUI_ViewWindowTag(view));
    view->adjustSize();
    watchInput();
}

void setWindowTagWithin(QWidget *view, Tag wndTag)
{
    setObjectWindowTag(view, wndTag);
    for (QWidget *const inner : view->findChildren<QWidget *>()) {
        setObjectWindowTag(inner, wndTag);
    }
}

void placeView(QWidget *view, Tag tag, const QRectF &rect)
{
    if (!rect.isEmpty()) {
        view->setGeometry(rect.toRect());
    }
    view->setVisible(tag > 0);
}

void ViewAddSubview(Tag superview, Tag subview)
{
    QWidget *const outer = viewOfClass<QWidget>(superview);
    QWidget *const inner = outer ? viewOfClass<QWidget>(subview) : nullptr;
    // A view cannot lie in itself or in its own subview.
    if (!inner || inner == outer || inner->isAncestorOf(outer)) {
        return;
    }
    const bool wasShown = !inner->isHidden();
    const QPoint position = inner->pos();
    inner->setParent(outer);
    inner->move(position);
    inner->setVisible(wasShown);
    setWindowTagWithin(inner, CUI_ViewWindowTag(outer));
}

void ViewRemoveFromSuperview(Tag tag)
{
    QWidget *const view = viewOfClass<QWidget>(tag);
    if (!view) {
        return;
    }
    if (view == contentViewOf(view->window()) || view->isWindow()) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "A content view stays in its window."));
        return;
    }
    view->setParent(nullptr);
    view->deleteLater();
}

} // namespace tetrad
