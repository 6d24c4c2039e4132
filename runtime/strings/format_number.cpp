#include "runtime/strings/format_number.h"

#include <QByteArray>

#include <clocale>
#include <cstdio>

namespace tetrad {

namespace {

template <typename Number>
QString printed(const QByteArray &format, int width, int precision, Number number)
{
    const int size = std::snprintf(nullptr, 0, format.constData(), width, precision, number);
    QByteArray text(size, Qt::Uninitialized);
    // One byte more for the terminating zero, which every QByteArray has room for.
    std::snprintf(text.data(), static_cast<std::size_t>(size) + 1, format.constData(), width, precision, number);
    text.replace(std::localeconv()->decimal_point, ".");
    return QString::fromLatin1(text);
}

} // namespace

QString printNumber(const QByteArray &format, int width, int precision, double number)
{
    return printed(format, width, precision, number);
}

QString printNumber(const QByteArray &format, int width, int precision, quint64 number)
{
    return printed(format, width, precision, number);
}

} // namespace tetrad
