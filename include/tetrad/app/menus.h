#pragma once

// Implemented in runtime/app/menus/menus.cpp

#include <QList>
#include <QString>

class QMenu;
class QMenuBar;
class QWidget;

namespace tetrad {

/// The application's menu bar: one list of menus that every window shows (a parentless bar where the
/// platform has one for the whole application).
class MainMenu
{
public:
    QString title;
    QList<QMenu *> menus;
};

/// The application's main menu, or null as long as none was built.
MainMenu *mainMenu();

/// Builds the application menu: "About %@", a separator, "Quit %@".
void CUI_BuildMinimalMenu();

/// Adds the Edit menu at a 0-based position of the bar, padding the bar with untitled empty menus up
/// to it. Nothing happens when a menu already stands there.
void CUI_EditMenu(qint64 index);

/// Pads the bar with untitled, empty menus up to a position. A position below 2 adds nothing.
void CUI_MenuPadItemsToIndex(MainMenu *menu, qint64 index);

/// Appends a menu; the bars that show the main menu follow. The list does not own it. Null stands for the main menu,
/// which is built when there is none.
void appendMenu(MainMenu *menu, QMenu *added);

/// Fills a window's bar with the main menu's menus and keeps it in step when more are added.
void showMainMenuIn(QMenuBar *bar);

/// Keeps the main menu's shortcuts in force while a widget is visible, also when no window with a bar is.
void addMenuShortcutsTo(QWidget *widget);
void removeMenuShortcutsFrom(QWidget *widget);

} // namespace tetrad
