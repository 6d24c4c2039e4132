#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>
#include <vector>

/// Readable where a comparison fails.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << (text.isNull() ? std::string("none") : '"' + text.toStdString() + '"');
}

namespace tetrad {

using namespace Qt::StringLiterals;

/// Cases of the same shape: in each row what it shows, then its columns, which the loop over the rows names.
template <typename... Columns>
using Table = std::vector<std::tuple<const char *, Columns...>>;

} // namespace tetrad
