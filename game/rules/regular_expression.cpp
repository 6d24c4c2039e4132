#include "game/rules/regular_expression.h"

namespace tetrad {

using namespace Qt::StringLiterals;

QRegularExpression RegularExpressionWithPattern(const QString &pattern, QRegularExpression::PatternOptions options,
                                                ErrorObject *error)
{
    QRegularExpression expression(pattern, options);
    if (!expression.isValid() && error) {
        *error = {u"QRegularExpression"_s, expression.patternErrorOffset(),
                  expression.errorString() + u" in \""_s + pattern + u'"'};
    }
    return expression;
}

QList<QRegularExpressionMatch> RegularExpressionMatches(const QRegularExpression &expression, const QString &text,
                                                        QRegularExpression::MatchOptions options, qint64 start,
                                                        qint64 length)
{
    QList<QRegularExpressionMatch> matches;
    auto iterator = expression.globalMatch(text.left(start + length), start, QRegularExpression::NormalMatch, options);
    while (iterator.hasNext()) {
        matches.append(iterator.next());
    }
    return matches;
}

TextRange TextCheckingResultRange(const QRegularExpressionMatch &match)
{
    return {match.capturedStart(), match.capturedLength()};
}

} // namespace tetrad
