#pragma once

#include <QCoreApplication>

namespace tetrad {

/// Looks a text up in the application's strings table "Runtime" (the context "Runtime" of the
/// installed translators). The English text is the key and what an application without
/// translations shows. Mark the text with QT_TRANSLATE_NOOP("Runtime", ...) so that it is extracted.
inline QString runtimeText(const char *english)
{
    return QCoreApplication::translate("Runtime", english);
}

} // namespace tetrad
