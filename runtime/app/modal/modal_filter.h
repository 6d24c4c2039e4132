#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

class QWindow;

namespace tetrad {

/// Sees every event of the application during modal runs and withholds the ones that are not for the
/// newest run's widget.
class ModalFilter : public QObject
{
    Q_OBJECT

public:
    ModalFilter();
    ~ModalFilter() override;

    void install();
    void remove();

    /// The widget the user may work with from now on; null when the newest run has been ended and its
    /// loop is only unwinding: then nothing passes, and keys are kept.
    void setWidget(QWidget *widget);

    /// Moves the focus into the widget: to where it was there, else to the first place that takes it.
    void focusInside();

    /// Lets a window that the program brought to the front stay there until the user leaves it.
    void leaveInFront(QWidget *window) { m_front = window; }

    /// Sends the keys that were kept to the widget.
    void deliverKeptKeys();

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// A widget was hidden by the program, not by being minimised.
    void hidden(QWidget *widget);

private:
    bool isWithheldFromWindow(QWindow *window, QEvent *event);
    bool isWithheldFromWidget(QWidget *widget, QEvent *event);
    void followKeyboard();
    bool keepKey(QEvent *event);
    bool redirectKey(QEvent *event);
    static bool endHere(QEvent *event);
    bool comesFromInside(const QWidget *widget) const;
    bool isLive(const QWidget *widget) const;
    bool isCarrier(const QWidget *window) const;
    bool isScrollBar(const QWidget *widget) const;
    bool scrolls(const QWidget *widget) const;
    void windowActivated(const QWidget *widget);
    void activateAgain();
    void bringBack();
    void focusMoved(QWidget *now);

    QPointer<QWidget> m_widget;
    QPointer<QWidget> m_lastFocus;
    QPointer<QWidget> m_front;
    std::vector<std::unique_ptr<QKeyEvent>> m_keptKeys;
    bool m_redirecting = false;
};

} // namespace tetrad
