#include "runtime/app/process/clipboard_handover.h"

#include <QClipboard>
#include <QGuiApplication>

#ifdef TETRAD_HAVE_XCB
#include <QAbstractNativeEventFilter>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#endif

namespace tetrad {

namespace {

#ifdef TETRAD_HAVE_XCB

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto asked = xcb_intern_atom(connection, false, static_cast<quint16>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, asked, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Ends a loop when the manager answers that it has taken everything, or cannot, or the server that there is no manager.
class AnswerOfManager : public QAbstractNativeEventFilter
{
public:
    AnswerOfManager(xcb_atom_t manager, QEventLoop *loop) : m_manager(manager), m_loop(loop) {}

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *event = static_cast<xcb_generic_event_t *>(message);
        constexpr int sentByClient = 0x80;
        if ((event->response_type & ~sentByClient) == XCB_SELECTION_NOTIFY &&
            reinterpret_cast<const xcb_selection_notify_event_t *>(event)->selection == m_manager) {
            m_loop->quit();
        }
        return false;
    }

private:
    xcb_atom_t m_manager = XCB_ATOM_NONE;
    QEventLoop *m_loop = nullptr;
};

// Qt does this while it destroys the application object, which never happens here.
void askManagerToSave(xcb_connection_t *connection)
{
    const xcb_atom_t manager = atom(connection, "CLIPBOARD_MANAGER");
    QWindow requestor;
    requestor.create();
    QEventLoop loop;
    AnswerOfManager answer(manager, &loop);
    QCoreApplication::instance()->installNativeEventFilter(&answer);
    // Without the property, which lists formats, all of them are saved.
    xcb_convert_selection(connection, static_cast<xcb_window_t>(requestor.winId()), manager,
                          atom(connection, "SAVE_TARGETS"), atom(connection, "TETRAD_SAVED"), XCB_CURRENT_TIME);
    xcb_flush(connection);
    QTimer::singleShot(std::chrono::seconds(3), &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    QCoreApplication::instance()->removeNativeEventFilter(&answer);
}

#endif

} // namespace

void handClipboardOver()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return;
    }
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard->ownsClipboard()) {
        return;
    }
#ifdef TETRAD_HAVE_XCB
    if (const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        askManagerToSave(x11->connection());
        return;
    }
#endif
    QEvent handOver(QEvent::Clipboard);
    QCoreApplication::sendEvent(clipboard, &handOver);
}

} // namespace tetrad
