#include <tetrad/controls/token_field.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/events/event_codes.h>

#include <QCompleter>
#include <QFocusEvent>
#include <QStringListModel>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QStringList wordsOf(const QString &text)
{
    QStringList words;
    for (const QString &word : text.split(u',')) {
        if (!word.trimmed().isEmpty()) {
            words << word.trimmed();
        }
    }
    return words;
}

QStringList answeredWords(TokenFieldSC *tokenField, qint64 event, const QStringList &preset)
{
    const QVariantList words = QVariant(preset).toList();
    return QVariant(answerTo(tokenField, event, &CUI_DialogEvent::arrayObj, words)).toStringList();
}

} // namespace

TokenFieldSC::TokenFieldSC(QWidget *parent) : QLineEdit(parent)
{
    m_completer = new QCompleter(QStringList(), this);
    // Shows the program's list unfiltered.
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &TokenFieldSC::complete);
    connect(this, &QLineEdit::textEdited, this, &TokenFieldSC::textWasEdited, Qt::QueuedConnection);
    connect(this, &QLineEdit::returnPressed, this, &TokenFieldSC::finishEditing, Qt::QueuedConnection);
}

void TokenFieldSC::setTokens(const QStringList &tokens)
{
    m_tokens = tokens;
    setText(tokens.isEmpty() ? QString() : QString(tokens.join(u", "_s) + u", "_s));
}

void TokenFieldSC::setTokenText(const QString &text)
{
    setTokens(wordsOf(text));
}

void TokenFieldSC::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // The list of completions takes the keyboard while the word is still being typed.
    if (event->reason() != Qt::PopupFocusReason) {
        callSoon(this, [this] { finishTokens(); });
    }
}

void TokenFieldSC::textWasEdited()
{
    if (text().endsWith(u',')) {
        finishTokens();
    } else {
        offerCompletions();
    }
}

void TokenFieldSC::finishEditing()
{
    const QPointer<TokenFieldSC> guard(this);
    finishTokens();
    if (guard) {
        sendControlAction(this);
    }
}

// Only words that were not there before are asked about.
void TokenFieldSC::finishTokens()
{
    QStringList kept;
    QStringList added;
    QStringList before = m_tokens;
    for (const QString &word : wordsOf(text())) {
        (before.removeOne(word) ? kept : added) << word;
    }
    const QPointer<TokenFieldSC> guard(this);
    if (!added.isEmpty()) {
        added = answeredWords(this, tokenFieldEventAddTokens, added);
    }
    if (!guard) {
        return;
    }
    const QStringList tokens = kept + added;
    const bool changes = tokens != m_tokens;
    setTokens(tokens);
    if (changes) {
        answeredWords(this, tokenFieldEventDidChange, m_tokens);
    }
}

void TokenFieldSC::offerCompletions()
{
    const QString word = wordBeingTyped();
    const QPointer<TokenFieldSC> guard(this);
    CUI_DialogEventObj()->stringObj = word;
    const QStringList offers =
        word.isEmpty() ? QStringList() : answeredWords(this, tokenFieldEventCompletions, QStringList());
    if (!guard) {
        return;
    }
    qobject_cast<QStringListModel *>(m_completer->model())->setStringList(offers);
    // Without offers this hides the list.
    m_completer->complete();
}

void TokenFieldSC::complete(const QString &completion)
{
    setText(text().chopped(wordBeingTyped().size()) + completion + u',');
    callSoon(this, [this] { finishTokens(); });
}

QString TokenFieldSC::wordBeingTyped() const
{
    const QString word = text().section(u',', -1);
    return word.startsWith(u' ') ? word.mid(1) : word;
}

void CUI_TokenField(Tag tag, const QStringList &tokens, const QRectF &rect)
{
    auto *const field = statementView<TokenFieldSC>(tag, rect);
    if (field && !tokens.isEmpty()) {
        field->setTokens(tokens);
    }
}

QStringList TokenFieldTokens(Tag tag)
{
    const auto *const field = viewOfClass<TokenFieldSC>(tag);
    return field ? field->tokens() : QStringList();
}

} // namespace tetrad
