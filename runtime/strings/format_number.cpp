#include "runtime/strings/format_number.h"

#include <QByteArray>

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tetrad {

namespace {

constexpr int defaultPrecision = 6;
// Digits before the point of the largest double, the point, a sign and an exponent, with room to spare.
constexpr int longestWithoutPrecision = 400;

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isUpper(char letter)
{
    return letter != lower(letter);
}

QByteArray signOf(const NumberStyle &style, bool negative)
{
    return negative ? "-" : style.plusSign ? "+" : style.blankSign ? " " : "";
}

/// Joins prefix (sign, "0x") and digits and fills up to the width, zeros going between the two.
QString assemble(const NumberStyle &style, const QByteArray &prefix, QByteArray digits, bool mayPadWithZeros)
{
    if (style.zeroPadded && !style.leftAdjusted && mayPadWithZeros) {
        digits = digits.rightJustified(style.width - prefix.size(), '0');
    }
    return padded(style, QString::fromLatin1(prefix + digits));
}

QByteArray doubleDigits(double magnitude, std::chars_format format, int precision)
{
    QByteArray digits(longestWithoutPrecision + precision, Qt::Uninitialized);
    const auto end = precision < 0 ? std::to_chars(digits.begin(), digits.end(), magnitude, format)
                                   : std::to_chars(digits.begin(), digits.end(), magnitude, format, precision);
    digits.truncate(end.ptr - digits.begin());
    return digits;
}

/// "%#g", which keeps the trailing zeros that "%g" drops: by C's rule the exponent of the scientific
/// form decides between it and the plain one.
QByteArray generalWithZeros(double magnitude, int precision)
{
    const QByteArray scientific = doubleDigits(magnitude, std::chars_format::scientific, precision - 1);
    const int exponent = std::atoi(scientific.constData() + scientific.indexOf('e') + 1);
    return exponent < -4 || exponent >= precision
               ? scientific
               : doubleDigits(magnitude, std::chars_format::fixed, precision - 1 - exponent);
}

QByteArray finiteDigits(const NumberStyle &style, double magnitude)
{
    const int precision = style.precision < 0 ? defaultPrecision : style.precision;
    switch (lower(style.conversion)) {
    case 'a':
        return doubleDigits(magnitude, std::chars_format::hex, style.precision);
    case 'e':
        return doubleDigits(magnitude, std::chars_format::scientific, precision);
    case 'g': {
        const int significant = precision == 0 ? 1 : precision;
        return style.alternate ? generalWithZeros(magnitude, significant)
                               : doubleDigits(magnitude, std::chars_format::general, significant);
    }
    default:
        return doubleDigits(magnitude, std::chars_format::fixed, precision);
    }
}

/// The point that "#" asks for even when no digit follows it.
void ensurePoint(QByteArray &digits, char exponentMark)
{
    if (!digits.contains('.')) {
        const qsizetype exponent = digits.indexOf(exponentMark);
        digits.insert(exponent < 0 ? digits.size() : exponent, '.');
    }
}

} // namespace

QString printInteger(const NumberStyle &style, quint64 magnitude, bool negative)
{
    const bool isSigned = style.conversion == 'd' || style.conversion == 'i';
    const bool isHex = lower(style.conversion) == 'x';
    const int base = isHex ? 16 : style.conversion == 'o' ? 8 : 10;
    // A precision of 0 prints no digit for zero.
    QByteArray digits = magnitude == 0 && style.precision == 0 ? "" : QByteArray::number(magnitude, base);
    digits = digits.rightJustified(style.precision, '0');
    if (style.alternate && style.conversion == 'o' && !digits.startsWith('0')) {
        digits.prepend('0');
    }
    QByteArray prefix = isSigned ? signOf(style, negative) : QByteArray();
    if (style.alternate && isHex && magnitude != 0) {
        prefix += "0x";
    }
    const QString text = assemble(style, prefix, digits, style.precision < 0);
    return isUpper(style.conversion) ? text.toUpper() : text;
}

QString printDouble(const NumberStyle &style, double number)
{
    const bool isHex = lower(style.conversion) == 'a';
    QByteArray prefix = signOf(style, std::signbit(number));
    QString text;
    if (std::isfinite(number)) {
        QByteArray digits = finiteDigits(style, std::abs(number));
        if (style.alternate) {
            ensurePoint(digits, isHex ? 'p' : 'e');
        }
        text = assemble(style, isHex ? prefix + "0x" : prefix, digits, true);
    } else {
        text = assemble(style, prefix, std::isnan(number) ? "nan" : "inf", false);
    }
    return isUpper(style.conversion) ? text.toUpper() : text;
}

QString padded(const NumberStyle &style, const QString &text)
{
    return style.leftAdjusted ? text.leftJustified(style.width) : text.rightJustified(style.width);
}

} // namespace tetrad
