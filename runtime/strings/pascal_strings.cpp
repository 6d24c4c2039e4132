#include <tetrad/strings/pascal_strings.h>

#include <tetrad/strings/mac_roman.h>

#include <algorithm>
#include <cstring>

namespace tetrad {

PascalString gReturnedString = {};

unsigned char *PSstrcpy(unsigned char *destination, const unsigned char *source)
{
    std::memmove(destination, source, source[0] + std::size_t{1});
    return destination;
}

unsigned char *PSmid(const unsigned char *source, qint16 start, qint16 count)
{
    popString();
    const int length = source[0];
    const int first = std::clamp<int>(start, 1, sizeof(PascalString));
    // The characters from the start on; a negative number for a start beyond the end.
    const int copied = std::clamp<int>(count, 0, std::max(length - first + 1, 0));
    std::memmove(gReturnedString + 1, source + first, static_cast<std::size_t>(copied));
    gReturnedString[0] = static_cast<unsigned char>(copied);
    return gReturnedString;
}

int PSlen(const unsigned char *source)
{
    popString();
    return source[0];
}

int PSasc(const unsigned char *source)
{
    popString();
    return source[0] == 0 ? 0 : source[1];
}

QString StringWithPascalString(const unsigned char *source)
{
    popString();
    const auto *characters = reinterpret_cast<const char *>(source + 1);
    return fromMacRoman(QByteArrayView(characters, static_cast<qsizetype>(qstrnlen(characters, source[0]))));
}

unsigned char *StringPascalString(const QString &text)
{
    const auto length = encodeMacRoman(text, std::span(gReturnedString).subspan(1));
    gReturnedString[0] = static_cast<unsigned char>(length.value_or(0));
    return gReturnedString;
}

} // namespace tetrad
