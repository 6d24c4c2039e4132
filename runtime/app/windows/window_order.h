#pragma once

#include <QList>

namespace tetrad {

class Window;

/// Every window that exists and was not closed for good. The window system reports neither
/// list (some hide their stacking order), so windows add and remove themselves.
class WindowOrder
{
public:
    static WindowOrder &instance();

    const QList<Window *> &byCreation() const { return m_byCreation; }
    const QList<Window *> &frontToBack() const { return m_frontToBack; }

    void add(Window *window);
    void remove(Window *window);
    void bringToFront(Window *window);

private:
    QList<Window *> m_byCreation;
    QList<Window *> m_frontToBack;
};

} // namespace tetrad
