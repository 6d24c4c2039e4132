#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QWindow;

namespace tetrad {

/// Keeps the keyboard in the widget of the newest modal run, and knows what else the user may work with meanwhile.
class ModalFocus : public QObject
{
    Q_OBJECT

public:
    ModalFocus();

    /// Null when the newest run has been ended and its loop is only unwinding.
    const QPointer<QWidget> &widget() const { return m_widget; }
    void setWidget(QWidget *widget);

    /// Whether mouse and keys reach a widget: what belongs to the run's widget, menus, what works during modal runs.
    bool isLive(const QWidget *widget) const;

    /// Moves the focus into the widget: to where it was there, or else to the first widget that accepts it.
    void focusInside();

    /// Lets a window that the program brought to the front stay there until the user leaves it.
    void leaveInFront(QWidget *window) { m_front = window; }

    /// Makes the run's window the active one again, also when it was minimised.
    void bringBack();

    void windowActivated(const QWidget *widget);
    void windowDeactivated(const QWidget *widget);

    /// To be called when a menu or another popup was closed.
    void followKeyboard();

private:
    void activateAgain();
    void focusMoved(QWidget *now);

    QPointer<QWidget> m_widget;
    QPointer<QWidget> m_lastFocus;
    QPointer<QWidget> m_front;
};

/// Whether a condition holds for a widget or one of those it belongs to, windows that belong to others included.
template <typename Condition>
bool holdsOutwards(const QWidget *widget, Condition condition)
{
    while (widget && !condition(widget)) {
        widget = widget->parentWidget();
    }
    return widget;
}

bool isInMenu(const QWidget *widget);

/// Whether the widget is a menu bar without a highlighted title.
bool isIdleBar(const QWidget *widget);

/// Where a press is in the window that it was sent to.
QPoint pressPosition(const QEvent *event);

/// The widget that a platform window shows, or null.
QWidget *widgetOfWindow(const QWindow *window);

} // namespace tetrad
