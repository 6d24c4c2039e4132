#include <tetrad/input/control_formatter.h>

namespace tetrad {

CharacterSet::CharacterSet(QStringView list)
{
    for (qsizetype i = 0; i < list.size();) {
        const TextCharacter character = characterAt(list, i);
        m_members.insert(character.value);
        i += character.units;
    }
}

CharacterSet CharacterSet::inverted() const
{
    CharacterSet result = *this;
    result.m_inverted = !m_inverted;
    return result;
}

bool CharacterSet::containsFirstOf(QStringView text) const
{
    return !text.isEmpty() && contains(characterAt(text, 0).value);
}

TextCharacter characterAt(QStringView text, qsizetype position)
{
    const QChar unit = text[position];
    if (unit.isHighSurrogate() && position + 1 < text.size() && text[position + 1].isLowSurrogate()) {
        return {QChar::surrogateToUcs4(unit, text[position + 1]), 2};
    }
    return {unit.unicode(), 1};
}

qsizetype characterCount(QStringView text)
{
    qsizetype count = 0;
    for (qsizetype i = 0; i < text.size(); i += characterAt(text, i).units) {
        ++count;
    }
    return count;
}

} // namespace tetrad
