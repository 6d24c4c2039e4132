#pragma once

#include <QStringList>

namespace tetrad {

/// Runs an alert without a tag over the target window and returns the code of the button that was pressed, 0 without
/// one.
qint64 runAlertWithoutTag(qint64 style, const QString &message, const QString &informative, const QStringList &titles);

} // namespace tetrad
