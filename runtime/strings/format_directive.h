#pragma once

#include <QStringView>

#include <optional>

namespace tetrad {

/// The width or the precision of a directive.
struct DirectiveNumber
{
    enum class Source { None, Written, Argument };

    Source source = Source::None;
    /// The number itself, or for an argument its place in the list from 1, 0 being the next one.
    int value = 0;
};

/// One "%" directive of a format text, such as "%-8.3f" or "%2$@", taken apart.
struct FormatDirective
{
    bool leftAdjusted = false;
    bool plusSign = false;
    bool blankSign = false;
    bool alternate = false;
    bool zeroPadded = false;
    DirectiveNumber width;
    DirectiveNumber precision;
    /// The argument's place from 1; 0 is the next one.
    int argument = 0;
    /// Size of an integer argument: 8, 16, 32 or 64.
    int bits = 32;
    char conversion = 0;
    /// How much of the text the directive takes, its "%" included.
    qsizetype length = 0;
};

/// Reads the directive that the text starts with, or nothing if it is malformed. A written number ends at
/// 10000, which no screen can show and no memory minds.
std::optional<FormatDirective> parseDirective(QStringView text);

inline constexpr int largestDirectiveNumber = 10000;

} // namespace tetrad
