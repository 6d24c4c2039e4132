#pragma once

#include <QList>
#include <QString>

namespace tetrad {

/// A stretch of a text, in UTF-16 units.
struct TextRun
{
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const TextRun &) const = default;
};

/// The stretches of a text that belong to the colour emoji font: characters whose default presentation is emoji
/// (Unicode's Emoji_Presentation property) or that are followed by the emoji variation selector, with what joins them
/// into one picture. Digits, '#' and '*' never belong, nor a character followed by the text variation selector.
QList<TextRun> emojiRuns(const QString &text);

} // namespace tetrad
