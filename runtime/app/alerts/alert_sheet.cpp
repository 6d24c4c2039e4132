#include <tetrad/app/alert.h>

#include "runtime/app/modal/modal_focus.h"
#include <tetrad/app/menus.h>
#include <tetrad/app/window.h>
#include <tetrad/app/window_delegate.h>

#include <QApplication>
#include <QMenuBar>
#include <QWindow>

#include <utility>

namespace tetrad {

namespace {

// Withholds what the user does in the window behind a sheet, but for its menu bar. Blocking by the window system's
// modality would block that as well.
class SheetGuard : public QObject
{
public:
    SheetGuard(QWidget *sheet, QWidget *window) : QObject(sheet), m_sheet(sheet), m_window(window)
    {
        if (QWindow *const handle = window->windowHandle()) {
            handle->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::TabletPress:
            return !isInMenus() && !isInMenu(m_window->childAt(pressPosition(event))) && bringSheet();
        case QEvent::KeyPress:
        case QEvent::Close:
            event->setAccepted(isInMenus());
            return !isInMenus() && bringSheet();
        default:
            return false;
        }
    }

private:
    static bool isInMenus()
    {
        return QApplication::activePopupWidget() || qobject_cast<QMenuBar *>(QApplication::focusWidget());
    }

    bool bringSheet()
    {
        m_sheet->raise();
        m_sheet->activateWindow();
        return true;
    }

    QWidget *m_sheet = nullptr;
    QWidget *m_window = nullptr;
};

} // namespace

void Alert::beginSheet(QWidget *window, std::function<void(qint64)> completion)
{
    attachTo(window, true);
    prepareToShow();
    addMenuShortcutsTo(this);
    delete std::exchange(m_sheetGuard, new SheetGuard(this, window->window()));
    m_sheetWindow = window->window();
    m_completion = std::move(completion);
    auto *const owner = qobject_cast<Window *>(m_sheetWindow);
    if (!owner) {
        show();
        return;
    }
    // Each report may end in a callback that deletes the window, and the alert with it.
    const QPointer<Alert> self(this);
    CUI_WindowDelegateObj()->windowWillBeginSheet(owner);
    if (!self) {
        return;
    }
    const QRectF top(0, 0, owner->contentView()->width(), 0);
    const QRectF position = CUI_WindowDelegateObj()->windowWillPositionSheet(owner, this, top);
    if (self) {
        show();
        move(owner->contentView()->mapToGlobal(position.topLeft().toPoint()) +
             QPoint((qRound(position.width()) - width()) / 2, 0));
    }
}

void Alert::endSheet()
{
    auto *const owner = qobject_cast<Window *>(m_sheetWindow);
    m_sheetWindow = nullptr;
    delete std::exchange(m_sheetGuard, nullptr);
    // A callback may delete the alert; the code that began the sheet is still notified.
    const auto completion = std::exchange(m_completion, nullptr);
    const qint64 code = m_code;
    if (owner) {
        CUI_WindowDelegateObj()->windowDidEndSheet(owner);
    }
    if (completion) {
        completion(code);
    }
}

} // namespace tetrad
