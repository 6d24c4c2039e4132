#pragma once

#include <QWidget>

namespace tetrad {

/// The consoles in a content view, which are known by one of their slots. content may be null.
QWidgetList consolesIn(const QWidget *content);

/// The text that the consoles of the content gained since the last call, for assistive technology.
QString newConsoleText(const QWidget *content);

} // namespace tetrad
