#include <tetrad/controls/view_lookup.h>

#include "runtime/app/windows/output_window.h"
#include "runtime/controls/lookup/class_names.h"
#include "runtime/controls/lookup/typed_lookup.h"
#include "runtime/controls/lookup/view_tag.h"
#include "runtime/controls/statements/titlebar_accessory.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/toolbar.h>
#include <tetrad/strings/numbers.h>

#include <QAction>
#include <QTabWidget>
#include <QToolBar>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QWidget *viewInShownPopover(Tag tag)
{
    const Popover *const popover = CUI_PopoverShown();
    return popover ? CUI_ViewSubviewWithTag(popover->contentView(), tag) : nullptr;
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
    if (QWidget *const found = viewInShownPopover(tagOrView)) {
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
    if (isExactlyViewClass(view, u"NSSegmentedControl")) {
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

QWidget *TitlebarAccessoryViewWithTag(Tag tag)
{
    const auto *const window = qobject_cast<Window *>(CUI_OutputWindow());
    if (!window || !(window->styleMask() & windowStyleTitled)) {
        return nullptr;
    }
    for (QWidget *const view : titlebarAccessoryViews(window)) {
        if (StringIntegerValue(view->objectName()) == tag) {
            return view;
        }
        if (QWidget *const found = CUI_ViewSubviewWithTag(view, tag)) {
            return found;
        }
    }
    return nullptr;
}

QWidget *CUI_ValidateViewKindOfClass(Tag tagOrView, const QString &className)
{
    return validatedView(tagOrView, {className});
}

QWidget *ControlWithTag(Tag tagOrControl)
{
    return CUI_ValidateViewKindOfClass(tagOrControl, u"NSControl"_s);
}

} // namespace tetrad
