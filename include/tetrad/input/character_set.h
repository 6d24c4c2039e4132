#pragma once

#include <QSet>
#include <QStringView>

namespace tetrad {

/// A set of whole characters (code points, so one outside the basic plane counts once), made from
/// the characters of a list or from all others.
class CharacterSet
{
public:
    CharacterSet() = default;
    explicit CharacterSet(QStringView list);

    /// Every character that is not in this set.
    CharacterSet inverted() const;

    bool contains(char32_t character) const { return m_members.contains(character) != m_inverted; }

    /// True for a text whose first character is in the set; false for an empty one.
    bool containsFirstOf(QStringView text) const;

private:
    QSet<char32_t> m_members;
    bool m_inverted = false;
};

/// The character that starts at a position of the text, and how many units (1 or 2) it takes. Half
/// of a pair standing alone counts as a character of its own.
struct TextCharacter
{
    char32_t value = 0;
    int units = 1;
};
TextCharacter characterAt(QStringView text, qsizetype position);

/// The number of whole characters.
qsizetype characterCount(QStringView text);

} // namespace tetrad
