#include "runtime/controls/statements/view_statement.h"

#include "runtime/app/process/strings_table.h"
#include "runtime/controls/lookup/class_names.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/view_tag.h"
#include <tetrad/controls/view_lookup.h>

#include <QWidget>

namespace tetrad {

using namespace Qt::StringLiterals;

QWidget *contentViewForStatement(Tag tag)
{
    if (tag == 0 || isObjectAddress(tagIdentity(tag))) {
        const char *const text = QT_TRANSLATE_NOOP("Runtime", "A view needs a tag from 1 to 1000000, not %1.");
        showTagError(runtimeText(text).arg(tag));
        return nullptr;
    }
    return CUI_ValidateViewKindOfClass(contentViewTag, u"NSView"_s);
}

QWidget *viewForStatement(Tag tag)
{
    return CUI_ViewWithTag(tagIdentity(tag));
}

void showStatementClassError(Tag tag, const QWidget *view, const QMetaObject &wanted)
{
    showClassError(tagIdentity(tag), view, CUI_ViewWindowTag(view), viewClassName(wanted));
}

void adoptView(QWidget *view, Tag tag)
{
    setViewTag(view, tagIdentity(tag));
    setObjectWindowTag(view, CUI_ViewWindowTag(view));
    view->adjustSize();
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
    QWidget *const outer = CUI_ValidateViewKindOfClass(superview, u"NSView"_s);
    QWidget *const inner = outer ? CUI_ValidateViewKindOfClass(subview, u"NSView"_s) : nullptr;
    // A view cannot lie in itself or in its own subview.
    if (!inner || inner == outer || inner->isAncestorOf(outer)) {
        return;
    }
    const bool wasShown = !inner->isHidden();
    const QPoint place = inner->pos();
    inner->setParent(outer);
    inner->move(place);
    inner->setVisible(wasShown);
    setObjectWindowTag(inner, CUI_ViewWindowTag(outer));
}

void ViewRemoveFromSuperview(Tag tag)
{
    if (QWidget *const view = CUI_ValidateViewKindOfClass(tag, u"NSView"_s)) {
        view->hide();
        view->setParent(nullptr);
        view->deleteLater();
    }
}

} // namespace tetrad
