#include <tetrad/controls/toolbar.h>

#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/strings/numbers.h>

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
