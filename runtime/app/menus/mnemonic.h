#pragma once

#include <QString>

namespace tetrad {

/// A title as Qt shows it literally: a single & would underline the letter after it and make it a shortcut.
inline QString escapedMnemonics(QString title)
{
    return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// The title that escapedMnemonics() was given.
inline QString unescapedMnemonics(QString text)
{
    return text.replace(QLatin1String("&&"), QLatin1String("&"));
}

} // namespace tetrad
