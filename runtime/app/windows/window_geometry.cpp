#include <tetrad/app/window.h>

#include "runtime/app/windows/window_translator.h"
#include <tetrad/app/content_view.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace tetrad {

namespace {

// The user cannot drag a window to less: an input panel still has room in it.
constexpr QSize smallestUsable(140, 80);

QPoint mainScreenOrigin()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry().topLeft() : QPoint();
}

void liftSizeLimits(QWidget *window)
{
    window->setMinimumSize(0, 0);
    window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace

QRectF Window::contentRect() const
{
    const QPoint topLeft = m_contentView->mapToGlobal(QPoint()) - mainScreenOrigin();
    return QRectF(topLeft, m_contentView->size());
}

void Window::setContentRect(const QRectF &rect)
{
    setWindowState(windowState() & ~spreadOut);
    m_chrome = measuredChrome();
    const QPoint origin = rect.topLeft().toPoint() + mainScreenOrigin() - QPoint(0, m_chrome.height());
    moveBelowScreenTop(QRect(origin, rect.size().toSize() + m_chrome));
    keepContentPosition();
    m_translator->reportProgramsChange();
}

void Window::moveBelowScreenTop(QRect geometry)
{
    const QScreen *const there = QGuiApplication::screenAt(geometry.topLeft() + QPoint(0, m_chrome.height()));
    const QRect available = (there ? there : screen())->availableGeometry();
    geometry.moveTop(std::max(geometry.top(), available.top() + frameMargins().top()));
    liftSizeLimits(this);
    setGeometry(geometry);
    limitDrags();
}

void Window::holdContentSize(const QSizeF &size)
{
    liftSizeLimits(this);
    limitDrags();
    if (size.width() >= 0) {
        setFixedWidth(qRound(size.width()) + m_chrome.width());
    }
    if (size.height() >= 0) {
        setFixedHeight(qRound(size.height()) + m_chrome.height());
    }
}

void Window::center()
{
    const QRect available = screen()->availableGeometry();
    const QMargins frame = frameMargins();
    QRect framed = geometry() + frame;
    framed.moveCenter(available.center());
    // A window larger than the screen keeps its title bar where the pointer can reach it.
    framed.moveLeft(std::max(framed.left(), available.left()));
    framed.moveTop(std::max(framed.top(), available.top()));
    setGeometry(framed - frame);
    m_translator->reportProgramsChange();
}

// A window manager adds its frame some time after the window was shown. Until then the title bar that
// a titled window will have is taken to be as high as the style's.
QMargins Window::frameMargins() const
{
    const QMargins known = isVisible() && windowHandle() ? windowHandle()->frameMargins() : QMargins();
    if (!known.isNull() || !(m_styleMask & windowStyleTitled)) {
        return known;
    }
    return {0, style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0};
}

QSize Window::measuredChrome()
{
    if (!isVisible()) {
        // A hidden window does not update its layout when its size changes.
        layout()->invalidate();
    }
    layout()->activate();
    // The layout of a window too small for any content puts it out of sight, at the size it had.
    return rect().contains(m_contentView->pos()) ? size() - m_contentView->size() : m_chrome;
}

// The menu bar's height is known for certain only once it is shown, and bars may come and go later: a
// desktop may take the menu bar out of the window, menus or a tool bar may be added.
void Window::keepContentPosition()
{
    const QSize grown = measuredChrome() - m_chrome;
    if (grown.isNull()) {
        return;
    }
    m_chrome += grown;
    if (!(windowState() & spreadOut)) {
        moveBelowScreenTop(QRect(geometry().topLeft() - QPoint(0, grown.height()), size() + grown));
    }
}

// What the program made smaller than the smallest window that can be used stays so.
void Window::limitDrags()
{
    if (m_styleMask & windowStyleResizable) {
        setMinimumSize(size().boundedTo(smallestUsable));
    } else {
        setFixedSize(size());
    }
}

} // namespace tetrad
