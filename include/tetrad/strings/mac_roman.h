#pragma once

// Implemented in runtime/strings/mac_roman.cpp

#include <QByteArray>
#include <QString>

#include <optional>

namespace tetrad {

/// Every byte has a character: the euro sign is 0xDB, U+F8FF is 0xF0.
QString fromMacRoman(QByteArrayView bytes);

/// Null if the text holds a character that Mac Roman lacks.
std::optional<QByteArray> toMacRoman(const QString &text);

} // namespace tetrad
