#pragma once

#include <QObject>
#include <QPointer>

namespace tetrad {

class Window;

/// The controller that WindowInit gives each window; a child of the window it is set on.
class CUI_WindowController : public QObject
{
    Q_OBJECT

public:
    Window *window() const;
    void setWindow(Window *window);

private:
    QPointer<Window> m_window;
};

} // namespace tetrad
