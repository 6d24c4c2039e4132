#include "game/rules/answer.h"

#include "game/rules/expression.h"
#include "game/rules/regular_expression.h"
#include <tetrad/strings/not_given.h>
#include <tetrad/strings/numbers.h>
#include <tetrad/strings/pascal_strings.h>
#include <tetrad/strings/text_functions.h>

#include <cmath>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 targetValue = 24;

bool occursIn(const QString &answer, qint16 number)
{
    const QString digit = RightString(CopyDblToString(number), 1);
    // One search from the start finds whatever a search from any later position would.
    return InString(0, answer, digit, notGiven) != notFound;
}

// Passes with at most four digits of 1 to 9; 0 is deliberately not counted, since no puzzle has one. An answer without
// a length-prefixed form (above 255 characters, or one outside Mac Roman) counts as empty and passes.
bool passesDigitCount(const QString &answer)
{
    PascalString text;
    PSstrcpy(text, StringPascalString(answer));
    const int length = PSlen(PSstrcpy(STACK_PUSH(), text));
    int digits = 0;
    for (int i = 1; i <= length; ++i) {
        const auto *character = PSmid(PSstrcpy(STACK_PUSH(), text), static_cast<qint16>(i), 1);
        const int code = PSasc(PSstrcpy(STACK_PUSH(), character));
        if (code > 48 && code < 58) {
            ++digits;
        }
    }
    return digits <= numbersPerPuzzle;
}

// Passes when the digit of every puzzle number occurs. How often it occurs is deliberately ignored: "2*3+9+9" passes
// for 2, 2, 3, 9.
bool passesNumberCheck(const QString &answer, const PuzzleNumbers &numbers)
{
    for (qint16 i = 1; i <= numbersPerPuzzle; ++i) {
        if (!occursIn(answer, numbers.at(i, source::numberChecked))) {
            return false;
        }
    }
    return true;
}

// "9/2" becomes "9.0/2.0". The pieces between the matches are appended once, so that a long answer
// takes time in proportion to its length.
QString withDecimalPoints(const QString &text)
{
    // Compiled once, since that takes longer than all the rest of judging an answer.
    static const QRegularExpression literal =
        RegularExpressionWithPattern(u"[0-9.]+"_s, QRegularExpression::CaseInsensitiveOption, nullptr);
    QString decimals;
    qint64 copiedTo = 0;
    const auto matches = RegularExpressionMatches(literal, text, QRegularExpression::NoMatchOption, 0, LenCF(text));
    for (const QRegularExpressionMatch &match : matches) {
        const TextRange range = TextCheckingResultRange(match);
        const QString number = StringSubstringWithRange(text, range.location, range.length);
        decimals += QStringView(text).mid(copiedTo, range.location - copiedTo);
        decimals += StringContainsString(number, u"."_s) ? number : number + u".0";
        copiedTo = range.location + range.length;
    }
    return decimals + QStringView(text).mid(copiedTo);
}

QString withoutZeroDecimals(const QString &result)
{
    const double value = StringDoubleValue(result);
    // Deliberately compared in single precision: a whole value with more than 24 bits keeps its ".000" unless a
    // float holds it exactly. The leading integer, which is what the game looks at, is the same.
    if (value != static_cast<double>(std::floor(static_cast<float>(value)))) {
        return result;
    }
    return StringComponentsSeparatedByString(result, u"."_s).first();
}

Outcome judgeValue(const QString &answer)
{
    if (EvaluateMath(answer).isNull()) {
        return Outcome::noSequence;
    }
    // Deliberately evaluated a second time: the first evaluation only tests validity. Deliberately only the leading
    // integer counts: 24.5 is correct, and a failure is incorrect because its description starts with no number.
    return StringIntegerValue(EvaluateMath(answer)) == targetValue ? Outcome::correct : Outcome::incorrect;
}

} // namespace

QString EvaluateMath(const QString &answer)
{
    const QString text = withDecimalPoints(StringByReplacingOccurrencesOfString(LcaseCFString(answer), u"x"_s, u"*"_s));
    const ExpressionValue value = ExpressionValueWithObject(ExpressionWithFormat(text), QVariant(), QVariant());
    if (const auto *failure = std::get_if<ExpressionFailure>(&value)) {
        return StringWithFormat(u"%@"_s, failure->description());
    }
    return withoutZeroDecimals(StringWithFormat(u"%.3f"_s, ZRDblVal(std::get<double>(value))));
}

Outcome judgeAnswer(const QString &answer, const PuzzleNumbers &numbers)
{
    if (answer.isEmpty()) {
        return Outcome::nothingTyped;
    }
    const QString command = UcaseCFString(answer);
    if (StringIsEqual(command, u"Q"_s)) {
        return Outcome::quit;
    }
    if (StringIsEqual(command, u"S"_s)) {
        return Outcome::skip;
    }
    if (!passesDigitCount(answer)) {
        return Outcome::extraNumbers;
    }
    if (!passesNumberCheck(answer, numbers)) {
        return Outcome::wrongNumbers;
    }
    return judgeValue(answer);
}

} // namespace tetrad
