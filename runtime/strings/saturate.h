#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tetrad {

/// Drops the fraction. A number outside the integer's range becomes the nearer limit, and NaN
/// becomes 0; a plain conversion would be undefined.
template <typename Integer>
constexpr Integer saturatedTo(double number)
{
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(number)) {
        return 0;
    }
    if (number <= static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    // The largest 64-bit integers round up to a power of two that is already outside the range.
    return number >= static_cast<double>(Limits::max()) ? Limits::max() : static_cast<Integer>(number);
}

/// An integer outside a narrower one's range becomes the nearer limit.
template <typename Integer>
requires(sizeof(Integer) < sizeof(qint64)) constexpr Integer saturatedTo(qint64 number)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(std::clamp<qint64>(number, Limits::min(), Limits::max()));
}

} // namespace tetrad
