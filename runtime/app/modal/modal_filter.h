#pragma once

#include "runtime/app/modal/modal_focus.h"

#include <QKeyEvent>
#include <QObject>

#include <memory>
#include <vector>

class QWindow;

namespace tetrad {

/// Sees every event of the application during modal runs and withholds the ones that are not for the
/// newest run's widget. Once that run has been ended nothing passes, and keys are kept for the next one.
class ModalFilter : public QObject
{
    Q_OBJECT

public:
    ModalFocus &focus() { return m_focus; }

    /// Sends the keys that were kept to what has the focus in the window of the newest run, as long as that run is on.
    void deliverKeptKeys();

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// A widget was hidden by the program, not by being minimised.
    void hidden(QWidget *widget);

private:
    bool isWithheldFromWindow(QWindow *window, QEvent *event);
    bool isWithheldFromWidget(QWidget *widget, QEvent *event);
    void keepKey(QKeyEvent *event);
    bool redirectKey(QEvent *event);
    static bool endHere(QEvent *event);
    bool comesFromInside(const QWidget *widget) const;
    bool isCarrier(const QWidget *window) const;
    bool isScrollBar(const QWidget *widget) const;
    bool scrolls(const QWidget *widget) const;

    ModalFocus m_focus;
    std::vector<std::unique_ptr<QKeyEvent>> m_keptKeys;
    bool m_redirecting = false;
};

} // namespace tetrad
