#include <tetrad/input/control_formatter.h>

#include <tetrad/input/line_input.h>

namespace tetrad {

namespace {

CharacterSet refusedSet(const QString &characters, bool pass, qint64 caseOption)
{
    QString list = characters;
    if (caseOption != caseSensitiveList) {
        list += characters.toUpper();
        list += characters.toLower();
    }
    const CharacterSet listed(list);
    return pass ? listed.inverted() : listed;
}

// First letter of each word upper, the others lower; white space separates words.
QString capitalized(const QString &text)
{
    QString result = text.toLower();
    bool wordStarts = true;
    for (qsizetype i = 0; i < result.size();) {
        const TextCharacter character = characterAt(result, i);
        if (wordStarts) {
            const char32_t title = QChar::toTitleCase(character.value);
            result.replace(i, character.units, QString::fromUcs4(&title, 1));
        }
        wordStarts = QChar::isSpace(character.value);
        i += characterAt(result, i).units;
    }
    return result;
}

} // namespace

CUI_ControlFormatter::CUI_ControlFormatter(const QString &characters, bool pass, quint64 length, qint64 caseOption,
                                           QObject *parent)
    : QValidator(parent), m_refused(refusedSet(characters, pass, caseOption)), m_length(length),
      m_caseOption(caseOption)
{}

QString CUI_ControlFormatter::formatted(const QString &proposal) const
{
    QString accepted = withoutRefused(proposal);
    switch (m_caseOption) {
    case caseForceLower:
        return accepted.toLower();
    case caseForceUpper:
        return accepted.toUpper();
    case caseCapitalizeWords:
        return capitalized(accepted);
    default:
        return accepted;
    }
}

QValidator::State CUI_ControlFormatter::validate(QString &input, int &pos) const
{
    if (m_length != 0 && static_cast<quint64>(characterCount(input)) > m_length) {
        return Invalid;
    }
    const QString text = formatted(input);
    if (text != input) {
        pos = qMin(static_cast<int>(formatted(input.left(pos)).size()), static_cast<int>(text.size()));
        input = text;
    }
    return Acceptable;
}

QString CUI_ControlFormatter::withoutRefused(const QString &proposal) const
{
    QString accepted;
    accepted.reserve(proposal.size());
    for (qsizetype i = 0; i < proposal.size();) {
        const TextCharacter character = characterAt(proposal, i);
        if (!m_refused.contains(character.value)) {
            accepted += QStringView(proposal).mid(i, character.units);
            takeBackRefusedPair(accepted);
        }
        i += character.units;
    }
    return accepted;
}

// When characters between two halves of a pair are removed, the halves become a character that was not checked yet.
void CUI_ControlFormatter::takeBackRefusedPair(QString &accepted) const
{
    if (accepted.size() < 2) {
        return;
    }
    const TextCharacter joined = characterAt(accepted, accepted.size() - 2);
    if (joined.units == 2 && m_refused.contains(joined.value)) {
        accepted.chop(joined.units);
    }
}

} // namespace tetrad
