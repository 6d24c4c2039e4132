#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

namespace tetrad {

/// Every byte has a character: the euro sign is 0xDB, U+F8FF is 0xF0.
QString fromMacRoman(QByteArrayView bytes);

/// None if the text holds a character that Mac Roman lacks.
std::optional<QByteArray> toMacRoman(const QString &text);

/// Encodes into a buffer of the caller's. Returns the number of bytes written, or none if a character
/// is not in Mac Roman or the buffer is too small; the buffer's content is then undefined.
std::optional<qsizetype> encodeMacRoman(const QString &text, std::span<unsigned char> buffer);

} // namespace tetrad
