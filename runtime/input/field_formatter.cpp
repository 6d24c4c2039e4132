#include "runtime/input/field_formatter.h"

#include <tetrad/input/control_formatter.h>

#include <QEvent>
#include <QLineEdit>

#include <algorithm>
#include <limits>
#include <optional>

namespace tetrad {

namespace {

// Turns the field's text into another one by a single edit of the part that differs.
void editInto(QLineEdit *field, const QString &text)
{
    const QString old = field->text();
    const auto shorter = std::min(old.size(), text.size());
    qsizetype head = 0;
    while (head < shorter && old[head] == text[head]) {
        ++head;
    }
    qsizetype tail = 0;
    while (tail < shorter - head && old[old.size() - 1 - tail] == text[text.size() - 1 - tail]) {
        ++tail;
    }
    field->setSelection(static_cast<int>(head), static_cast<int>(old.size() - head - tail));
    field->insert(text.mid(head, text.size() - head - tail));
}

bool mayReadOrEdit(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::Drop:
    case QEvent::FocusOut:
        return true;
    default:
        return false;
    }
}

// A control formatter at work in a line edit, with undo. A line edit forgets its undo history when its validator
// replaces the text. So this one refuses the proposal, which keeps the history, and makes the replacement as an edit
// of its own before the line edit's next event. A text that the program sets is not judged.
class FieldFormatter : public CUI_ControlFormatter
{
public:
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

FieldFormatter::FieldFormatter(const QString &characters, bool pass, quint64 length, qint64 caseOption,
                               QLineEdit *field)
    : CUI_ControlFormatter(characters, pass, length, caseOption, field), m_field(field)
{
    field->setValidator(this);
    field->installEventFilter(this);
    // Queued, because the signal comes before the line edit takes the proposal back.
    connect(field, &QLineEdit::inputRejected, this, &FieldFormatter::replaceText, Qt::QueuedConnection);
}

QValidator::State FieldFormatter::validate(QString &input, int &pos) const
{
    m_replacement.reset();
    // Text set by the program has no undo history, while every edit of the user has some. It must count as valid: after
    // an invalid text the line edit would accept any edit.
    if (m_replacing || !m_field->isUndoAvailable()) {
        return Acceptable;
    }
    Replacement proposal{input, pos};
    if (CUI_ControlFormatter::validate(proposal.text, proposal.cursor) == Invalid) {
        return Invalid;
    }
    if (proposal.text == input) {
        return Acceptable;
    }
    m_replacement = std::move(proposal);
    return Invalid;
}

bool FieldFormatter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field && mayReadOrEdit(event->type())) {
        replaceText();
    }
    return CUI_ControlFormatter::eventFilter(watched, event);
}

void FieldFormatter::replaceText()
{
    if (!m_replacement) {
        return;
    }
    const Replacement replacement = std::move(*m_replacement);
    m_replacement.reset();
    if (replacement.text == m_field->text()) {
        return;
    }
    m_replacing = true;
    editInto(m_field, replacement.text);
    m_field->setCursorPosition(replacement.cursor);
    m_replacing = false;
}

} // namespace

void attachFormatter(QLineEdit *field, const QString &characters, bool pass, quint64 length, qint64 caseOption)
{
    delete field->findChild<CUI_ControlFormatter *>(QString(), Qt::FindDirectChildrenOnly);
    field->setMaxLength(std::numeric_limits<int>::max());
    new FieldFormatter(characters, pass, length, caseOption, field);
}

} // namespace tetrad
