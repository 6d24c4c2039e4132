#pragma once

#include <QString>

namespace tetrad {

/// What is wrong with a text that is no arithmetic expression, and where.
struct ExpressionFailure
{
    enum Kind {
        empty,
        missingOperandBefore,
        missingOperandAfter,
        missingOperator,
        emptyParentheses,
        notOpened,
        notClosed,
        malformedNumber,
        numbersSideBySide,
        unexpectedCharacter,
    };

    Kind kind = empty;
    QString text;        ///< the one that was evaluated
    qsizetype index = 0; ///< in UTF-16 units from 0

    /// A sentence with the position counted from 1: "missing operand after '+' at position 3". It never starts with a
    /// number.
    QString description() const;
};

/// A digit of ASCII or the point.
inline bool isNumberCharacter(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

} // namespace tetrad
