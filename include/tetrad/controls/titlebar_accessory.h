#pragma once

#include <QList>

class QWidget;

namespace tetrad {

class Window;

/// Shows a view at the trailing end of the window's title area, beside its menus, after those added before.
/// The window owns it. A view that is to be found by tag carries the tag in its objectName.
void CUI_WindowAddTitlebarAccessoryView(Window *window, QWidget *view);

/// The views added, in their order.
QList<QWidget *> titlebarAccessoryViews(const Window *window);

} // namespace tetrad
