#pragma once

#include "tests/support/windows.h"
#include <tetrad/app/alert.h>

#include <QPushButton>

namespace tetrad {

inline void whenAlertRuns(const std::function<void(Alert *)> &action)
{
    whenRuns<Alert>(action);
}

/// What answers an alert with a click on one of its buttons.
inline std::function<void(Alert *)> clicks(int index)
{
    return [index](Alert *alert) { alert->alertButtons().at(index)->click(); };
}

inline QStringList titlesOf(const Alert *alert)
{
    QStringList titles;
    for (const QPushButton *const button : alert->alertButtons()) {
        titles << button->text().replace(u"&&"_s, u"&"_s);
    }
    return titles;
}

/// A real key press and release for whatever has the focus in the alert; `held` makes it one repetition of
/// a key that was already down.
inline void pressKey(Alert *alert, Qt::Key key, bool held = false, Qt::KeyboardModifiers modifiers = {})
{
    QWidget *const target = alert->focusWidget() ? alert->focusWidget() : alert;
    const QString text = key >= Qt::Key_A && key <= Qt::Key_Z ? QString(QChar(char16_t(key))) : QString();
    const QPointer<QWidget> alive(target);
    QTest::simulateEvent(target, true, key, modifiers, text, held);
    if (alive) {
        QTest::simulateEvent(target, false, key, modifiers, text, held);
    }
}

/// Whether every window the test opened is off the screen again.
inline bool noAlertLeft()
{
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<const Alert *>(widget) && widget->isVisible()) {
            return false;
        }
    }
    return modalWindow() == nullptr;
}

} // namespace tetrad
