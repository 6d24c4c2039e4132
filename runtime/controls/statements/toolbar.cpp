#include <tetrad/controls/toolbar.h>

#include "runtime/app/process/strings_table.h"
#include "runtime/controls/dispatch/toolbar_events.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/typed_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>

#include <QAction>
#include <QToolBar>
#include <QWidgetAction>

namespace tetrad {

namespace {

Window *targetWindow()
{
    Tag wndTag = 0;
    auto *const window = qobject_cast<Window *>(CUI_TargetWindow(&wndTag));
    if (!window) {
        showNoWindowsError();
    }
    return window;
}

QToolBar *newToolbar(Window *window, Tag tag)
{
    auto *const toolbar = new QToolBar(window);
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setObjectTag(toolbar, tag);
    setObjectWindowTag(toolbar, window->tag());
    window->addToolBar(toolbar);
    return toolbar;
}

// Null after an alert.
QToolBar *toolbarForItem(Tag toolbarTag, Tag itemTag)
{
    const Window *const window = targetWindow();
    if (!window) {
        return nullptr;
    }
    QToolBar *const toolbar = CUI_WindowToolbar(window);
    if (!toolbar || CUI_ToolbarTag(toolbar) != toolbarTag) {
        const char *const text = QT_TRANSLATE_NOOP("Runtime", "Can't find tool bar %1 in window %2.");
        showTagError(runtimeText(text).arg(QString::number(toolbarTag), QString::number(window->tag())));
        return nullptr;
    }
    if (itemTag == 0) {
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "A tool bar item cannot have the tag 0.")));
        return nullptr;
    }
    return toolbar;
}

QAction *addItem(QToolBar *toolbar, QAction *item, Tag tag)
{
    setObjectTag(item, tag);
    setObjectWindowTag(item, objectWindowTag(toolbar));
    reportToolbarItemEvents(item);
    toolbar->addAction(item);
    return item;
}

} // namespace

QToolBar *CUI_WindowToolbar(const QWidget *window)
{
    for (QToolBar *const toolbar : window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (CUI_ToolbarTag(toolbar) != 0) {
            return toolbar;
        }
    }
    return nullptr;
}

Tag CUI_ToolbarTag(const QToolBar *toolbar)
{
    return objectTag(toolbar);
}

QAction *ToolbarItemWithTag(const QToolBar *toolbar, Tag tag)
{
    for (QAction *const item : toolbar->actions()) {
        if (tag != 0 && objectTag(item) == tag) {
            return item;
        }
    }
    return nullptr;
}

QToolBar *CUI_Toolbar(Tag tag)
{
    if (tag == 0) {
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "A tool bar cannot have the tag 0.")));
        return nullptr;
    }
    Window *const window = targetWindow();
    if (!window) {
        return nullptr;
    }
    QToolBar *toolbar = CUI_WindowToolbar(window);
    if (toolbar) {
        setObjectTag(toolbar, tagIdentity(tag));
    } else {
        toolbar = newToolbar(window, tagIdentity(tag));
    }
    toolbar->setVisible(tag > 0);
    return toolbar;
}

QAction *CUI_ToolbarAddItem(Tag toolbarTag, Tag itemTag, const QString &label)
{
    QToolBar *const toolbar = toolbarForItem(toolbarTag, itemTag);
    if (!toolbar) {
        return nullptr;
    }
    QAction *item = ToolbarItemWithTag(toolbar, itemTag);
    if (!item) {
        item = addItem(toolbar, new QAction(toolbar), itemTag);
    }
    if (!label.isNull()) {
        item->setText(label);
    }
    return item;
}

QAction *CUI_ToolbarAddViewItem(Tag toolbarTag, Tag itemTag, Tag view)
{
    QToolBar *const toolbar = toolbarForItem(toolbarTag, itemTag);
    QWidget *const shown = toolbar ? viewOfClass<QWidget>(view) : nullptr;
    if (!shown) {
        return nullptr;
    }
    setWindowTagWithin(shown, objectWindowTag(toolbar));
    auto *const item = new QWidgetAction(toolbar);
    item->setDefaultWidget(shown);
    return addItem(toolbar, item, itemTag);
}

void ToolbarItemSetValidates(Tag toolbarTag, Tag itemTag, bool validates)
{
    const QToolBar *const toolbar = toolbarForItem(toolbarTag, itemTag);
    if (QAction *const item = toolbar ? ToolbarItemWithTag(toolbar, itemTag) : nullptr) {
        setToolbarItemValidates(item, validates);
    } else if (toolbar) {
        const char *const text = QT_TRANSLATE_NOOP("Runtime", "Can't find item %1 in tool bar %2.");
        showTagError(runtimeText(text).arg(QString::number(itemTag), QString::number(toolbarTag)));
    }
}

} // namespace tetrad
