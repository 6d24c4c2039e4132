#include "tests/support/table.h"
#include <tetrad/strings/error_object.h>
#include <tetrad/strings/text_format.h>

#include <QStringList>
#include <QTimer>

#include <cmath>
#include <limits>

using namespace tetrad;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();
constexpr quint64 largest = std::numeric_limits<quint64>::max();

TEST(TextFormat, printsEachDirective)
{
    const QVariant error = QVariant::fromValue(ErrorObject{u"Math"_s, 3, u"No operand at 2"_s});
    const QVariantMap map = {{u"a"_s, 1}, {u"b"_s, QVariantList{2}}};
    void *const address = reinterpret_cast<void *>(0xbeef);
    const char *const noText = nullptr;
    const Table<QString, const char *> rows = {
        {"flags", StringWithFormat(u"%+08.3d %#o %#-8llx| % .1e %'d"_s, 42, 8, 255, 2.5, 1234),
         "    +042 010 0xff    |  2.5e+00 1234"},
        {"general and hexadecimal", StringWithFormat(u"%#G %g %.2a"_s, 0.5, 1e10, 1.0), "0.500000 1e+10 0x1.00p+0"},
        {"halves to even, -0 keeps its sign", StringWithFormat(u"%.0f %.0f %f"_s, 0.5, 1.5, -0.0), "0 2 -0.000000"},
        {"width from arguments", StringWithFormat(u"[%*d|%*d]"_s, 3, 7, -3, 7), "[  7|7  ]"},
        {"precision from an argument", StringWithFormat(u"%.*f %.*f"_s, 1, 0.25, -1, 0.25), "0.2 0.250000"},
        {"extremes", StringWithFormat(u"%D %U"_s, smallest, largest), "-9223372036854775808 18446744073709551615"},
        {"cut to size", StringWithFormat(u"%hhd %hu %d %u"_s, 356, 98305, 4294967295U, -1), "100 32769 -1 4294967295"},
        {"sizes", StringWithFormat(u"%ld %lld %qd %zd %td %jd"_s, 1LL << 40, 1, 2, 3, 4, 5), "1099511627776 1 2 3 4 5"},
        {"doubles", StringWithFormat(u"%d %d %u %ld"_s, -2.9, infinity, -1.0, 5e9), "-2 2147483647 0 5000000000"},
        {"a text's value", StringWithFormat(u"%d %.1f"_s, u"12 puzzles"_s, u"2.5 kg"_s), "12 2.5"},
        {"not finite", StringWithFormat(u"%f %05F %e"_s, -infinity, infinity, std::nan("")), "-inf   INF nan"},
        {"no text", StringWithFormat(u"%@ %@ %s"_s, QString(), QVariant(), noText), "(null) (null) (null)"},
        {"width and precision", StringWithFormat(u"[%5@|%-5@|%.2@]"_s, u"ab"_s, u"ab"_s, u"abc"_s), "[   ab|ab   |ab]"},
        {"C string", StringWithFormat(u"[%s|%5.2s|%.*s]"_s, "abc", "abc", 1, "abc"), "[abc|   ab|a]"},
        {"narrow text is UTF-8", StringWithFormat(u"%s %@ %@"_s, "é", "é", QVariant(QByteArray("é"))), "é é é"},
        {"wide text", StringWithFormat(u"Ä%@ %.1s"_s, u"é", u"éa"), "Äé é"},
        {"byte, text, code", StringWithFormat(u"%c %c %C %lc"_s, 0x80, u"xy"_s, 0xC4, 0xC4), "Ä x Ä Ä"},
        {"numbers", StringWithFormat(u"%@ %@ %@ %@ %@"_s, 24, 0.1, 0.1F, -7LL, QVariant(true)), "24 0.1 0.1 -7 1"},
        {"error object", StringWithFormat(u"%@"_s, error), "No operand at 2"},
        {"list", StringWithFormat(u"%@"_s, QStringList{u"a"_s, u"b"_s}), "(a, b)"},
        {"map", StringWithFormat(u"%@"_s, map), "{a = 1; b = (2)}"},
        {"address", StringWithFormat(u"%p %@"_s, address, address), "0xbeef 0xbeef"},
        {"count of characters is not written", StringWithFormat(u"a%nb%d"_s, 1, 2), "ab2"},
        {"order", StringWithFormat(u"%2$@ of %1$d"_s, 3, u"b"_s), "b of 3"},
        {"no such argument", StringWithFormat(u"%9$d %9$@ %99999999999$d"_s, 1), "0 (null) 0"},
        {"missing", StringWithFormat(u"%d %@ %f %s %p"_s), "0 (null) 0.000000 (null) 0x0"},
        {"none", StringWithFormat({}, 1), ""},
        {"percent sign", StringWithFormat(u"100%% of %d"_s, 1), "100% of 1"},
        {"unknown letter", StringWithFormat(u"%y %d"_s, 1), "%y 1"},
        {"ends in the middle", StringWithFormat(u"%-08.3l"_s, 1), "%-08.3l"},
        {"point without digits", StringWithFormat(u"%.f %.@"_s, 2.5, u"x"_s), "2 "},
        {"largest width", QString::number(StringWithFormat(u"%99999999999999999999d"_s, 1).size()), "10000"},
        {"largest precision", QString::number(StringWithFormat(u"%.*f"_s, infinity, 1e308).size()), "10310"},
    };
    for (const auto &[name, printed, expected] : rows) {
        EXPECT_EQ(printed.toStdString(), expected) << name;
    }
    QTimer object;
    EXPECT_EQ(StringWithFormat(u"%@"_s, &object), StringWithFormat(u"<QTimer: %p>"_s, &object));
}

} // namespace
