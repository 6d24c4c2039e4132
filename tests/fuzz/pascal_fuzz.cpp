// Length-prefixed strings and number texts, against byte arrays as the model. Input: operations, each a byte
// with its operands, on one current string.

#include "tests/fuzz/fuzz_input.h"

#include <tetrad/strings/mac_roman.h>
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/pascal_strings.h>

#include <cmath>

using namespace tetrad;
using namespace tetrad::fuzz;

namespace {

QByteArray contentOf(const unsigned char *string)
{
    return {reinterpret_cast<const char *>(string + 1), string[0]};
}

unsigned char *pushed(const unsigned char *string)
{
    return PSstrcpy(STACK_PUSH(), string);
}

void write(Input &input, unsigned char *string)
{
    const QByteArrayView bytes = input.bytes(input.byte());
    string[0] = static_cast<unsigned char>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), string + 1);
}

void takePart(Input &input, unsigned char *string)
{
    const auto start = input.number<qint16>();
    const auto count = input.number<qint16>();
    const QByteArray whole = contentOf(string);
    const QByteArray expected = count > 0 ? whole.mid(qMax<int>(start, 1) - 1, count) : QByteArray();
    PSstrcpy(string, PSmid(pushed(string), start, count));
    require(contentOf(string) == expected, "the part is what mid takes", fromMacRoman(whole));
}

// From the text and back; a zero byte deliberately ends the text.
void convert(Input &, unsigned char *string)
{
    const QByteArray bytes = contentOf(string);
    const QString text = StringWithPascalString(pushed(string));
    const qsizetype zero = bytes.indexOf('\0');
    require(contentOf(StringPascalString(text)) == bytes.left(zero < 0 ? bytes.size() : zero),
            "there and back is the same", text);
    require(PSlen(pushed(string)) == bytes.size(), "the length is the number of bytes", text);
    require(PSasc(pushed(string)) == (bytes.isEmpty() ? 0 : static_cast<uchar>(bytes.front())),
            "the code is the first byte", text);
}

void convertText(unsigned char *string, const QString &text)
{
    const auto encoded = toMacRoman(text);
    PSstrcpy(string, StringPascalString(text));
    const bool fits = encoded && encoded->size() <= 255;
    require(contentOf(string) == (fits ? *encoded : QByteArray()), "what has no such form is empty", text);
}

void readNumber(Input &input, unsigned char *)
{
    const QString text = input.textUntil('|');
    const double value = StringDoubleValue(text);
    require(!std::isnan(value), "every text has a number", text);
    // The same leading digits, read as an integer and as a decimal; a long fraction may round up to the next one.
    if (std::abs(value) < 1e15 && !text.contains(u'e', Qt::CaseInsensitive)) {
        const double integer = static_cast<double>(StringIntegerValue(text));
        require(std::abs(value - integer) <= 1, "both readers see the same integer", text);
    }
}

void printNumber(Input &input, unsigned char *)
{
    const auto number = input.number<double>();
    const QString printed = CopyDblToString(number);
    require(printed.startsWith(u'-') || printed.startsWith(u' '), "a sign or a blank comes first", printed);
    if (std::abs(number) < 9e15 && std::trunc(number) == number) {
        require(StringDoubleValue(printed) == number, "a whole number reads back", printed);
    }
}

constexpr void (*operations[])(Input &, unsigned char *) = {
    write,
    takePart,
    convert,
    [](Input &in, unsigned char *string) { convertText(string, in.textUntil('|')); },
    [](Input &in, unsigned char *string) { convertText(string, in.units(in.byte())); },
    readNumber,
    printNumber,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input(data, size);
    PascalString string = {};
    while (!input.isEmpty()) {
        operations[input.below(std::size(operations))](input, string);
        require(gZRStk == 0, "the string stack is back at its start");
    }
    return 0;
}
