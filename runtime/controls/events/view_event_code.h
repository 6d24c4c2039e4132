#pragma once

#include <QtGlobal>

class QEvent;

namespace tetrad {

/// The ViewEvent code of a mouse, key, enter or leave event as the platform delivers it to a view; 0 for
/// every other event and for the buttons that views do not report. The second press of a double
/// click is a mouse-down like the first.
qint64 viewEventCode(const QEvent *event);

} // namespace tetrad
