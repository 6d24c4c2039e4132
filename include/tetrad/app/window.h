#pragma once

// Implemented in runtime/app/windows/window.cpp and window_geometry.cpp

#include <tetrad/events/tag.h>

#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include <memory>

namespace tetrad {

class WindowTranslator;

/// Bits of a window's style mask.
enum WindowStyle : qint64 {
    windowStyleBorderless = 0,
    windowStyleTitled = 1,
    windowStyleClosable = 2,
    windowStyleMiniaturizable = 4,
    windowStyleResizable = 8,
    windowStyleDefault = 15,
};

/// What a per-window callback is called with: the window's tag, the event code, and the user data
/// that was set with it.
using WindowCallback = void (*)(Tag wndTag, qint64 event, void *userData);

/// A window of the runtime. Its central widget is the content view; every rectangle the runtime
/// speaks of is the content's, menu bar and frame excluded, in device-independent pixels with the
/// origin at the top left of the main screen.
class Window : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(bool releasedWhenClosed READ isReleasedWhenClosed WRITE setReleasedWhenClosed)

public:
    explicit Window(const QRectF &contentRect);
    ~Window() override;

    Tag tag() const { return objectTag(this); }
    void setTag(Tag tag) { setObjectTag(this, tag); }

    WindowCallback cuiWindowCallback() const;
    void setCuiWindowCallback(WindowCallback callback);
    void *cuiWindowUserData() const;
    void setCuiWindowUserData(void *userData);

    /// The content rectangle now. Setting it fixes the size of the content whatever height the menu
    /// bar takes. A rectangle that would put the title bar above the screen is moved down by what is missing.
    QRectF contentRect() const;
    void setContentRect(const QRectF &rect);

    /// The width of the window's frame at each edge, estimated as long as no window manager has added it.
    QMargins frameMargins() const;

    /// The content may be given no other width and height until this is called again; a negative one is free.
    void holdContentSize(const QSizeF &size);

    /// WindowStyle bits.
    qint64 styleMask() const { return m_styleMask; }
    void setStyleMask(qint64 mask);

    /// Centres the window, frame included, on its screen.
    void center();

    /// Colours the content view only, never the menu bar.
    void setBackgroundColor(const QColor &color);
    QColor backgroundColor() const;

    QWidget *contentView() const;

    /// Whether closing forgets the window and deletes it, as soon as control is back in an event loop;
    /// true at first. Otherwise closing only hides it.
    bool isReleasedWhenClosed() const { return testAttribute(Qt::WA_DeleteOnClose); }
    void setReleasedWhenClosed(bool released) { setAttribute(Qt::WA_DeleteOnClose, released); }

    /// Whether Tab goes through the controls by position, row by row, instead of in the order in
    /// which they were made; false at first.
    bool autorecalculatesKeyViewLoop() const { return m_autorecalculatesKeyViewLoop; }
    void setAutorecalculatesKeyViewLoop(bool recalculates) { m_autorecalculatesKeyViewLoop = recalculates; }

    /// What the window's events are reported to; null reports nothing. Not owned.
    CUI_WindowDelegate *delegate() const { return m_delegate; }
    void setDelegate(CUI_WindowDelegate *delegate) { m_delegate = delegate; }

    CUI_WindowController *windowController() const;

    /// Shows the window in front of all others and gives it the keyboard.
    void makeKeyAndOrderFront();

    /// One line for the text dump of what is on the screen.
    Q_INVOKABLE QString dump() const;

public Q_SLOTS:
    /// Closes the window as the program: the delegate is queried as ever, but it is never the Quit item, which the
    /// user's request can be. Returns whether it closed. QWidget::close() of the same window counts as the user's.
    bool close();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    QMenu *createPopupMenu() override;

private:
    QSize measuredChrome();
    void keepContentPosition();
    void limitDrags();
    void moveBelowScreenTop(QRect geometry);
    void recalculateKeyViewLoop();

    ContentViewSC *m_contentView = nullptr;
    CUI_WindowDelegate *m_delegate = nullptr;
    std::unique_ptr<WindowTranslator> m_translator;
    qint64 m_styleMask = windowStyleDefault;
    // The size that the menu bar and other bars add to the content.
    QSize m_chrome;
    bool m_closedByProgram = false;
    bool m_autorecalculatesKeyViewLoop = false;
};

/// The window class made while the subclass flag is set; a program derives from it.
class WindowSC : public Window
{
    Q_OBJECT

public:
    using Window::Window;
};

/// A panel that was loaded from an interface file. Whoever loads it calls awakeFromNib once its tag
/// is set.
class PanelSC : public Window
{
    Q_OBJECT

public:
    explicit PanelSC(const QRectF &contentRect);
    virtual void awakeFromNib();
};

/// The controller that WindowInit gives each window; a child of the window it is set on.
class CUI_WindowController : public QObject
{
    Q_OBJECT

public:
    Window *window() const { return m_window; }
    void setWindow(Window *window)
    {
        m_window = window;
        setParent(window);
    }

private:
    QPointer<Window> m_window;
};

} // namespace tetrad
