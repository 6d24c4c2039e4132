#include "game/rules/expression.h"

#include <tetrad/strings/numbers.h>

#include <QVarLengthArray>

#include <charconv>
#include <optional>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

bool isNumberCharacter(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

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
    void fail(const QString &fault, qsizetype index) { m_failure = {fault, index}; }

    QString quoted(qsizetype index, qsizetype length = 1) const { return u'\'' + m_text.mid(index, length) + u'\''; }

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
            failForCharacter();
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
            fail(u"')' without '('"_s, m_at);
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
            fail(u"'(' without ')'"_s, m_frame.openedAt);
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
            fail(u"malformed number "_s + quoted(start, m_at - start), start);
            return;
        }
        // from_chars reports too large and too small alike.
        m_frame.take(error == std::errc() ? value : StringDoubleValue(m_text.mid(start, m_at - start)));
        m_wantsOperand = false;
    }

    void failForOperand()
    {
        if (m_before < 0) {
            fail(u"missing operand"_s, m_at);
        } else if (m_text[m_before] == u'(' && m_at < m_text.size() && m_text[m_at] == u')') {
            fail(u"empty parentheses"_s, m_before);
        } else {
            fail(u"missing operand after "_s + quoted(m_before), m_before);
        }
    }

    void failAfterOperand(QChar c)
    {
        if (isNumberCharacter(c)) {
            fail(u"two numbers side by side"_s, m_at);
        } else if (c == u'(') {
            fail(u"missing operator before '('"_s, m_at);
        } else {
            failForCharacter();
        }
    }

    void failForCharacter() { fail(u"unexpected "_s + quoted(m_at, m_text[m_at].isHighSurrogate() ? 2 : 1), m_at); }

    const QString m_text;
    qsizetype m_at = 0;
    qsizetype m_before = -1; ///< the last operator, sign or parenthesis
    bool m_wantsOperand = true;
    Frame m_frame;
    std::optional<ExpressionFailure> m_failure;
    QVarLengthArray<Frame, 16> m_outer; ///< on the heap only for expressions nested deeper than that
};

} // namespace

QString ExpressionFailure::description() const
{
    return fault + u" at position "_s + QString::number(index + 1);
}

ExpressionValue ExpressionValueWithObject(const Expression &expression, const QVariant &, const QVariant &)
{
    return Evaluator(expression.text).run();
}

} // namespace tetrad
