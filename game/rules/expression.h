#pragma once

#include "game/rules/expression_failure.h"
#include <tetrad/strings/text_format.h>

#include <QString>
#include <QVariant>

#include <new>
#include <variant>

namespace tetrad {

/// A digit of ASCII or the point.
inline bool isNumberCharacter(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

/// The value of a text of decimals, + - * /, signs, parentheses and blanks, in double precision with
/// the usual precedence: "6.0/(1.0-3.0/4.0)" is 24. Dividing by zero follows IEEE arithmetic. Any
/// depth of parentheses is fine: the time is linear in the length and the call stack is not used.
std::variant<double, ExpressionFailure> evaluateExpression(std::nothrow_t, QStringView text);

/// The same, but throws ExpressionError for a text that is malformed.
double evaluateExpression(QStringView text);

/// An arithmetic expression that was found to be well formed. It has no variables, so its value is
/// settled when it is made.
class Expression
{
public:
    explicit Expression(double value) : m_value(value) {}
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

/// The same for a text that stands for itself, but hands a failure back.
inline std::variant<Expression, ExpressionFailure> ExpressionWithFormat(std::nothrow_t, const QString &text)
{
    const auto value = evaluateExpression(std::nothrow, text);
    if (const auto *failure = std::get_if<ExpressionFailure>(&value)) {
        return *failure;
    }
    return Expression(std::get<double>(value));
}

/// The expression's value as a number. The object and the context would supply variables and are not
/// looked at.
QVariant ExpressionValueWithObject(const Expression &expression, const QVariant &object, const QVariant &context);

} // namespace tetrad
