#include "game/rules/expression_failure.h"

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

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
    return u"character U+"_s + QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0');
}

QStringView numberAt(QStringView text, qsizetype index)
{
    qsizetype end = index;
    while (end < text.size() && isNumberCharacter(text[end])) {
        ++end;
    }
    return text.mid(index, end - index);
}

QString fault(const ExpressionFailure &failure)
{
    const QStringView text = failure.text;
    switch (failure.kind) {
    case ExpressionFailure::empty:
        break;
    case ExpressionFailure::missingOperandBefore:
        return u"missing operand before "_s + quoted(text.mid(failure.index, 1));
    case ExpressionFailure::missingOperandAfter:
        return u"missing operand after "_s + quoted(text.mid(failure.index, 1));
    case ExpressionFailure::missingOperator:
        return u"missing operator before '('"_s;
    case ExpressionFailure::emptyParentheses:
        return u"empty parentheses"_s;
    case ExpressionFailure::notOpened:
        return u"')' without '('"_s;
    case ExpressionFailure::notClosed:
        return u"'(' without ')'"_s;
    case ExpressionFailure::malformedNumber:
        return u"malformed number "_s + quoted(numberAt(text, failure.index));
    case ExpressionFailure::numbersSideBySide:
        return u"two numbers side by side"_s;
    case ExpressionFailure::unexpectedCharacter:
        return u"unexpected "_s + characterName(text, failure.index);
    }
    return u"the expression is empty"_s;
}

} // namespace

QString ExpressionFailure::description() const
{
    const QString what = fault(*this);
    return kind == empty ? what : what + u" at position "_s + QString::number(index + 1);
}

} // namespace tetrad
