#include <tetrad/app/window.h>

#include "runtime/app/process/tag_registry.h"
#include "runtime/app/process/termination.h"
#include "runtime/app/windows/window_translator.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/content_view.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/modal.h>
#include <tetrad/app/window_delegate.h>
#include <tetrad/app/windows.h>

#include <QCloseEvent>
#include <QMenuBar>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// While the delegate is being queried about a close, a second request would not reach it: the platform window would
// be destroyed, whatever the answer.
class CloseStopper : public QObject
{
public:
    explicit CloseStopper(QWindow *window)
    {
        if (window) {
            window->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isClose = event->type() == QEvent::Close;
        if (isClose) {
            event->ignore();
        }
        return isClose;
    }
};

constexpr char callbackKey[] = "callbackValue";
constexpr char userDataKey[] = "userDataValue";

Qt::WindowFlags hintsForStyle(qint64 mask)
{
    if (!(mask & windowStyleTitled)) {
        return Qt::FramelessWindowHint;
    }
    Qt::WindowFlags hints = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    hints.setFlag(Qt::WindowCloseButtonHint, mask & windowStyleClosable);
    hints.setFlag(Qt::WindowMinimizeButtonHint, mask & windowStyleMiniaturizable);
    hints.setFlag(Qt::WindowMaximizeButtonHint, mask & windowStyleResizable);
    return hints;
}

} // namespace

Window::Window(const QRectF &contentRect) : m_translator(std::make_unique<WindowTranslator>(this))
{
    // Only after every member is initialised: the new child is an event of this window.
    m_contentView = new ContentViewSC(this);
    setAttribute(Qt::WA_DeleteOnClose);
    // Menus follow the language's direction; the positions of its output and its prompts do not.
    m_contentView->setLayoutDirection(Qt::LeftToRight);
    setCentralWidget(m_contentView);
    menuBar()->setAccessibleName(tr("Menu bar"));
    showMainMenuIn(menuBar());
    setStyleMask(windowStyleDefault);
    setContentRect(contentRect);
    TagRegistry<Window>::instance().add(this);
}

Window::~Window()
{
    TagRegistry<Window>::instance().remove(this);
    CUI_AppDelegateRemoveWindow(this);
}

WindowCallback Window::cuiWindowCallback() const
{
    return property(callbackKey).value<WindowCallback>();
}

void Window::setCuiWindowCallback(WindowCallback callback)
{
    setProperty(callbackKey, QVariant::fromValue(callback));
}

void *Window::cuiWindowUserData() const
{
    return property(userDataKey).value<void *>();
}

void Window::setCuiWindowUserData(void *userData)
{
    setProperty(userDataKey, QVariant::fromValue(userData));
}

void Window::setStyleMask(qint64 mask)
{
    m_styleMask = mask;
    const QRectF content = contentRect();
    // Not setWindowFlags, which hides the window.
    overrideWindowFlags((windowFlags() & Qt::WindowType_Mask) | hintsForStyle(mask));
    menuBar()->setVisible(mask & windowStyleTitled);
    if (QWindow *const handle = windowHandle()) {
        handle->setFlags(windowFlags());
    }
    if (!(windowState() & spreadOut)) {
        setContentRect(content);
    }
}

void Window::setBackgroundColor(const QColor &color)
{
    m_contentView->setBackgroundColor(color);
}

QColor Window::backgroundColor() const
{
    return m_contentView->backgroundColor();
}

QWidget *Window::contentView() const
{
    return m_contentView;
}

CUI_WindowController *Window::windowController() const
{
    return findChild<CUI_WindowController *>(QString(), Qt::FindDirectChildrenOnly);
}

void Window::makeKeyAndOrderFront()
{
    leaveInFront(this);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    TagRegistry<Window>::instance().bringToFront(this);
}

QString Window::dump() const
{
    const QRectF content = contentRect();
    QString line = u"content %1x%2 at %3,%4, style %5"_s;
    line = line.arg(content.width()).arg(content.height()).arg(content.x()).arg(content.y()).arg(m_styleMask);
    return isActiveWindow() ? line + u", key" : line;
}

bool Window::event(QEvent *event)
{
    const QPointer<Window> guard(this);
    const bool handled = QMainWindow::event(event);
    if (!guard) {
        return true;
    }
    if (event->type() == QEvent::Show || (event->type() == QEvent::LayoutRequest && isVisible())) {
        keepContentPosition();
    }
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate) {
        TagRegistry<Window>::instance().bringToFront(this);
    }
    const bool closes = event->type() == QEvent::Close && event->isAccepted();
    const bool isLast = closes && isVisible() && isLastVisible(this);
    m_translator->translate(event);
    // The report may have kept it.
    if (guard && closes && isReleasedWhenClosed()) {
        TagRegistry<Window>::instance().remove(this);
    }
    if (isLast && CUI_AppDelegateObj()->applicationShouldTerminateAfterLastWindowClosed()) {
        AppTerminate();
    }
    return handled;
}

bool Window::close()
{
    const QPointer<Window> guard(this);
    m_closedByProgram = true;
    const bool closed = QMainWindow::close();
    if (guard) {
        m_closedByProgram = false;
    }
    return closed;
}

void Window::closeEvent(QCloseEvent *event)
{
    const CloseStopper stopper(windowHandle());
    const QPointer<Window> guard(this);
    // Whether the event is spontaneous says nothing: for a close box on Wayland Qt 6.4 calls QWindow::close().
    const bool byUser = !m_closedByProgram;
    // Some window managers draw a close box whatever the style says.
    if ((byUser && !(m_styleMask & windowStyleClosable)) || (m_delegate && !m_delegate->windowShouldClose(this))) {
        event->ignore();
        return;
    }
    if (!guard || !byUser || !closeMeansQuit(this)) {
        return;
    }
    event->ignore();
    if (mayTerminate()) {
        if (guard && m_delegate) {
            m_delegate->windowWillClose(this);
        }
        terminateWithoutAsking();
    }
}

bool Window::focusNextPrevChild(bool next)
{
    if (m_autorecalculatesKeyViewLoop) {
        recalculateKeyViewLoop();
    }
    return QMainWindow::focusNextPrevChild(next);
}

// No menu of unlabelled ticks that hide tool bars.
QMenu *Window::createPopupMenu()
{
    return nullptr;
}

void Window::recalculateKeyViewLoop()
{
    QList<QWidget *> views = m_contentView->findChildren<QWidget *>();
    views.removeIf([](const QWidget *view) { return !(view->focusPolicy() & Qt::TabFocus) || view->focusProxy(); });
    std::ranges::stable_sort(views, {}, [this](const QWidget *view) {
        const QPoint position = view->mapTo(m_contentView, QPoint());
        return std::pair(position.y(), position.x());
    });
    for (qsizetype i = 1; i < views.size(); ++i) {
        QWidget::setTabOrder(views[i - 1], views[i]);
    }
}

PanelSC::PanelSC(const QRectF &contentRect) : Window(contentRect)
{
    overrideWindowFlags(Qt::Tool | (windowFlags() & ~Qt::WindowType_Mask));
}

void PanelSC::awakeFromNib()
{
    CUI_WindowSubclassAwakeFromNib(this);
}

} // namespace tetrad
