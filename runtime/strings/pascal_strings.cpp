#include <tetrad/strings/pascal_strings.h>

#include <tetrad/strings/mac_roman.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tetrad {

using namespace Qt::StringLiterals;

qint16 gZRStk = 0;
PascalString gZRStrStk[stringStackSize + 1] = {};
PascalString gReturnedString = {};

namespace {

constexpr qint32 fatalStop = -1;

StringStackStop installedStop = nullptr;

[[noreturn]] void stopOverflow()
{
    const QString message =
        u"Pascal String stack index ( gZRStk ) exceeds string stack size of %1. Zarvane will terminate"_s.arg(
            stringStackSize);
    // Before the stop asks, so that a log says why an unattended program ended.
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    std::fflush(stderr);
    if (installedStop) {
        installedStop(message,
                      u"If 'Source File Combining'( in Build Settings ) is turned OFF, try setting to "
                      "Medium or Maximum"_s,
                      fatalStop);
    }
    std::abort();
}

} // namespace

unsigned char *STACK_PUSH()
{
    if (gZRStk >= stringStackSize) {
        stopOverflow();
    }
    ++gZRStk;
    // After several pops too many there is no slot of that number; slot 0 replaces it, so that nothing outside the
    // storage is overwritten.
    return gZRStrStk[std::max<qint16>(gZRStk, 0)];
}

void popString()
{
    --gZRStk;
}

void setStringStackStop(StringStackStop stop)
{
    installedStop = stop;
}

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
    const QByteArray bytes = toMacRoman(text).value_or(QByteArray());
    const qsizetype length = bytes.size() < qsizetype(sizeof(PascalString)) ? bytes.size() : 0;
    std::copy_n(bytes.begin(), length, gReturnedString + 1);
    gReturnedString[0] = static_cast<unsigned char>(length);
    return gReturnedString;
}

} // namespace tetrad
