#include <tetrad/controls/view_lookup.h>

#include "runtime/app/windows/output_window.h"
#include <tetrad/app/popover.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/control_statements.h>
#include <tetrad/controls/toolbar.h>
#include <tetrad/controls/view_sc.h>
#include <tetrad/strings/numbers.h>

#include <QAction>
#include <QTabWidget>
#include <QToolBar>

namespace tetrad {

namespace {

// A C++ class without Q_OBJECT looks like its base.
template <typename View>
bool isExactly(const QWidget *view)
{
    return view->metaObject() == &View::staticMetaObject;
}

bool isPlainView(const QWidget *view)
{
    return isExactly<QWidget>(view) || isExactly<ViewSC>(view);
}

// The tag of a view as lookups compare it.
Tag viewSearchTag(const QWidget *view)
{
    const bool byIdentifier = isPlainView(view) || isExactly<VisualEffectView>(view);
    return byIdentifier ? StringIntegerValue(view->objectName()) : objectTag(view);
}

QWidget *viewInTabs(const QTabWidget *tabView, Tag tag)
{
    for (int index = 0; index < tabView->count(); ++index) {
        if (QWidget *const found = CUI_ViewSubviewWithTag(tabView->widget(index), tag)) {
            return found;
        }
    }
    return nullptr;
}

QWidget *toolbarItemView(const QWidget *contentView, Tag tag)
{
    const QToolBar *const toolbar = CUI_WindowToolbar(contentView->window());
    QAction *const item = toolbar ? ToolbarItemWithTag(toolbar, tag) : nullptr;
    return item ? toolbar->widgetForAction(item) : nullptr;
}

} // namespace

QWidget *CUI_ViewWithTag(Tag tagOrView)
{
    if (tagOrView == 0) {
        return nullptr;
    }
    if (isObjectAddress(tagOrView)) {
        return qobject_cast<QWidget *>(objectFromTag(tagOrView));
    }
    const Popover *const popover = CUI_PopoverShown();
    if (QWidget *const found = popover ? CUI_ViewSubviewWithTag(popover->contentView(), tagOrView) : nullptr) {
        return found;
    }
    QWidget *const contentView = searchedContentView();
    if (!contentView || tagOrView == contentViewTag) {
        return contentView;
    }
    if (QWidget *const found = CUI_ViewSubviewWithTag(contentView, tagOrView)) {
        return found;
    }
    QWidget *const accessory = TitlebarAccessoryViewWithTag(tagOrView);
    return accessory ? accessory : toolbarItemView(contentView, tagOrView);
}

QWidget *CUI_ViewSubviewWithTag(QWidget *view, Tag tag)
{
    if (const auto *tabView = qobject_cast<QTabWidget *>(view)) {
        return viewInTabs(tabView, tag);
    }
    if (isExactly<SegmentedControlSC>(view)) {
        return nullptr;
    }
    for (QObject *const child : view->children()) {
        auto *const subview = qobject_cast<QWidget *>(child);
        // A dialog or a menu is a child of the view that opened it, but lies in a window of its own.
        if (!subview || subview->isWindow()) {
            continue;
        }
        if (viewSearchTag(subview) == tag) {
            return subview;
        }
        if (QWidget *const found = CUI_ViewSubviewWithTag(subview, tag)) {
            return found;
        }
    }
    return nullptr;
}

Tag CUI_ViewTag(const QWidget *view)
{
    const bool byIdentifier = isPlainView(view) || isExactly<ContentViewSC>(view);
    return byIdentifier ? StringIntegerValue(view->objectName()) : objectTag(view);
}

Tag CUI_ViewWindowTag(const QWidget *view)
{
    return objectTag(view->window());
}

} // namespace tetrad
