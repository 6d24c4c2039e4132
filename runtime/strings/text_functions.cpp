#include <tetrad/strings/text_functions.h>

#include <QVariant>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <random>

namespace tetrad {

using namespace Qt::StringLiterals;

unsigned char gZRUpperChar[256] = {};
unsigned char gZRLowerChar[256] = {};

namespace {

struct Range
{
    qint64 location = 0;
    qint64 length = 0;
};

Range cutTo(qint64 size, Range range)
{
    const qint64 location = std::clamp<qint64>(range.location, 0, size);
    return {location, std::clamp<qint64>(range.length, 0, size - location)};
}

qint64 foundAt(qint64 location)
{
    return location < 0 ? notFound : location;
}

} // namespace

int InitZRGlobals()
{
    for (char32_t value = 0; value < 256; ++value) {
        // Under a Turkish locale the library's 'i' and 'I' are not each other's forms.
        const bool ascii = value < 0x80;
        const int code = static_cast<int>(value);
        gZRUpperChar[value] = static_cast<unsigned char>(ascii ? QChar::toUpper(value) : std::toupper(code));
        gZRLowerChar[value] = static_cast<unsigned char>(ascii ? QChar::toLower(value) : std::tolower(code));
    }
    std::srand(std::random_device{}());
    return 0;
}

qint64 InString(qint32 start, const QString &haystack, const QString &needle, qint64 options)
{
    const qint64 chosen = options == notGiven ? searchLiteral : options;
    const bool backwards = (chosen & searchBackwards) != 0;
    const qint64 size = haystack.size();
    qint64 from = start;
    if (from < 0 || (backwards && from >= size)) {
        from = backwards ? size - 1 : 0;
    }
    if (from >= size || size == 0 || needle.isEmpty()) {
        return notFound;
    }
    const auto sensitivity = (chosen & searchCaseInsensitive) != 0 ? Qt::CaseInsensitive : Qt::CaseSensitive;
    if (backwards) {
        // The position to search from is passed although it is the end: without it the view reads one character beyond
        // its end for a needle of one character.
        return foundAt(QStringView(haystack).first(from + 1).lastIndexOf(needle, from, sensitivity));
    }
    return foundAt(haystack.indexOf(needle, from, sensitivity));
}

QString RightString(const QString &text, qint64 count)
{
    return count < 1 ? u""_s : text.right(std::min<qint64>(count, text.size()));
}

QString LcaseCFString(const QString &text)
{
    return text.toLower();
}

QString UcaseCFString(const QString &text)
{
    return text.toUpper();
}

qint64 LenCF(const QVariant &object)
{
    if (object.typeId() == QMetaType::QString) {
        return object.toString().size();
    }
    if (object.typeId() == QMetaType::QByteArray) {
        return object.toByteArray().size();
    }
    if (object.canConvert<QVariantMap>()) {
        return object.toMap().size();
    }
    return object.canConvert<QVariantList>() ? object.toList().size() : 0;
}

QString StringWithString(const QString &text)
{
    return text;
}

int StringIsEqual(const QString &left, const QString &right)
{
    return !left.isNull() && !right.isNull() && left == right ? 1 : 0;
}

QString StringByAppendingString(const QString &text, const QString &tail)
{
    return text.isNull() ? text : QString(text + tail);
}

QStringList StringComponentsSeparatedByString(const QString &text, const QString &separator)
{
    if (text.isNull()) {
        return {};
    }
    return separator.isEmpty() ? QStringList{text} : text.split(separator);
}

QString StringSubstringWithRange(const QString &text, qint64 location, qint64 length)
{
    const Range range = cutTo(text.size(), {location, length});
    return text.isNull() ? text : text.sliced(range.location, range.length);
}

int StringContainsString(const QString &text, const QString &part)
{
    return !part.isEmpty() && text.contains(part) ? 1 : 0;
}

QString StringByReplacingOccurrencesOfString(const QString &text, const QString &target, const QString &replacement)
{
    return target.isEmpty() ? text : QString(text).replace(target, replacement);
}

QString StringByReplacingCharactersInRange(const QString &text, qint64 location, qint64 length,
                                           const QString &replacement)
{
    const Range range = cutTo(text.size(), {location, length});
    return text.isNull() ? text : QString(text).replace(range.location, range.length, replacement);
}

} // namespace tetrad
