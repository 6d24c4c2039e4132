#pragma once

#include <QString>

namespace tetrad {

/// The key-input statement: shows a panel with a prompt and a blinking cursor over the front window,
/// blocks until an accepted key or Escape is pressed, and returns the key's text; null for Escape.
/// x, y as for ZRInput. The format: null `characters` removes the pending key format, an empty one
/// keeps the one in force, any other sets it together with pass and caseOption (see InkeySetFormat).
QString ZRInkey(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 caseOption);

} // namespace tetrad
