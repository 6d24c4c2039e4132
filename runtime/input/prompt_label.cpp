#include "runtime/input/prompt_label.h"

#include <QFontMetrics>

namespace tetrad {

namespace {

QString inOneLine(QString prompt)
{
    // Wider than any content; only the ends of a longer prompt could be seen, and measuring it would take time.
    constexpr qsizetype enough = 4096;
    if (prompt.size() > enough) {
        prompt = prompt.left(enough / 2) + prompt.right(enough / 2);
    }
    for (QChar &character : prompt) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line) {
            character = u' ';
        }
    }
    return prompt;
}

} // namespace

PromptLabel::PromptLabel(const QString &prompt, QWidget *parent)
    : QLabel(parent), m_prompt(prompt), m_line(inOneLine(prompt))
{
    setAccessibleName(prompt);
}

int PromptLabel::promptWidth() const
{
    return fontMetrics().horizontalAdvance(m_line);
}

void PromptLabel::fitInto(const QRect &rect)
{
    setGeometry(rect);
    const QString shown = fontMetrics().elidedText(m_line, Qt::ElideMiddle, rect.width() - 2 * inset);
    if (shown != text()) {
        setText(shown);
        setToolTip(shown == m_line ? QString() : m_prompt);
    }
}

} // namespace tetrad
