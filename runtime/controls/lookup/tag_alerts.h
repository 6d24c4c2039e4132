#pragma once

#include <QString>

namespace tetrad {

// The alerts about tags that a statement or a lookup can do nothing with. They appear in the next modal loop.

/// The alert "Tag error." with this text.
void showTagError(const QString &text);

/// The alert "Class error." with this text: a view is not of the class wanted.
void showClassError(const QString &text);

/// The alert "Error.": there is no window to work in.
void showNoWindowsError();

} // namespace tetrad
