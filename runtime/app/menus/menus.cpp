#include <tetrad/app/menus.h>

#include "runtime/app/menus/edit_actions.h"
#include "runtime/app/menus/mnemonic.h"
#include "runtime/app/process/termination.h"
#include <tetrad/app/application.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QShortcut>

#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

MainMenu *theMainMenu = nullptr;
QList<QPointer<QMenuBar>> bars;

MainMenu *takeMainMenu()
{
    if (!theMainMenu) {
        theMainMenu = new MainMenu{u"MainMenu"_s, {}};
#ifdef Q_OS_MACOS
        showMainMenuIn(new QMenuBar(nullptr));
#endif
    }
    return theMainMenu;
}

QAction *addItem(QMenu *menu, const QString &title, QAction::MenuRole role)
{
    QAction *item = menu->addAction(title);
    item->setMenuRole(role);
    return item;
}

// It keeps its position in the bar but stays hidden until it has a title.
QMenu *makeUntitledMenu()
{
    auto *menu = new QMenu;
    QAction *item = menu->menuAction();
    item->setVisible(false);
    QObject::connect(item, &QAction::changed, item, [item] { item->setVisible(!item->text().isEmpty()); });
    return menu;
}

template <typename Function>
void forEachShortcut(Function function)
{
    const QList<QMenu *> menus = theMainMenu ? theMainMenu->menus : QList<QMenu *>();
    for (const QMenu *menu : menus) {
        for (QAction *action : menu->actions()) {
            if (!action->shortcut().isEmpty()) {
                function(action);
            }
        }
    }
}

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

// Escape in the open menu of a bar closes it and gives the keyboard back at once, to the widget that had it before the
// menu. Without this the bar would keep it until a second Escape, and what is typed meanwhile would be lost.
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

// F10 opens the first menu of the bar, as a tapped Alt goes to the bar without opening one.
void openWithF10(QMenuBar *bar)
{
    auto *shortcut = new QShortcut(Qt::Key_F10, bar);
    QObject::connect(shortcut, &QShortcut::activated, bar, [bar] { openFirstMenu(bar); });
}

} // namespace

MainMenu *mainMenu()
{
    return theMainMenu;
}

void CUI_BuildMinimalMenu()
{
    const QString name = applicationName();
    auto *menu = new QMenu(escapedMnemonics(name));
    QAction *about = addItem(menu, escapedMnemonics(u"About %1"_s.arg(name)), QAction::AboutRole);
    // The panel runs modally; it must not do so inside the menu that is still closing.
    QObject::connect(about, &QAction::triggered, qApp, &orderFrontStandardAboutPanel, Qt::QueuedConnection);
    menu->addSeparator();
    QAction *quit = addItem(menu, escapedMnemonics(u"Quit %1"_s.arg(name)), QAction::QuitRole);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quit->setShortcutContext(Qt::ApplicationShortcut);
    QObject::connect(quit, &QAction::triggered, qApp, &quitByUser);
    appendMenu(takeMainMenu(), menu);
}

void CUI_EditMenu(qint64 index)
{
    if (!theMainMenu) {
        CUI_BuildMinimalMenu();
    }
    if (index < theMainMenu->menus.size()) {
        return;
    }
    CUI_MenuPadItemsToIndex(theMainMenu, index);
    appendMenu(theMainMenu, makeEditMenu());
}

void CUI_MenuPadItemsToIndex(MainMenu *menu, qint64 index)
{
    // Position 1 is deliberately never padded: the bar always begins with the application menu.
    if (index < 2) {
        return;
    }
    while (menu->menus.size() < index) {
        appendMenu(menu, makeUntitledMenu());
    }
}

void appendMenu(MainMenu *menu, QMenu *added)
{
    if (!menu) {
        CUI_BuildMinimalMenu();
        menu = theMainMenu;
    }
    menu->menus.append(added);
    added->installEventFilter(new EscapeFilter(added));
    if (menu != theMainMenu) {
        return;
    }
    for (const auto &bar : std::as_const(bars)) {
        if (bar) {
            bar->addMenu(added);
        }
    }
}

void showMainMenuIn(QMenuBar *bar)
{
    bars.removeAll(nullptr);
    bars.append(bar);
    openWithF10(bar);
    const QList<QMenu *> menus = theMainMenu ? theMainMenu->menus : QList<QMenu *>();
    for (QMenu *menu : menus) {
        bar->addMenu(menu);
    }
}

void addMenuShortcutsTo(QWidget *widget)
{
    forEachShortcut([widget](QAction *action) { widget->addAction(action); });
}

void removeMenuShortcutsFrom(QWidget *widget)
{
    forEachShortcut([widget](QAction *action) { widget->removeAction(action); });
}

} // namespace tetrad
