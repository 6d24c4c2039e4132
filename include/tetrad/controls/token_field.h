#pragma once

// Implemented in runtime/controls/views/token_field.cpp.
#include <tetrad/controls/control_target.h>

#include <QLineEdit>
#include <QRectF>
#include <QStringList>

class QCompleter;

namespace tetrad {

/// A field of words separated by commas. While a word is typed the program is asked for completions of it (code 2300).
/// When a comma, Return or the loss of the keyboard ends the word, the program is asked which words to keep (2301), and
/// a change of the words is reported (2302). Return also sends the field's action.
class TokenFieldSC : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QStringList tokens READ tokens WRITE setTokens)
    Q_PROPERTY(QString tokenText READ text WRITE setTokenText)

public:
    explicit TokenFieldSC(QWidget *parent = nullptr);

    /// The finished words, without blanks around them. Setting them asks nothing.
    const QStringList &tokens() const { return m_tokens; }
    void setTokens(const QStringList &tokens);
    /// The same as one text, with commas between the words.
    void setTokenText(const QString &text);

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    void textWasEdited();
    void finishEditing();
    void finishTokens();
    void offerCompletions();
    void complete(const QString &completion);
    QString wordBeingTyped() const;

    QStringList m_tokens;
    QCompleter *m_completer = nullptr;
};

class CUI_TokenFieldDelegate : public ForwardingDelegate
{};

/// The token field statement. An empty list leaves the words there.
void CUI_TokenField(Tag tag, const QStringList &tokens, const QRectF &rect);

/// Empty, after an alert, when the field is missing.
QStringList TokenFieldTokens(Tag tag);

} // namespace tetrad
