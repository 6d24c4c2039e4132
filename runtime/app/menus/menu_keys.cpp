#include "runtime/app/menus/menu_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QShortcut>

namespace tetrad {

namespace {

void openFirstMenu(QMenuBar *bar)
{
    for (QAction *title : bar->actions()) {
        if (title->isVisible() && title->isEnabled() && title->menu()) {
            bar->setActiveAction(title);
            return;
        }
    }
}

QMenuBar *barShowing(const QMenu *menu)
{
    for (QObject *each : menu->menuAction()->associatedObjects()) {
        auto *bar = qobject_cast<QMenuBar *>(each);
        if (bar && bar->activeAction() == menu->menuAction()) {
            return bar;
        }
    }
    return nullptr;
}

class EscapeFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
            return false;
        }
        const QPointer<QMenu> menu = static_cast<QMenu *>(watched);
        QMenuBar *bar = barShowing(menu);
        if (!bar) {
            return false;
        }
        // A bar that was entered by key gives the keyboard back to where it came from.
        QCoreApplication::sendEvent(bar, event);
        if (menu) {
            menu->close();
        }
        return true;
    }
};

} // namespace

void openWithF10(QMenuBar *bar)
{
    auto *shortcut = new QShortcut(Qt::Key_F10, bar);
    QObject::connect(shortcut, &QShortcut::activated, bar, [bar] { openFirstMenu(bar); });
}

void leaveBarWithEscape(QMenu *menu)
{
    menu->installEventFilter(new EscapeFilter(menu));
}

} // namespace tetrad
