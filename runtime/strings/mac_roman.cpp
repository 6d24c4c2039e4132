#include <tetrad/strings/mac_roman.h>

#include <algorithm>
#include <array>

namespace tetrad {

namespace {

constexpr char16_t asciiEnd = 0x80;

// Bytes 0x80 to 0xFF, as Unicode's mapping table for the encoding gives them.
constexpr std::array<char16_t, 128> upperHalf = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, // 80
    0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5, 0x00E7, 0x00E9, 0x00E8, // 88
    0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, // 90
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, // 98
    0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6, 0x00DF, // A0
    0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, // A8
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, // B0
    0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, // B8
    0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB, // C0
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, // C8
    0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, // D0
    0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, // D8
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, // E0
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, // E8
    0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC, // F0
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7, // F8
};

std::optional<QByteArray> encoded(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const auto upper = std::ranges::find(upperHalf, character.unicode());
        if (upper == upperHalf.end() && character.unicode() >= asciiEnd) {
            return std::nullopt;
        }
        const auto code = character.unicode() < asciiEnd ? character.unicode() : asciiEnd + (upper - upperHalf.begin());
        bytes += static_cast<char>(code);
    }
    return bytes;
}

} // namespace

QString fromMacRoman(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(), [](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return QChar(value < asciiEnd ? char16_t(value) : upperHalf[value - asciiEnd]);
    });
    return text;
}

std::optional<QByteArray> toMacRoman(const QString &text)
{
    if (auto bytes = encoded(text)) {
        return bytes;
    }
    // A letter and its accent as two characters are one in Mac Roman.
    return encoded(text.normalized(QString::NormalizationForm_C));
}

} // namespace tetrad
