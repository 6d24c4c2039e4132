#include <tetrad/strings/pascal_strings.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tetrad {

using namespace Qt::StringLiterals;

qint16 gZRStk = 0;
PascalString gZRStrStk[stringStackSize + 1] = {};

namespace {

constexpr qint32 fatalStop = -1;

StringStackStop installedStop = nullptr;

[[noreturn]] void stopOverflow()
{
    const QString message =
        u"Pascal String stack index ( gZRStk ) exceeds string stack size of %1. Zarvane will terminate"_s.arg(
            stringStackSize);
    // Before the stop asks, so that a log tells why a program that nobody was watching is gone.
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    std::fflush(stderr);
    if (installedStop != nullptr) {
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
    // After several pops too many there is no slot of that number; slot 0 stands in, so that the
    // storage's neighbours stay whole.
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

} // namespace tetrad
