#pragma once

#include "runtime/strings/saturate.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace tetrad {

/// A position or length that a program answered, in whole pixels. One farther than any widget reaches, as programs
/// answer for "anywhere", counts as that far; NaN counts as 0.
inline int wholePixels(double answer)
{
    return std::clamp(saturatedTo<int>(std::round(answer)), -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace tetrad
