#include "game/expression.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <limits>

namespace tetrad {

namespace {

bool isNumberCharacter(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

QString placed(const QString &what, qsizetype index)
{
    return what + QStringLiteral(" at position ") + QString::number(index + 1);
}

QString quoted(QStringView text)
{
    return u'\'' + text.toString() + u'\'';
}

// A character that cannot be seen, or half of one, is named by its code.
QString characterName(QStringView text, qsizetype index)
{
    const QChar c = text[index];
    if (c.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate()) {
        return quoted(text.mid(index, 2));
    }
    if (c.isPrint() && !c.isSpace()) {
        return quoted(text.mid(index, 1));
    }
    return QStringLiteral("character U+") + QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0');
}

// What is known inside one pair of parentheses: "2+3*" is the sum 2 and the product 3. The sign of a
// term is kept in its product. The first sum is -0 because that is the number that changes no other
// when added, not even -0.
struct Frame
{
    double sum = -0.0;
    double product = 1.0;
    qsizetype openedAt = -1;
    bool divides = false;

    void take(double operand)
    {
        product = divides ? product / operand : product * operand;
        divides = false;
    }
    void startTerm(double sign)
    {
        sum += product;
        product = sign;
    }
};

class Evaluator
{
public:
    explicit Evaluator(QStringView text) : m_text(text) {}

    double run()
    {
        while (skipBlanks()) {
            if (m_wantsOperand) {
                takeOperand();
            } else {
                takeOperator();
            }
        }
        return finish();
    }

private:
    bool skipBlanks()
    {
        while (m_at < m_text.size() && (m_text[m_at] == u' ' || m_text[m_at] == u'\t')) {
            ++m_at;
        }
        return m_at < m_text.size();
    }

    void takeOperand()
    {
        const QChar c = m_text[m_at];
        if (isNumberCharacter(c)) {
            m_frame.take(number());
            m_wantsOperand = false;
            return;
        }
        switch (c.unicode()) {
        case u'(':
            m_outer.append(m_frame);
            m_frame = Frame{.openedAt = m_at};
            break;
        case u'-':
            m_frame.product = -m_frame.product;
            break;
        case u'+':
            break;
        case u')':
        case u'*':
        case u'/':
            throw missingOperand();
        default:
            throw ExpressionError(placed(QStringLiteral("unexpected ") + characterName(m_text, m_at), m_at));
        }
        m_before = m_at++;
    }

    void takeOperator()
    {
        const QChar c = m_text[m_at];
        m_wantsOperand = true;
        switch (c.unicode()) {
        case u'+':
            m_frame.startTerm(1.0);
            break;
        case u'-':
            m_frame.startTerm(-1.0);
            break;
        case u'*':
            break;
        case u'/':
            m_frame.divides = true;
            break;
        case u')':
            closeParenthesis();
            break;
        default:
            throw unexpectedAfterOperand(c);
        }
        m_before = m_at++;
    }

    void closeParenthesis()
    {
        if (m_outer.isEmpty()) {
            throw ExpressionError(placed(QStringLiteral("')' without '('"), m_at));
        }
        const double value = m_frame.sum + m_frame.product;
        m_frame = m_outer.last();
        m_outer.removeLast();
        m_frame.take(value);
        m_wantsOperand = false;
    }

    double finish()
    {
        if (m_wantsOperand) {
            throw missingOperand();
        }
        if (!m_outer.isEmpty()) {
            throw ExpressionError(placed(QStringLiteral("'(' without ')'"), m_frame.openedAt));
        }
        return m_frame.sum + m_frame.product;
    }

    double number()
    {
        const qsizetype start = m_at;
        QVarLengthArray<char, 64> digits;
        while (m_at < m_text.size() && isNumberCharacter(m_text[m_at])) {
            digits.append(static_cast<char>(m_text[m_at++].unicode()));
        }
        double value = 0.0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, std::chars_format::fixed);
        if (end != digits.end()) {
            throw ExpressionError(
                placed(QStringLiteral("malformed number ") + quoted(m_text.mid(start, m_at - start)), start));
        }
        return error == std::errc::result_out_of_range ? outOfRange(digits) : value;
    }

    // from_chars does not tell too large from too small; only the too large have digits before the point.
    template <typename Digits>
    static double outOfRange(const Digits &digits)
    {
        const auto point = std::find(digits.begin(), digits.end(), '.');
        const bool isLarge = std::any_of(digits.begin(), point, [](char digit) { return digit != '0'; });
        return isLarge ? std::numeric_limits<double>::infinity() : 0.0;
    }

    ExpressionError missingOperand() const
    {
        const bool atEnd = m_at >= m_text.size();
        if (m_before < 0) {
            return ExpressionError(
                atEnd ? QStringLiteral("the expression is empty")
                      : placed(QStringLiteral("missing operand before ") + quoted(m_text.mid(m_at, 1)), m_at));
        }
        if (m_text[m_before] == u'(' && !atEnd && m_text[m_at] == u')') {
            return ExpressionError(placed(QStringLiteral("empty parentheses"), m_before));
        }
        return ExpressionError(
            placed(QStringLiteral("missing operand after ") + quoted(m_text.mid(m_before, 1)), m_before));
    }

    ExpressionError unexpectedAfterOperand(QChar c) const
    {
        if (isNumberCharacter(c)) {
            return ExpressionError(placed(QStringLiteral("two numbers side by side"), m_at));
        }
        if (c == u'(') {
            return ExpressionError(placed(QStringLiteral("missing operator before '('"), m_at));
        }
        return ExpressionError(placed(QStringLiteral("unexpected ") + characterName(m_text, m_at), m_at));
    }

    QStringView m_text;
    qsizetype m_at = 0;
    qsizetype m_before = -1; ///< the last operator, sign or parenthesis
    bool m_wantsOperand = true;
    Frame m_frame;
    QVarLengthArray<Frame, 16> m_outer; ///< on the heap only for expressions nested deeper than that
};

} // namespace

double evaluateExpression(QStringView text)
{
    return Evaluator(text).run();
}

QVariant ExpressionValueWithObject(const Expression &expression, const QVariant &, const QVariant &)
{
    return expression.value();
}

} // namespace tetrad
