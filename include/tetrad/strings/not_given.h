#pragma once

#include <QtGlobal>

namespace tetrad {

/// Passed for any integer argument that the caller leaves unset (style, sheet flag, alignment, tab
/// interval, maximum length, case option, search option): the callee keeps the value in force or
/// uses its default. The number is part of the runtime's calling convention.
inline constexpr qint64 notGiven = -1999999999;

} // namespace tetrad
