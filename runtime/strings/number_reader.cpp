#include <tetrad/strings/numbers.h>

#include <QByteArray>
#include <QVariant>

#include <charconv>
#include <limits>

namespace tetrad {

namespace {

// The start of a text as far as it may belong to a number: its sign apart, the rest in ASCII.
struct NumberText
{
    bool negative = false;
    QByteArray digits;
};

NumberText leadingNumber(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace()) {
        text = text.sliced(1);
    }
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    qsizetype end = 0;
    while (end < text.size() && QStringView(u"0123456789.eE+-").contains(text[end])) {
        ++end;
    }
    text = text.first(end);
    // Past its sign a number may not start with another.
    const bool startsNumber = !text.isEmpty() && (text.front() == u'.' || text.front().isDigit());
    return {negative, startsNumber ? text.toLatin1() : QByteArray()};
}

} // namespace

double StringDoubleValue(const QString &text)
{
    const auto [negative, digits] = leadingNumber(text);
    double value = 0;
    const auto read = std::from_chars(digits.cbegin(), digits.cend(), value);
    if (read.ec == std::errc::result_out_of_range) {
        // from_chars does not distinguish too large from too small.
        value = QByteArrayView(digits.cbegin(), read.ptr).toDouble();
    }
    return negative ? -value : value;
}

qint64 StringIntegerValue(const QString &text)
{
    auto [negative, digits] = leadingNumber(text);
    if (negative) {
        digits.prepend('-');
    }
    qint64 value = 0;
    if (std::from_chars(digits.cbegin(), digits.cend(), value).ec == std::errc::result_out_of_range) {
        return negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    }
    return value;
}

double ZRDblVal(const QVariant &object)
{
    switch (object.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return object.toDouble();
    case QMetaType::QString:
        return StringDoubleValue(object.toString());
    default:
        return 0;
    }
}

} // namespace tetrad
