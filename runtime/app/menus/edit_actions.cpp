#include "runtime/app/menus/edit_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QVariant>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

struct EditAction
{
    const char *title;
    const char *slot;
    const char *property;
    QKeySequence shortcut;
    bool startsGroup = false;
    bool (*lineEditCan)(const QLineEdit &) = nullptr;
};

bool hasClipboardText()
{
    return !QGuiApplication::clipboard()->text().isEmpty();
}

bool canTakeSelection(const QLineEdit &field)
{
    return !field.isReadOnly() && field.hasSelectedText();
}

bool canCutText(const QLineEdit &field)
{
    return canTakeSelection(field) && field.echoMode() == QLineEdit::Normal;
}

const QList<EditAction> &editActions()
{
    static const QList<EditAction> actions = {
        {"Undo", "undo", "canUndo", Qt::CTRL | Qt::Key_Z, false,
         [](const QLineEdit &field) { return field.isUndoAvailable(); }},
        {"Redo", "redo", "canRedo", Qt::CTRL | Qt::SHIFT | Qt::Key_Z, false,
         [](const QLineEdit &field) { return field.isRedoAvailable(); }},
        {"Cut", "cut", "canCut", Qt::CTRL | Qt::Key_X, true, canCutText},
        {"Copy", "copy", "canCopy", Qt::CTRL | Qt::Key_C, false,
         [](const QLineEdit &field) { return field.hasSelectedText() && field.echoMode() == QLineEdit::Normal; }},
        {"Paste", "paste", "canPaste", Qt::CTRL | Qt::Key_V, false,
         [](const QLineEdit &field) { return !field.isReadOnly() && hasClipboardText(); }},
        {"Delete", "del", "canDelete", {}, false, canTakeSelection},
        {"Select All", "selectAll", "canSelectAll", Qt::CTRL | Qt::Key_A, false,
         [](const QLineEdit &field) { return !field.text().isEmpty(); }},
    };
    return actions;
}

// QLineEdit's del() is a plain function, not a slot.
bool isLineEditDelete(const QWidget *widget, const EditAction &action)
{
    return qstrcmp(action.slot, "del") == 0 && qobject_cast<const QLineEdit *>(widget);
}

bool answersTo(const QWidget *widget, const EditAction &action)
{
    const QByteArray signature = QByteArray(action.slot) + "()";
    return widget->metaObject()->indexOfMethod(signature) >= 0 || isLineEditDelete(widget, action);
}

QPointer<QWidget> lastResponder;

bool isMenu(const QWidget *widget)
{
    return qobject_cast<const QMenu *>(widget) || qobject_cast<const QMenuBar *>(widget);
}

// The widget with the focus, or, while a menu has it, the widget that had it before.
QWidget *firstResponder()
{
    QWidget *focus = QApplication::focusWidget();
    const bool menuIsOpen = QApplication::activePopupWidget();
    return isMenu(focus) || (!focus && menuIsOpen) ? lastResponder.data() : focus;
}

// The widget in which the action would change something, or null.
QWidget *responderFor(const EditAction &action)
{
    QWidget *responder = firstResponder();
    while (responder && !answersTo(responder, action)) {
        responder = responder->isWindow() ? nullptr : responder->parentWidget();
    }
    if (!responder || !responder->isEnabled()) {
        return nullptr;
    }
    const QVariant can = responder->property(action.property);
    const auto *field = qobject_cast<const QLineEdit *>(responder);
    const bool acts = can.isValid() ? can.toBool() : !field || action.lineEditCan(*field);
    return acts ? responder : nullptr;
}

// A shortcut arrives without opening the menu, so the item may be enabled in vain.
void perform(const EditAction &action)
{
    QWidget *responder = responderFor(action);
    if (responder && isLineEditDelete(responder, action)) {
        static_cast<QLineEdit *>(responder)->del();
    } else if (responder) {
        QMetaObject::invokeMethod(responder, action.slot);
    }
}

QAction *addEditItem(QMenu *menu, const EditAction &action)
{
    if (action.startsGroup) {
        menu->addSeparator();
    }
    QAction *item = menu->addAction(QString::fromLatin1(action.title));
    item->setShortcut(action.shortcut);
    item->setShortcutContext(Qt::ApplicationShortcut);
    QObject::connect(item, &QAction::triggered, menu, [&action] { perform(action); });
    QObject::connect(menu, &QMenu::aboutToShow, item, [item, &action] { item->setEnabled(responderFor(action)); });
    // A disabled item has no shortcut, and nobody would enable it again.
    QObject::connect(menu, &QMenu::aboutToHide, item, [item] { item->setEnabled(true); });
    return item;
}

} // namespace

QMenu *makeEditMenu()
{
    auto *menu = new QMenu(u"Edit"_s);
    lastResponder = QApplication::focusWidget();
    QObject::connect(qApp, &QApplication::focusChanged, menu, [](QWidget *, QWidget *now) {
        if (now && !isMenu(now)) {
            lastResponder = now;
        }
    });
    for (const EditAction &action : editActions()) {
        addEditItem(menu, action);
    }
    return menu;
}

} // namespace tetrad
