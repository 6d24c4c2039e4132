#pragma once

#include <QString>

namespace tetrad {

/// The line-input statement: shows a panel with a prompt and a field over the front window, blocks
/// until the user confirms or cancels, and returns the line; null when cancelled, empty when
/// confirmed empty. x, y: the panel's bottom-left corner in pixels from the top left of the front
/// window's content; notGiven in both centres it vertically near the left edge.
/// The format: null `characters` removes the pending format, an empty one keeps the one in force
/// from an earlier call, any other sets it together with pass, maxLength and caseOption (see
/// InputSetFormat).
QString ZRInput(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 maxLength,
                qint64 caseOption);

} // namespace tetrad
