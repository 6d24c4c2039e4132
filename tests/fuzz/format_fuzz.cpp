// Formats of the formatted print. Input: two numbers and a text as arguments, then the format. What C's own
// printf would do with a directive is compared with it; anything else must only be survived.

#include "tests/fuzz/fuzz_input.h"

#include "runtime/strings/format_directive.h"
#include "runtime/strings/text_format.h"

#include <QVariantMap>

#include <array>
#include <cstdio>

using namespace tetrad;
using namespace tetrad::fuzz;

namespace {

bool isComparable(const DirectiveNumber &number)
{
    return number.source != DirectiveNumber::Source::Argument && number.value < largestDirectiveNumber;
}

bool isComparable(const FormatDirective &directive)
{
    return directive.argument == 0 && isComparable(directive.width) && isComparable(directive.precision);
}

template <typename Number>
void compare(const QByteArray &directive, Number number)
{
    static std::array<char, 32768> expected;
    // The format is the fuzzer's, taken apart beforehand and found to be one directive for this argument.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int size = std::snprintf(expected.data(), expected.size(), directive.constData(), number);
#pragma GCC diagnostic pop
    const QString format = QString::fromLatin1(directive);
    const QString printed = StringWithFormat(format, number);
    require(printed == QLatin1String(expected.data(), size), "printf prints the same", format + u" -> " + printed);
}

// The argument's C type follows from the directive.
void compareWithPrintf(const QString &text, const FormatDirective &directive, qint64 integer, double real)
{
    QByteArray bytes = text.left(directive.length).toLatin1();
    // Without its flag for groups, which C's own locale has none of.
    bytes.replace("'", "");
    if (directive.bits == 64) {
        // However it was spelled; C lacks some of the spellings.
        bytes.removeIf([](char c) { return QByteArrayView("hlqjzt").contains(c); });
        bytes.chop(1);
        bytes += QByteArray("ll") + directive.conversion;
    }
    if (QByteArrayView("diuoxX").contains(directive.conversion) && !bytes.contains('L')) {
        if (directive.bits == 64) {
            compare(bytes, integer);
        } else {
            compare(bytes, static_cast<int>(integer));
        }
    } else if (QByteArrayView("fFeEgGaA").contains(directive.conversion) && directive.bits == 32 &&
               !bytes.contains('L')) {
        compare(bytes, real);
    }
}

void survive(const QString &format, qint64 integer, double real, const QString &text)
{
    const QVariantMap map = {{text, integer}, {QStringLiteral("list"), QVariantList{real, text, QVariant()}}};
    StringWithFormat(format, integer, real, text, map);
    StringWithFormat(format, real, text, integer);
    StringWithFormat(format, text, qUtf8Printable(text), QVariant(), true);
    StringWithFormat(format);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input(data, size);
    const auto integer = input.number<qint64>();
    const auto real = input.number<double>();
    const QString text = input.textUntil('|');
    const QString format = input.rest().left(100);
    survive(format, integer, real, text);

    const qsizetype percent = format.indexOf(u'%');
    const QString rest = percent < 0 ? QString() : format.mid(percent);
    const auto directive = percent < 0 ? std::nullopt : parseDirective(rest);
    if (directive && isComparable(*directive)) {
        compareWithPrintf(rest, *directive, integer, real);
    }
    return 0;
}
