#include "runtime/controls/statements/titlebar_accessory.h"

#include "runtime/app/process/strings_table.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/typed_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/toolbar.h>

#include <QHBoxLayout>
#include <QMenuBar>

namespace tetrad {

namespace {

// The corner of the menu bar is the nearest to the title that a program can draw in here.
QWidget *accessoryRow(const Window *window)
{
    return window->menuBar()->cornerWidget(Qt::TopRightCorner);
}

} // namespace

void WindowAddTitlebarAccessoryView(Tag wndTag, Tag view)
{
    Window *const window = CUI_WindowWithTag(wndTag);
    if (!window) {
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "Can't find window %1.")).arg(wndTag));
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

QList<QWidget *> titlebarAccessoryViews(const Window *window)
{
    QList<QWidget *> views;
    if (const QWidget *const row = accessoryRow(window)) {
        for (int index = 0; index < row->layout()->count(); ++index) {
            views.append(row->layout()->itemAt(index)->widget());
        }
    }
    return views;
}

} // namespace tetrad
