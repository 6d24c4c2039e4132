#include "runtime/controls/statements/view_statement.h"

#include "runtime/app/process/strings_table.h"
#include "runtime/app/windows/output_window.h"
#include "runtime/controls/dispatch/input_watch.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/view_tag.h"
#include <tetrad/controls/view_lookup.h>

#include <QWidget>

namespace tetrad {

QWidget *contentViewForStatement(Tag tag)
{
    if (tag == 0 || isObjectAddress(tagIdentity(tag))) {
        const char *const text = QT_TRANSLATE_NOOP("Runtime", "A view needs a tag from 1 to 1000000, not %1.");
        showTagError(runtimeText(text).arg(tag));
        return nullptr;
    }
    return viewOfClass<QWidget>(contentViewTag);
}

void adoptView(QWidget *view, Tag tag)
{
    setViewTag(view, tagIdentity(tag));
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
    const QPoint place = inner->pos();
    inner->setParent(outer);
    inner->move(place);
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
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "A content view stays in its window.")));
        return;
    }
    view->hide();
    view->setParent(nullptr);
    view->deleteLater();
}

} // namespace tetrad
