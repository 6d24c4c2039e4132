#pragma once

// Implemented in runtime/controls/views/text_view.cpp.
#include <tetrad/events/tag.h>

#include <QPlainTextEdit>
#include <QRectF>
#include <QString>

namespace tetrad {

/// A text of many lines that the user edits. The dialog function may refuse a change (code 2100) before the user's
/// typing, deleting, pasting, cutting or dropping makes it. The question about what an input method composes comes when
/// it is committed; undo and redo cannot be refused. Changes and selections are reported (2101 to 2104).
class TextViewSC : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextViewSC(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Named as the base's own, so that the Edit menu, which goes by name, asks too.
    void cut();
    void del();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool mayReplace(const QTextCursor &replaced, const QString &text);
    void reportSoon(qint64 event);
};

/// Reports what happens to text views, always to the dialog function.
class CUI_TextViewDelegate
{
public:
    static void callUserDefinedOnDialogFunctionWithEvent(TextViewSC *textView, qint64 event, Tag object);
};

/// The text view statement. A null text leaves the text there.
void CUI_TextView(Tag tag, const QString &text, const QRectF &rect);

/// Null, after an alert, when the view is missing.
QString TextViewString(Tag tag);

} // namespace tetrad
