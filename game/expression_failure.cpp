#include "game/expression_failure.h"

#include "game/expression.h"

namespace tetrad {

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
    return QStringLiteral("character U+") + QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0');
}

QStringView numberAt(QStringView text, qsizetype index)
{
    qsizetype end = index;
    while (end < text.size() && isNumberCharacter(text[end])) {
        ++end;
    }
    return text.mid(index, end - index);
}

QString fault(const ExpressionFailure &failure, QStringView text)
{
    switch (failure.kind) {
    case ExpressionFailure::empty:
        break;
    case ExpressionFailure::missingOperandBefore:
        return QStringLiteral("missing operand before ") + quoted(text.mid(failure.index, 1));
    case ExpressionFailure::missingOperandAfter:
        return QStringLiteral("missing operand after ") + quoted(text.mid(failure.index, 1));
    case ExpressionFailure::missingOperator:
        return QStringLiteral("missing operator before '('");
    case ExpressionFailure::emptyParentheses:
        return QStringLiteral("empty parentheses");
    case ExpressionFailure::notOpened:
        return QStringLiteral("')' without '('");
    case ExpressionFailure::notClosed:
        return QStringLiteral("'(' without ')'");
    case ExpressionFailure::malformedNumber:
        return QStringLiteral("malformed number ") + quoted(numberAt(text, failure.index));
    case ExpressionFailure::numbersSideBySide:
        return QStringLiteral("two numbers side by side");
    case ExpressionFailure::unexpectedCharacter:
        return QStringLiteral("unexpected ") + characterName(text, failure.index);
    }
    return QStringLiteral("the expression is empty");
}

} // namespace

QString ExpressionFailure::description(QStringView text) const
{
    const QString what = fault(*this, text);
    return kind == empty ? what : what + QStringLiteral(" at position ") + QString::number(index + 1);
}

} // namespace tetrad
