#pragma once

#include <QLabel>

namespace tetrad {

/// A prompt on one line, cut in its middle where it is wider than the label. The tool tip then shows all of it.
class PromptLabel : public QLabel
{
public:
    /// Between the label's left edge and its text, as in a line edit.
    static constexpr int inset = 2;

    PromptLabel(const QString &prompt, QWidget *parent);

    const QString &prompt() const { return m_prompt; }

    /// The whole prompt's width in pixels; 0 without one.
    int promptWidth() const;

    /// Sets the geometry and shows as much of the prompt as fits.
    void fitInto(const QRect &rect);

private:
    QString m_prompt;
    QString m_line; ///< the prompt without line breaks
};

} // namespace tetrad
