#pragma once

#include "runtime/controls/tag.h"

#include <QMainWindow>

namespace tetrad
{

class ContentViewSC;

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
/// that was set beside it.
using WindowCallback = void (*)(Tag wndTag, qint64 event, void *userData);

/// A window of the runtime. Its central widget is the content view; every rectangle the runtime
/// speaks of is the content's, menu bar and frame excluded, in device-independent pixels with the
/// origin at the top left of the main screen.
class Window : public QMainWindow
{
    Q_OBJECT

public:
    explicit Window(const QRectF &contentRect);

    Tag tag() const;
    void setTag(Tag tag);

    WindowCallback cuiWindowCallback() const;
    void setCuiWindowCallback(WindowCallback callback);
    void *cuiWindowUserData() const;
    void setCuiWindowUserData(void *userData);

    /// The content rectangle now. Setting it fixes the size of the content whatever height the menu
    /// bar takes.
    QRectF contentRect() const;
    void setContentRect(const QRectF &rect);

    /// WindowStyle bits.
    qint64 styleMask() const;
    void setStyleMask(qint64 mask);

    /// Centres the window, frame included, on its screen.
    void center();

    /// Colours the content view only, never the menu bar.
    void setBackgroundColor(const QColor &color);
    QColor backgroundColor() const;

    QWidget *contentView() const;
};

/// The window class made while the subclass flag is set; a program derives from it.
class WindowSC : public Window
{
    Q_OBJECT

public:
    using Window::Window;
};

} // namespace tetrad
