#pragma once

// Implemented in runtime/controls/views/text_view.cpp.
#include <tetrad/controls/control_target.h>

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

    Q_PROPERTY(bool canUndo READ canUndo)
    Q_PROPERTY(bool canRedo READ canRedo)
    Q_PROPERTY(bool canCut READ canDelete)
    Q_PROPERTY(bool canCopy READ canCopy)
    Q_PROPERTY(bool canPaste READ canPaste)
    Q_PROPERTY(bool canDelete READ canDelete)

public:
    explicit TextViewSC(QWidget *parent = nullptr);

    /// What the Edit menu enables.
    bool canUndo() const { return document()->isUndoAvailable(); }
    bool canRedo() const { return document()->isRedoAvailable(); }
    bool canCopy() const { return textCursor().hasSelection(); }
    bool canDelete() const { return canCopy() && !isReadOnly(); }

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
};

class CUI_TextViewDelegate : public DialogFunctionDelegate
{};

/// The text view statement. A null text leaves the text there.
void CUI_TextView(Tag tag, const QString &text, const QRectF &rect);

/// Null, after an alert, when the view is missing.
QString TextViewString(Tag tag);

} // namespace tetrad
