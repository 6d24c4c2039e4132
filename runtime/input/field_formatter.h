#pragma once

#include <tetrad/input/control_formatter.h>

#include <QString>

#include <optional>

class QLineEdit;

namespace tetrad {

/// A control formatter at work in a line edit, with undo. A line edit forgets its undo history when its validator
/// replaces the text. So this one refuses the proposal, which keeps the history, and makes the replacement as an edit
/// of its own before the line edit's next event. A text that the program sets is not judged.
class FieldFormatter : public CUI_ControlFormatter
{
    Q_OBJECT

public:
    /// The line edit owns the formatter and has it as its validator from now on.
    FieldFormatter(const QString &characters, bool pass, quint64 length, qint64 caseOption, QLineEdit *field);

    State validate(QString &input, int &pos) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Replacement
    {
        QString text;
        int cursor = 0;
    };

    void replaceText();

    QLineEdit *m_field = nullptr;
    mutable std::optional<Replacement> m_replacement;
    bool m_replacing = false;
};

/// Gives a line edit a new formatter in place of the one it has, and lifts the line edit's own length limit.
void attachFormatter(QLineEdit *field, const QString &characters, bool pass, quint64 length, qint64 caseOption);

} // namespace tetrad
