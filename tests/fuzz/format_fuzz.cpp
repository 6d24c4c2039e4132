// Formats of the formatted print. Input: two numbers and a text as arguments, then the format. What C's own
// printf would do with a directive is compared with it; anything else must only be survived.

#include "tests/fuzz/fuzz_input.h"

#include "runtime/strings/format_directive.h"
#include <tetrad/strings/text_format.h>

#include <QVariantMap>

using namespace tetrad;
using namespace Qt::StringLiterals;
using namespace tetrad::fuzz;

namespace {

bool isComparable(const DirectiveNumber &number)
{
    return number.source != DirectiveNumber::Source::Argument && number.value < largestDirectiveNumber;
}

template <typename Number>
void compare(const QByteArray &directive, Number number)
{
    static char expected[32768];
    // The format is the fuzzer's, taken apart beforehand and found to be one directive for this argument.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int size = std::snprintf(expected, sizeof expected, directive.constData(), number);
#pragma GCC diagnostic pop
    const QString format = QString::fromLatin1(directive);
    const QString printed = StringWithFormat(format, number);
    require(printed == QLatin1String(expected, size), "printf prints the same", format + u" -> " + printed);
}

// The argument's C type follows from the directive.
void compareWithPrintf(const QString &text, const FormatDirective &directive, qint64 integer, double real)
{
    // Without its flag for groups, which C's own locale has none of.
    QByteArray bytes = text.left(directive.length).toLatin1().replace("'", "");
    const bool isReal = QByteArrayView("fFeEgGaA").contains(directive.conversion);
    if (bytes.contains('L') || (!isReal && !QByteArrayView("diuoxX").contains(directive.conversion))) {
        return;
    }
    if (directive.bits == 32) {
        isReal ? compare(bytes, real) : compare(bytes, static_cast<int>(integer));
    } else if (!isReal) {
        // However it was spelled; C lacks some of the spellings.
        bytes.removeIf([](char c) { return QByteArrayView("hlqjzt").contains(c); });
        bytes.chop(1);
        compare(bytes + "ll" + directive.conversion, integer);
    }
}

void survive(const QString &format, qint64 integer, double real, const QString &text)
{
    const QVariantMap map = {{text, integer}, {u"list"_s, QVariantList{real, text, QVariant()}}};
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
    const QString format = input.textUntil('\0').left(100);
    survive(format, integer, real, text);

    const QString rest = format.mid(qMax<qsizetype>(format.indexOf(u'%'), 0));
    const auto directive = rest.startsWith(u'%') ? parseDirective(rest) : std::nullopt;
    if (directive && directive->argument == 0 && isComparable(directive->width) && isComparable(directive->precision)) {
        compareWithPrintf(rest, *directive, integer, real);
    }
    return 0;
}
