#pragma once

#include <tetrad/strings/error_object.h>

#include <QList>
#include <QRegularExpression>

namespace tetrad {

/// Where a match lies, in UTF-16 units from the start of the text.
struct TextRange
{
    qint64 location = 0;
    qint64 length = 0;

    friend bool operator==(const TextRange &, const TextRange &) = default;
};

/// The pattern options are Qt's; 1 is case insensitive. For a faulty pattern the result is not valid
/// and *error, when given, says what is wrong with it.
QRegularExpression RegularExpressionWithPattern(const QString &pattern, QRegularExpression::PatternOptions options,
                                                ErrorObject *error);

/// All matches that begin and end within the given range of the text, in order.
QList<QRegularExpressionMatch> RegularExpressionMatches(const QRegularExpression &expression, const QString &text,
                                                        QRegularExpression::MatchOptions options, qint64 start,
                                                        qint64 length);

TextRange TextCheckingResultRange(const QRegularExpressionMatch &match);

} // namespace tetrad
