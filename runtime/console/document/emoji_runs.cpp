#include "runtime/console/document/emoji_runs.h"

#include <QRegularExpression>

namespace tetrad {

using namespace Qt::StringLiterals;

QList<TextRun> emojiRuns(const QString &text)
{
    // A character that is an emoji, then selectors, skin tones, the tags of a flag, and whatever is joined on. The
    // last block is taken whole, since later versions of Unicode only add emoji to it.
    static const QRegularExpression run(
        u"(?:(?:[\\p{Emoji_Presentation}\\x{1F6DC}\\x{1FA70}-\\x{1FAFF}](?!\\x{FE0E})|[^\\x00-\\x7F]\\x{FE0F})"
        "(?:[\\x{FE0F}\\x{1F3FB}-\\x{1F3FF}\\x{E0020}-\\x{E007F}]|\\x{200D}[^\\x00-\\x7F])*+)++"_s);
    QList<TextRun> runs;
    for (const QRegularExpressionMatch &match : run.globalMatch(text)) {
        runs.append({match.capturedStart(), match.capturedLength()});
    }
    return runs;
}

} // namespace tetrad
