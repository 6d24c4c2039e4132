#pragma once

#include <QString>

namespace tetrad {

/// What C's printf prints for one number in the C locale, whatever locale is in force. format: one directive that takes
/// width and precision as arguments, such as "%+*.*f" for a double or "%-*.*llx" for an integer. A negative precision
/// counts as not given.
QString printNumber(const QByteArray &format, int width, int precision, double number);
QString printNumber(const QByteArray &format, int width, int precision, quint64 number);

} // namespace tetrad
