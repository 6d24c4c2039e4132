#include <tetrad/app/window.h>

namespace tetrad {

Window *CUI_WindowController::window() const
{
    return m_window;
}

void CUI_WindowController::setWindow(Window *window)
{
    m_window = window;
    setParent(window);
}

} // namespace tetrad
