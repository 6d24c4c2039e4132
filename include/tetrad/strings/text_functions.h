#pragma once

// Implemented in runtime/strings/text_functions.cpp

#include <tetrad/strings/not_given.h>

#include <QString>
#include <QStringList>

#include <limits>

class QVariant;

namespace tetrad {

/// The upper-case and the lower-case form of every byte value. ASCII is the same in every locale,
/// a byte above 127 is mapped as the standard library maps it in the locale in force.
extern unsigned char gZRUpperChar[256];
extern unsigned char gZRLowerChar[256];

/// Fills both case tables and seeds std::rand from the system's entropy source; to be called before
/// either is used. Returns 0.
int InitZRGlobals();

// Positions and lengths count UTF-16 units, positions from 0. A null text equals and
// contains nothing, and every part of it is null.

/// The location of a search that failed.
inline constexpr qint64 notFound = std::numeric_limits<qint64>::max();

/// Search options; add those wanted.
inline constexpr qint64 searchCaseInsensitive = 1;
inline constexpr qint64 searchLiteral = 2;
inline constexpr qint64 searchBackwards = 4;

/// The position of the needle in the haystack, or notFound. A forward search begins at start; a backward
/// one finds the last match that ends at start or before it, and searches everything if start is
/// outside the haystack. Without options the search is literal, which every search here is.
qint64 InString(qint32 start, const QString &haystack, const QString &needle, qint64 options = notGiven);

/// The last count characters; empty for a count below 1, everything for one too large.
QString RightString(const QString &text, qint64 count);

QString LcaseCFString(const QString &text);
QString UcaseCFString(const QString &text);

/// The number of elements of a list or a map, the length of a text or of bytes, 0 for anything else.
qint64 LenCF(const QVariant &object);

QString StringWithString(const QString &text);

/// 1 or 0; the comparison is literal. A null text equals nothing, not even another null text.
int StringIsEqual(const QString &left, const QString &right);

QString StringByAppendingString(const QString &text, const QString &tail);

/// The text as the only part if the separator is empty or does not occur.
QStringList StringComponentsSeparatedByString(const QString &text, const QString &separator);

/// A range that reaches outside the text is cut to it.
QString StringSubstringWithRange(const QString &text, qint64 location, qint64 length);

/// 1 or 0. No text contains the empty text.
int StringContainsString(const QString &text, const QString &part);

/// An empty target occurs nowhere.
QString StringByReplacingOccurrencesOfString(const QString &text, const QString &target, const QString &replacement);

/// A range that reaches outside the text is cut to it, so one beyond the end appends.
QString StringByReplacingCharactersInRange(const QString &text, qint64 location, qint64 length,
                                           const QString &replacement);

} // namespace tetrad
