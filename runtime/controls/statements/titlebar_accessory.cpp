#include <tetrad/controls/toolbar.h>

#include <tetrad/app/window.h>

#include <QHBoxLayout>
#include <QMenuBar>

namespace tetrad {

namespace {

// The corner of the menu bar is the place nearest to the title that a program can draw in here.
QWidget *accessoryRow(const Window *window)
{
    return window->menuBar()->cornerWidget(Qt::TopRightCorner);
}

} // namespace

void CUI_WindowAddTitlebarAccessoryView(Window *window, QWidget *view)
{
    QWidget *row = accessoryRow(window);
    if (!row) {
        row = new QWidget(window);
        (new QHBoxLayout(row))->setContentsMargins(0, 0, 0, 0);
        window->menuBar()->setCornerWidget(row, Qt::TopRightCorner);
    }
    row->layout()->addWidget(view);
    view->show();
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
