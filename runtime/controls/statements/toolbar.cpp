#include <tetrad/controls/toolbar.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/event_codes.h>
#include <tetrad/strings/numbers.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>

namespace tetrad {

namespace {

// Asks whether a tool bar's item is enabled, now and after what the user did may have changed it. The item may be gone
// afterwards.
class ItemValidator : public QTimer
{
public:
    explicit ItemValidator(QAction *item) : QTimer(item)
    {
        setSingleShot(true);
        callOnTimeout(item, [item] {
            const QPointer<QAction> guard(item);
            const bool enabled = answersYes(item, toolbarEventValidateItem);
            if (guard) {
                item->setEnabled(enabled);
            }
        });
        QCoreApplication::instance()->installEventFilter(this);
        start(0);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        static constexpr QEvent::Type occasions[] = {QEvent::WindowActivate, QEvent::MouseButtonRelease,
                                                     QEvent::KeyRelease};
        if (std::ranges::count(occasions, event->type()) > 0) {
            start(0);
        }
        return QTimer::eventFilter(watched, event);
    }
};

Window *targetWindow()
{
    Tag wndTag = 0;
    auto *const window = qobject_cast<Window *>(CUI_TargetWindow(&wndTag));
    if (!window) {
        showNoWindowsError();
    }
    return window;
}

QToolBar *newToolbar(Window *window)
{
    auto *const toolbar = new QToolBar(window);
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
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
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find tool bar %1 in window %2."), toolbarTag, window->tag());
        return nullptr;
    }
    if (itemTag == 0) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "A tool bar item cannot have the tag 0."));
        return nullptr;
    }
    return toolbar;
}

QAction *addItem(QToolBar *toolbar, QAction *item, Tag tag)
{
    setObjectTag(item, tag);
    setObjectWindowTag(item, objectWindowTag(toolbar));
    QObject::connect(
        item, &QAction::triggered, item, [item] { sendObjectEvent(item, toolbarEventItemAction); },
        Qt::QueuedConnection);
    toolbar->addAction(item);
    return item;
}

// The corner of the menu bar is the nearest to the title that a program can draw in here.
QWidget *accessoryRow(const Window *window)
{
    return window->menuBar()->cornerWidget(Qt::TopRightCorner);
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
    return objectWithTag(toolbar->actions(), tag);
}

QToolBar *CUI_Toolbar(Tag tag)
{
    if (tag == 0) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "A tool bar cannot have the tag 0."));
        return nullptr;
    }
    Window *const window = targetWindow();
    if (!window) {
        return nullptr;
    }
    QToolBar *toolbar = CUI_WindowToolbar(window);
    if (!toolbar) {
        toolbar = newToolbar(window);
    }
    setObjectTag(toolbar, tagIdentity(tag));
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
        delete item->findChild<QTimer *>();
        if (validates) {
            new ItemValidator(item);
        }
    } else if (toolbar) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find item %1 in tool bar %2."), itemTag, toolbarTag);
    }
}

void WindowAddTitlebarAccessoryView(Tag wndTag, Tag view)
{
    Window *const window = CUI_WindowWithTag(wndTag);
    if (!window) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find window %1."), wndTag);
        return;
    }
    QWidget *const added = viewOfClass<QWidget>(view);
    if (!added) {
        return;
    }
    QWidget *row = accessoryRow(window);
    if (!row) {
        row = new QWidget(window);
        (new QHBoxLayout(row))->setContentsMargins(0, 0, 0, 0);
        window->menuBar()->setCornerWidget(row, Qt::TopRightCorner);
    }
    setWindowTagWithin(added, window->tag());
    row->layout()->addWidget(added);
    added->show();
    row->show();
}

QWidget *TitlebarAccessoryViewWithTag(Tag tag)
{
    const auto *const window = qobject_cast<Window *>(CUI_OutputWindow());
    const bool hasTitle = window && window->styleMask() & windowStyleTitled;
    const QWidget *const row = hasTitle ? accessoryRow(window) : nullptr;
    for (int index = 0; row && index < row->layout()->count(); ++index) {
        QWidget *const view = row->layout()->itemAt(index)->widget();
        if (StringIntegerValue(view->objectName()) == tag) {
            return view;
        }
        if (QWidget *const found = CUI_ViewSubviewWithTag(view, tag)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace tetrad
