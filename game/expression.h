#pragma once

#include "runtime/strings/text_format.h"

#include <QString>
#include <QVariant>

#include <stdexcept>

namespace tetrad {

/// Why a text is not an arithmetic expression. The description names what is wrong and where, counted
/// in UTF-16 units from 1: "missing operand after '+' at position 3". It never starts with a number.
class ExpressionError : public std::runtime_error
{
public:
    explicit ExpressionError(const QString &description) : std::runtime_error(description.toStdString()) {}

    QString description() const { return QString::fromUtf8(what()); }
};

/// The value of a text of decimals, + - * /, signs, parentheses and blanks, in double precision with
/// the usual precedence: "6.0/(1.0-3.0/4.0)" is 24. Dividing by zero follows IEEE arithmetic. Any
/// depth of parentheses is fine: the time is linear in the length and the call stack is not used.
/// Throws ExpressionError.
double evaluateExpression(QStringView text);

/// An arithmetic expression that was found to be well formed. It has no variables, so its value is
/// settled when it is made.
class Expression
{
public:
    explicit Expression(QStringView text) : m_value(evaluateExpression(text)) {}

    double value() const { return m_value; }

private:
    double m_value = 0.0;
};

/// The expression that a formatted text spells; without arguments the text stands for itself. Throws
/// ExpressionError.
template <typename... Args>
Expression ExpressionWithFormat(const QString &format, const Args &...args)
{
    if constexpr (sizeof...(args) == 0) {
        return Expression(format);
    } else {
        return Expression(StringWithFormat(format, args...));
    }
}

/// The expression's value as a number. The object and the context would supply variables and are not
/// looked at.
QVariant ExpressionValueWithObject(const Expression &expression, const QVariant &object, const QVariant &context);

} // namespace tetrad
