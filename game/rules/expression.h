#pragma once

#include <tetrad/strings/text_format.h>

#include <QVariant>

#include <variant>

namespace tetrad {

/// The text of an arithmetic expression: decimals, + - * /, signs, parentheses and blanks.
struct Expression
{
    QString text;
};

/// The expression that a formatted text spells; without arguments the text stands for itself.
template <typename... Args>
Expression ExpressionWithFormat(const QString &format, const Args &...args)
{
    if constexpr (sizeof...(args) == 0) {
        return {format};
    } else {
        return {StringWithFormat(format, args...)};
    }
}

/// Why a text is no arithmetic expression, and where.
struct ExpressionFailure
{
    QString fault;       ///< "missing operand after '+'"
    qsizetype index = 0; ///< in UTF-16 units from 0

    /// With the position counted from 1: "missing operand after '+' at position 3". It never starts with a number.
    QString description() const;
};

/// A number, or why there is none.
using ExpressionValue = std::variant<double, ExpressionFailure>;

/// The expression's value in double precision with the usual precedence: "6.0/(1.0-3.0/4.0)" is 24. Dividing by zero
/// follows IEEE arithmetic. Any depth of parentheses is fine: the time is linear in the length and the call stack is
/// not used. The object and the context would supply variables and are ignored.
ExpressionValue ExpressionValueWithObject(const Expression &expression, const QVariant &object,
                                          const QVariant &context);

} // namespace tetrad
