#include <tetrad/controls/text_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/statements/view_statement.h"
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QAction>
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

// What a key deletes when pressed at this cursor; none when it deletes nothing.
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

} // namespace

TextViewSC::TextViewSC(QWidget *parent) : QPlainTextEdit(parent)
{
    connect(this, &QPlainTextEdit::textChanged, this, [this] { tellSoon(textViewEventDidChange); });
    connect(this, &QPlainTextEdit::selectionChanged, this,
            [this] { callSoon(this, [this] { CUI_TextViewDelegateObj()->textViewDidChangeSelection(this); }); });
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
    // The question may take its time, and the data is the clipboard's.
    const QString text = source->text();
    if (!isReadOnly() && source->hasText() && mayReplace(textCursor(), text)) {
        textCursor().insertText(text);
        ensureCursorVisible();
    }
}

void TextViewSC::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *const menu = createStandardContextMenu(event->pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The menu's own cutting and deleting would not ask.
    const auto redirect = [this, menu](const QString &name, void (TextViewSC::*slot)()) {
        if (auto *const action = menu->findChild<QAction *>(name)) {
            action->disconnect(SIGNAL(triggered(bool)));
            connect(action, &QAction::triggered, this, slot);
        }
    };
    redirect(u"edit-cut"_s, &TextViewSC::cut);
    redirect(u"edit-delete"_s, &TextViewSC::del);
    menu->popup(event->globalPos());
}

void TextViewSC::focusInEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusInEvent(event);
    tellSoon(textViewEventDidBeginEditing);
}

void TextViewSC::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    tellSoon(textViewEventDidEndEditing);
}

// False also when the question was answered by deleting the view.
bool TextViewSC::mayReplace(const QTextCursor &replaced, const QString &text)
{
    const QPointer<TextViewSC> guard(this);
    const int location = replaced.selectionStart();
    const int length = replaced.selectionEnd() - location;
    return CUI_TextViewDelegateObj()->textViewShouldChangeText(this, location, length, text) && guard;
}

void TextViewSC::tellSoon(qint64 event)
{
    callSoon(this, [this, event] {
        CUI_TextViewDelegateObj()->callUserDefinedOnDialogFunctionWithEvent(this, event, tagFromObject(this));
    });
}

CUI_TextViewDelegate *CUI_TextViewDelegateObj()
{
    // Deliberately never freed: views may outlive every static object.
    static auto *const delegate = new CUI_TextViewDelegate;
    return delegate;
}

void CUI_TextViewDelegate::callUserDefinedOnDialogFunctionWithEvent(TextViewSC *textView, qint64 event, Tag object)
{
    sendObjectEvent(textView, event, object);
}

bool CUI_TextViewDelegate::textViewShouldChangeText(TextViewSC *textView, int location, int length,
                                                    const QString &replacement)
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    record->boolVal = false;
    record->rangeVal = {quint64(location), quint64(length)};
    record->stringObj = replacement;
    callUserDefinedOnDialogFunctionWithEvent(textView, textViewEventRefuseChange, tagFromObject(textView));
    return !record->boolVal;
}

void CUI_TextViewDelegate::textViewDidChangeSelection(TextViewSC *textView)
{
    const QTextCursor cursor = textView->textCursor();
    CUI_DialogEventObj()->rangeVal = {quint64(cursor.selectionStart()),
                                      quint64(cursor.selectionEnd() - cursor.selectionStart())};
    callUserDefinedOnDialogFunctionWithEvent(textView, textViewEventSelectionChanged, tagFromObject(textView));
}

namespace {

TextViewSC *textViewWithTag(Tag tag)
{
    return qobject_cast<TextViewSC *>(CUI_ValidateViewKindOfClass(tag, u"NSTextView"_s));
}

} // namespace

void CUI_TextView(Tag tag, const QString &text, const QRectF &rect)
{
    auto *const view = statementView<TextViewSC>(tag, rect, [](TextViewSC *) {});
    if (view && !text.isNull()) {
        view->setPlainText(text);
    }
}

QString TextViewString(Tag tag)
{
    const TextViewSC *const view = textViewWithTag(tag);
    return view ? view->toPlainText() : QString();
}

} // namespace tetrad
