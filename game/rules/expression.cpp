#include "game/rules/expression.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace tetrad {

namespace {

// The state inside one pair of parentheses: "2+3*" is the sum 2 and the product 3. The sign of a term is kept in its
// product. The first sum is -0, since adding that changes no number, not even -0.
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
    explicit Evaluator(const QString &text) : m_text(text) {}

    ExpressionValue run()
    {
        while (!m_failure && skipBlanks()) {
            if (m_wantsOperand) {
                takeOperand();
            } else {
                takeOperator();
            }
        }
        if (!m_failure) {
            finish();
        }
        if (m_failure) {
            return *m_failure;
        }
        return m_frame.sum + m_frame.product;
    }

private:
    void fail(ExpressionFailure::Kind kind, qsizetype index) { m_failure = {kind, m_text, index}; }

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
            takeNumber();
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
            failForOperand();
            break;
        default:
            fail(ExpressionFailure::unexpectedCharacter, m_at);
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
            failAfterOperand(c);
        }
        m_before = m_at++;
    }

    void closeParenthesis()
    {
        if (m_outer.isEmpty()) {
            fail(ExpressionFailure::notOpened, m_at);
            return;
        }
        const double value = m_frame.sum + m_frame.product;
        m_frame = m_outer.last();
        m_outer.removeLast();
        m_frame.take(value);
        m_wantsOperand = false;
    }

    void finish()
    {
        if (m_wantsOperand) {
            failForOperand();
        } else if (!m_outer.isEmpty()) {
            fail(ExpressionFailure::notClosed, m_frame.openedAt);
        }
    }

    void takeNumber()
    {
        const qsizetype start = m_at;
        QVarLengthArray<char, 64> digits;
        while (m_at < m_text.size() && isNumberCharacter(m_text[m_at])) {
            digits.append(static_cast<char>(m_text[m_at++].unicode()));
        }
        double value = 0.0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value, std::chars_format::fixed);
        if (end != digits.end()) {
            fail(ExpressionFailure::malformedNumber, start);
            return;
        }
        m_frame.take(error == std::errc::result_out_of_range ? outOfRange(digits) : value);
        m_wantsOperand = false;
    }

    // from_chars reports too large and too small alike; only the too large have digits before the point.
    template <typename Digits>
    static double outOfRange(const Digits &digits)
    {
        const auto point = std::find(digits.begin(), digits.end(), '.');
        const bool isLarge = std::any_of(digits.begin(), point, [](char digit) { return digit != '0'; });
        return isLarge ? std::numeric_limits<double>::infinity() : 0.0;
    }

    void failForOperand()
    {
        const bool atEnd = m_at >= m_text.size();
        if (m_before < 0) {
            fail(atEnd ? ExpressionFailure::empty : ExpressionFailure::missingOperandBefore, m_at);
        } else if (m_text[m_before] == u'(' && !atEnd && m_text[m_at] == u')') {
            fail(ExpressionFailure::emptyParentheses, m_before);
        } else {
            fail(ExpressionFailure::missingOperandAfter, m_before);
        }
    }

    void failAfterOperand(QChar c)
    {
        if (isNumberCharacter(c)) {
            fail(ExpressionFailure::numbersSideBySide, m_at);
        } else if (c == u'(') {
            fail(ExpressionFailure::missingOperator, m_at);
        } else {
            fail(ExpressionFailure::unexpectedCharacter, m_at);
        }
    }

    const QString m_text;
    qsizetype m_at = 0;
    qsizetype m_before = -1; ///< the last operator, sign or parenthesis
    bool m_wantsOperand = true;
    Frame m_frame;
    std::optional<ExpressionFailure> m_failure;
    QVarLengthArray<Frame, 16> m_outer; ///< on the heap only for expressions nested deeper than that
};

} // namespace

ExpressionValue ExpressionValueWithObject(const Expression &expression, const QVariant &, const QVariant &)
{
    return Evaluator(expression.text).run();
}

} // namespace tetrad
