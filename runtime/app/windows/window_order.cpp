#include "runtime/app/windows/window_order.h"

namespace tetrad {

WindowOrder &WindowOrder::instance()
{
    // Deliberately never freed: windows may still be destroyed while static objects are.
    static auto *const order = new WindowOrder;
    return *order;
}

void WindowOrder::add(Window *window)
{
    m_byCreation.append(window);
    m_frontToBack.append(window);
}

void WindowOrder::remove(Window *window)
{
    m_byCreation.removeOne(window);
    m_frontToBack.removeOne(window);
}

void WindowOrder::bringToFront(Window *window)
{
    if (m_frontToBack.removeOne(window)) {
        m_frontToBack.prepend(window);
    }
}

} // namespace tetrad
