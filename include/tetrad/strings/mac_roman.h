#pragma once

// Implemented in runtime/strings/mac_roman.cpp

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

namespace tetrad {

/// Every byte has a character: the euro sign is 0xDB, U+F8FF is 0xF0.
QString fromMacRoman(QByteArrayView bytes);

/// Null if the text holds a character that Mac Roman lacks.
std::optional<QByteArray> toMacRoman(const QString &text);

/// Encodes into the caller's buffer. Returns the number of bytes written, or null if Mac Roman lacks a character or the
/// buffer is too small; the buffer's content is then undefined.
std::optional<qsizetype> encodeMacRoman(const QString &text, std::span<unsigned char> buffer);

} // namespace tetrad
