#pragma once

#include <QString>

namespace tetrad {

/// How a number is to be printed: a directive whose width and precision are known.
struct NumberStyle
{
    bool leftAdjusted = false;
    bool plusSign = false;
    bool blankSign = false;
    bool alternate = false;
    bool zeroPadded = false;
    int width = 0;
    /// -1: none given.
    int precision = -1;
    /// One of "diuoxX" or "fFeEgGaA".
    char conversion = 'd';
};

// As printf prints them in the C locale. printf itself is no choice: its decimal point follows the
// locale, which the application object sets from the environment, and QString::asprintf loses the
// sign of -0.0 and, as QString::number does, rounds halves up where printf rounds them to even.

/// The number's magnitude and sign apart, so that every 64-bit integer fits, signed or not.
QString printInteger(const NumberStyle &style, quint64 magnitude, bool negative);
QString printDouble(const NumberStyle &style, double number);

/// Fills with blanks up to the width.
QString padded(const NumberStyle &style, const QString &text);

} // namespace tetrad
