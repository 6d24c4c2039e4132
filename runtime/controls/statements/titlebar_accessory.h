#pragma once

#include <QList>

class QWidget;

namespace tetrad {

class Window;

/// The views in the window's title area, in the order in which they were added.
QList<QWidget *> titlebarAccessoryViews(const Window *window);

} // namespace tetrad
