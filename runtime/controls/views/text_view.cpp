#include <tetrad/controls/text_view.h>

#include "runtime/app/menus/edit_actions.h"
#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/events/event_codes.h>

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

#include <optional>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

struct Deletion
{
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation selects;
};

constexpr Deletion deletions[] = {
    {QKeySequence::Delete, QTextCursor::NextCharacter},
    {QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord},
    {QKeySequence::DeleteEndOfWord, QTextCursor::NextWord},
    {QKeySequence::DeleteEndOfLine, QTextCursor::EndOfBlock},
};

bool isBackspace(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Backspace && !(event->modifiers() & ~Qt::ShiftModifier);
}

// What a key deletes when pressed at this cursor; nothing for every other key.
std::optional<QTextCursor> deletedBy(const QKeyEvent *event, QTextCursor cursor)
{
    for (const Deletion &deletion : deletions) {
        if (event->matches(deletion.key) || (deletion.key == QKeySequence::Delete && isBackspace(event))) {
            if (!cursor.hasSelection()) {
                cursor.movePosition(isBackspace(event) ? QTextCursor::PreviousCharacter : deletion.selects,
                                    QTextCursor::KeepAnchor);
            }
            return cursor;
        }
    }
    return std::nullopt;
}

// The text that a key types; empty for every other key.
QString typedBy(const QKeyEvent *event)
{
    if (event->matches(QKeySequence::InsertParagraphSeparator) || event->matches(QKeySequence::InsertLineSeparator)) {
        return u"\n"_s;
    }
    const QString text = event->text();
    const bool isCommand = (event->modifiers() & Qt::ControlModifier) && !(event->modifiers() & Qt::AltModifier);
    const bool isText = !text.isEmpty() && (text.at(0).isPrint() || text.at(0) == u'\t' || text.at(0).isSurrogate());
    return isText && !isCommand ? text : QString();
}

EventRange selectionOf(const QTextCursor &cursor)
{
    return {quint64(cursor.selectionStart()), quint64(cursor.selectionEnd() - cursor.selectionStart())};
}

} // namespace

TextViewSC::TextViewSC(QWidget *parent) : QPlainTextEdit(parent)
{
    connect(
        this, &QPlainTextEdit::textChanged, this, [this] { sendObjectEvent(this, textViewEventDidChange); },
        Qt::QueuedConnection);
    const auto reportSelection = [this] {
        CUI_DialogEventObj()->rangeVal = selectionOf(textCursor());
        sendObjectEvent(this, textViewEventSelectionChanged);
    };
    connect(this, &QPlainTextEdit::selectionChanged, this, reportSelection, Qt::QueuedConnection);
}

void TextViewSC::cut()
{
    if (textCursor().hasSelection() && mayReplace(textCursor(), QString())) {
        QPlainTextEdit::cut();
    }
}

void TextViewSC::del()
{
    if (textCursor().hasSelection() && mayReplace(textCursor(), QString())) {
        textCursor().removeSelectedText();
    }
}

void TextViewSC::keyPressEvent(QKeyEvent *event)
{
    if (isReadOnly()) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    if (event->matches(QKeySequence::Cut)) {
        cut();
        return;
    }
    const std::optional<QTextCursor> deleted = deletedBy(event, textCursor());
    const QString typed = typedBy(event);
    const bool changes = (deleted && deleted->hasSelection()) || !typed.isEmpty();
    if (!changes || mayReplace(deleted.value_or(textCursor()), deleted ? QString() : typed)) {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void TextViewSC::inputMethodEvent(QInputMethodEvent *event)
{
    if (event->commitString().isEmpty() || mayReplace(textCursor(), event->commitString())) {
        QPlainTextEdit::inputMethodEvent(event);
    }
}

void TextViewSC::insertFromMimeData(const QMimeData *source)
{
    // The clipboard, which owns the data, may change during the question.
    const QString text = source->text();
    if (!isReadOnly() && source->hasText() && mayReplace(textCursor(), text)) {
        textCursor().insertText(text);
        ensureCursorVisible();
    }
}

void TextViewSC::contextMenuEvent(QContextMenuEvent *event)
{
    // The base's own menu would cut and delete without asking.
    setFocus(Qt::OtherFocusReason);
    QMenu *const menu = makeEditMenu();
    menu->setParent(this, menu->windowFlags());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

void TextViewSC::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    callSoon(this, [this] { sendObjectEvent(this, textViewEventDidBeginEditing); });
}

void TextViewSC::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    callSoon(this, [this] { sendObjectEvent(this, textViewEventDidEndEditing); });
}

// False also when the program deleted the view instead of answering.
bool TextViewSC::mayReplace(const QTextCursor &replaced, const QString &text)
{
    const QPointer<TextViewSC> guard(this);
    CUI_DialogEventObj()->boolVal = false;
    CUI_DialogEventObj()->rangeVal = selectionOf(replaced);
    CUI_DialogEventObj()->stringObj = text;
    sendObjectEvent(this, textViewEventRefuseChange);
    return !CUI_DialogEventObj()->boolVal && guard;
}

void CUI_TextView(Tag tag, const QString &text, const QRectF &rect)
{
    auto *const view = statementView<TextViewSC>(tag, rect);
    if (view && !text.isNull()) {
        view->setPlainText(text);
    }
}

QString TextViewString(Tag tag)
{
    const auto *const view = viewOfClass<TextViewSC>(tag);
    return view ? view->toPlainText() : QString();
}

} // namespace tetrad
