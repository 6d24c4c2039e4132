#include <tetrad/controls/menu_items.h>

#include "runtime/app/menus/mnemonic.h"
#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include <tetrad/app/menus.h>
#include <tetrad/events/event_codes.h>
#include <tetrad/events/tag.h>
#include <tetrad/strings/not_given.h>

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr char disabledKey[] = "disabledByStatement";

// The events carry the menu's tag and the window that the user is in.
void prepareEvent(QMenu *menu, const QAction *item)
{
    setObjectWindowTag(menu, CUI_OutputWindowTag());
    CUI_DialogEventObj()->longVal = objectTag(item);
}

void validate(QMenu *menu)
{
    const QPointer<QMenu> guard(menu);
    for (const QPointer<QAction> item : menu->actions()) {
        if (!guard) {
            return;
        }
        if (item && !item->isSeparator()) {
            prepareEvent(menu, item);
            const bool disables = answersYes(menu, menuEventDisableItem);
            if (item) {
                item->setEnabled(!disables && !item->property(disabledKey).toBool());
            }
        }
    }
}

QMenu *newMenu(Tag tag)
{
    auto *const menu = new QMenu;
    setObjectTag(menu, tag);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { validate(menu); });
    appendMenu(mainMenu(), menu);
    return menu;
}

QAction *newItem(QMenu *menu, Tag tag)
{
    auto *const item = menu->addAction(QString());
    setObjectTag(item, tag);
    item->setShortcutContext(Qt::ApplicationShortcut);
    // Only the statement ticks and unticks.
    QObject::connect(item, &QAction::triggered, item, [item] { item->setChecked(item->isCheckable()); });
    // Queued, since the menu is still closing.
    const auto report = [menu, item] {
        prepareEvent(menu, item);
        sendObjectEvent(menu, menuEventItem);
    };
    QObject::connect(item, &QAction::triggered, item, report, Qt::QueuedConnection);
    return item;
}

QKeySequence shortcut(const QString &key)
{
    if (key.isEmpty()) {
        return {};
    }
    const QChar character = key.at(0);
    const auto modifiers = Qt::ControlModifier | (character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
    return QKeySequence(QKeyCombination(modifiers, Qt::Key(character.toUpper().unicode())));
}

} // namespace

void CUI_Menu(Tag menuTag, qint64 item, qint64 state, const QString &title, const QString &key)
{
    if (menuTag < 1 || isObjectAddress(menuTag) || item < 0) {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "There can be no item %1 in a menu %2."), item, menuTag);
        return;
    }
    QMenu *menu = mainMenu() ? objectWithTag(mainMenu()->menus, menuTag) : nullptr;
    if (!menu) {
        menu = newMenu(menuTag);
    }
    QAction *action = item == 0 ? menu->menuAction() : objectWithTag(menu->actions(), item);
    if (!action) {
        action = newItem(menu, item);
    }
    if (!title.isNull()) {
        action->setText(escapedMnemonics(title));
        action->setSeparator(title == u"-");
    }
    if (state != notGiven) {
        action->setProperty(disabledKey, state == menuItemDisabled);
        action->setEnabled(state != menuItemDisabled);
        action->setCheckable(state == menuItemTicked);
        action->setChecked(state == menuItemTicked);
    }
    if (!key.isNull()) {
        action->setShortcut(shortcut(key));
    }
}

} // namespace tetrad
