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

QString textOf(const QList<uint> &characters)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()), characters.size());
}

// First letter of each word upper, the others lower; white space separates words.
QString capitalized(const QString &text)
{
    QList<uint> characters = text.toLower().toUcs4();
    bool wordStarts = true;
    for (uint &character : characters) {
        character = wordStarts ? QChar::toTitleCase(character) : character;
        wordStarts = QChar::isSpace(character);
    }
    return textOf(characters);
}

} // namespace

CharacterSet::CharacterSet(QStringView list)
{
    const QList<uint> characters = list.toUcs4();
    m_members = QSet<char32_t>(characters.begin(), characters.end());
}

CharacterSet CharacterSet::inverted() const
{
    CharacterSet result = *this;
    result.m_inverted = !m_inverted;
    return result;
}

bool CharacterSet::containsFirstOf(QStringView text) const
{
    return !text.isEmpty() && contains(text.toUcs4().first());
}

CUI_ControlFormatter::CUI_ControlFormatter(const QString &characters, bool pass, quint64 length, qint64 caseOption,
                                           QObject *parent)
    : QValidator(parent), m_refused(refusedSet(characters, pass, caseOption)), m_length(length),
      m_caseOption(caseOption)
{}

QString CUI_ControlFormatter::formatted(const QString &proposal) const
{
    QList<uint> characters = proposal.toUcs4();
    characters.removeIf([this](char32_t character) { return m_refused.contains(character); });
    QString accepted = textOf(characters);
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
    if (m_length != 0 && static_cast<quint64>(input.toUcs4().size()) > m_length) {
        return Invalid;
    }
    const QString text = formatted(input);
    if (text != input) {
        pos = qMin(static_cast<int>(formatted(input.left(pos)).size()), static_cast<int>(text.size()));
        input = text;
    }
    return Acceptable;
}

} // namespace tetrad
