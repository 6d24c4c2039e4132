#pragma once

#include <QtGlobal>

namespace tetrad {

/// What the dialog function is told of alerts.
enum AlertEvent : qint64 {
    alertEndedEvent = 1000, ///< tag: the button's code or 0; wndTag: the alert's tag
    alertHelpEvent = 1001,  ///< tag and wndTag: the alert's tag; the answer is the boolean
};

} // namespace tetrad
