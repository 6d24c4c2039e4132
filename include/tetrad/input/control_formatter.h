#pragma once

// Implemented in runtime/input/control_formatter.cpp

#include <QSet>
#include <QStringView>
#include <QValidator>

namespace tetrad {

/// A set of whole characters (code points; half of a surrogate pair counts as U+FFFD), made from the characters of a
/// list or from all others.
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

/// Judges every proposed edit of a text: one longer than the limit is refused outright, refused
/// characters are taken out of any other, and the case option is applied to what is left.
/// With the list "123qs", pass true and case option 0 the proposal "1 Q0" becomes "1Q".
class CUI_ControlFormatter : public QValidator
{
    Q_OBJECT

public:
    /// characters and pass: the list and whether it names the allowed or the refused characters;
    /// unless caseOption is caseSensitiveList its upper and lower forms belong to it too. length: in
    /// characters, 0 means no limit.
    CUI_ControlFormatter(const QString &characters, bool pass, quint64 length, qint64 caseOption,
                         QObject *parent = nullptr);

    /// The proposal without its refused characters, in the wanted case; the limit is ignored.
    QString formatted(const QString &proposal) const;

    /// Invalid when the proposal is too long; else Acceptable, with input and pos replaced by the
    /// formatted text and the cursor's position in it.
    State validate(QString &input, int &pos) const override;

private:
    CharacterSet m_refused;
    quint64 m_length = 0;
    qint64 m_caseOption = 0;
};

} // namespace tetrad
