#pragma once

#include <QByteArray>
#include <QStringView>

#include <optional>

namespace tetrad {

/// The width or the precision of a directive.
struct DirectiveNumber
{
    enum class Source { None, Written, Argument };

    Source source = Source::None;
    /// The number itself, or for an argument its position in the list from 1, 0 being the next one.
    int value = 0;
};

/// One "%" directive of a format text, such as "%-8.3f" or "%2$@", taken apart.
struct FormatDirective
{
    /// Those of "-+ #0", each once.
    QByteArray flags;
    DirectiveNumber width;
    DirectiveNumber precision;
    /// The argument's position from 1; 0 is the next one.
    int argument = 0;
    /// Size of an integer argument: 8, 16, 32 or 64.
    int bits = 32;
    char conversion = 0;
    /// The directive's length in the text, its "%" included.
    qsizetype length = 0;
};

/// Limits a width or precision to what memory has room for; no screen shows as much.
inline constexpr int largestDirectiveNumber = 10000;

/// Reads the directive that the text starts with. Returns nothing if it is malformed.
std::optional<FormatDirective> parseDirective(QStringView text);

} // namespace tetrad
