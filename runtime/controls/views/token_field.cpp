#include <tetrad/controls/token_field.h>

#include <tetrad/controls/control_target.h>
#include <tetrad/controls/event_site.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/controls/view_statement.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QStringListModel>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

const QString &separator()
{
    static const QString text = u", "_s;
    return text;
}

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

} // namespace

TokenField::TokenField(QWidget *parent) : QLineEdit(parent)
{
    m_completions = new QStringListModel(this);
    m_completer = new QCompleter(m_completions, this);
    // The program's list is shown as it is.
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &TokenField::complete);
    connect(this, &QLineEdit::textEdited, this, [this] { CUI_Soon(this, [this] { textWasEdited(); }); });
    connect(this, &QLineEdit::returnPressed, this, [this] { CUI_Soon(this, [this] { finishEditing(); }); });
}

void TokenField::setTokens(const QStringList &tokens)
{
    m_tokens = tokens;
    setText(tokens.isEmpty() ? QString() : QString(tokens.join(separator()) + separator()));
}

void TokenField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // The list of completions takes the keyboard too, and the word goes on.
    if (event->reason() != Qt::PopupFocusReason) {
        CUI_Soon(this, [this] { finishTokens(); });
    }
}

void TokenField::textWasEdited()
{
    if (text().endsWith(u',')) {
        finishTokens();
    } else {
        offerCompletions();
    }
}

void TokenField::finishEditing()
{
    const QPointer<TokenField> guard(this);
    finishTokens();
    if (guard) {
        CUI_ControlSendAction(this);
    }
}

// Only words that were not there before are asked about.
void TokenField::finishTokens()
{
    QStringList kept;
    QStringList added;
    QStringList before = m_tokens;
    for (const QString &word : wordsOf(text())) {
        (before.removeOne(word) ? kept : added) << word;
    }
    const QPointer<TokenField> guard(this);
    if (!added.isEmpty()) {
        added = CUI_TokenFieldDelegateObj()->tokenFieldShouldAddTokens(this, added);
    }
    if (!guard) {
        return;
    }
    const QStringList tokens = kept + added;
    const bool changes = tokens != m_tokens;
    setTokens(tokens);
    if (changes) {
        CUI_TokenFieldDelegateObj()->tokenFieldDidChange(this);
    }
}

void TokenField::offerCompletions()
{
    const QString word = wordBeingTyped();
    const QPointer<TokenField> guard(this);
    const QStringList offers =
        word.isEmpty() ? QStringList() : CUI_TokenFieldDelegateObj()->tokenFieldCompletionsForSubstring(this, word);
    if (!guard) {
        return;
    }
    m_completions->setStringList(offers);
    if (offers.isEmpty()) {
        m_completer->popup()->hide();
    } else {
        m_completer->complete();
    }
}

void TokenField::complete(const QString &completion)
{
    setText(text().chopped(wordBeingTyped().size()) + completion + u',');
    CUI_Soon(this, [this] { finishTokens(); });
}

QString TokenField::wordBeingTyped() const
{
    const QString word = text().section(u',', -1);
    return word.startsWith(u' ') ? word.mid(1) : word;
}

CUI_TokenFieldDelegate *CUI_TokenFieldDelegateObj()
{
    // Deliberately never freed: views may outlive every static object.
    static auto *const delegate = new CUI_TokenFieldDelegate;
    return delegate;
}

qint64 CUI_TokenFieldDelegate::forwardEvent(TokenField *tokenField, qint64 event, Tag object)
{
    return CUI_ForwardDelegateEvent(tokenField, event, object);
}

QStringList CUI_TokenFieldDelegate::tokenFieldCompletionsForSubstring(TokenField *tokenField, const QString &substring)
{
    CUI_DialogEventObj()->stringObj = substring;
    CUI_DialogEventObj()->arrayObj.clear();
    forwardEvent(tokenField, tokenFieldEventCompletions, tagFromObject(tokenField));
    return QVariant(CUI_DialogEventObj()->arrayObj).toStringList();
}

QStringList CUI_TokenFieldDelegate::tokenFieldShouldAddTokens(TokenField *tokenField, const QStringList &tokens)
{
    CUI_DialogEventObj()->arrayObj = QVariant(tokens).toList();
    forwardEvent(tokenField, tokenFieldEventAddTokens, tagFromObject(tokenField));
    return QVariant(CUI_DialogEventObj()->arrayObj).toStringList();
}

void CUI_TokenFieldDelegate::tokenFieldDidChange(TokenField *tokenField)
{
    CUI_DialogEventObj()->arrayObj = QVariant(tokenField->tokens()).toList();
    forwardEvent(tokenField, tokenFieldEventDidChange, tagFromObject(tokenField));
}

void CUI_TokenField(Tag tag, const QStringList &tokens, const QRectF &rect)
{
    auto *const field = CUI_StatementView<TokenField>(tag, rect, [](TokenField *) {});
    if (field && !tokens.isEmpty()) {
        field->setTokens(tokens);
    }
}

QStringList TokenFieldTokens(Tag tag)
{
    const auto *const field = qobject_cast<TokenField *>(CUI_ValidateViewKindOfClass(tag, u"NSTokenField"_s));
    return field ? field->tokens() : QStringList();
}

} // namespace tetrad
