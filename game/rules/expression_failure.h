#pragma once

#include <QString>

#include <stdexcept>

namespace tetrad {

/// What is wrong with a text that is no arithmetic expression, and where. Only a kind and a place, so that
/// finding it costs no more than a value; the sentence is made when it is asked for.
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
    qsizetype index = 0; ///< in UTF-16 units from 0

    /// text: the one that was evaluated. The position is counted from 1: "missing operand after '+' at
    /// position 3". Never starts with a number.
    QString description(QStringView text) const;
};

/// Why a text is not an arithmetic expression, see ExpressionFailure::description.
class ExpressionError : public std::runtime_error
{
public:
    explicit ExpressionError(const QString &description) : std::runtime_error(description.toStdString()) {}

    QString description() const { return QString::fromUtf8(what()); }
};

} // namespace tetrad
