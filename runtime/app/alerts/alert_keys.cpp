#include <tetrad/app/alert.h>

#include <QKeyEvent>
#include <QPushButton>

namespace tetrad {

namespace {

// Return, line feed or Enter.
bool isDefaultKey(QChar key)
{
    return key == u'\r' || key == u'\n' || key == u'\x03';
}

// "\033" is Escape, a letter that key, with Shift when upper case.
QKeySequence keySequenceOf(QChar key)
{
    switch (key.unicode()) {
    case 0x08:
    case 0x7f:
        return Qt::Key_Backspace;
    case u'\t':
        return Qt::Key_Tab;
    case 0x1b:
        return Qt::Key_Escape;
    default:
        break;
    }
    const auto code = static_cast<Qt::Key>(key.toUpper().unicode());
    return key.isUpper() ? QKeySequence(Qt::SHIFT | code) : QKeySequence(code);
}

// A key that was already down when the alert appeared keeps repeating into it and must not answer it.
// Keys that only move about may repeat.
bool isHeldKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto *held = static_cast<const QKeyEvent *>(event);
    const int key = held->key();
    const bool moves = key == Qt::Key_Tab || key == Qt::Key_Backtab || (key >= Qt::Key_Left && key <= Qt::Key_PageDown);
    return held->isAutoRepeat() && !moves;
}

bool isReturnPress(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

void Alert::setKeyEquivalent(quint64 index, const QString &key)
{
    if (index >= quint64(m_buttons.size())) {
        return;
    }
    QPushButton *const button = m_buttons.at(qsizetype(index));
    const bool isDefault = !key.isEmpty() && isDefaultKey(key.front());
    // A button has one key: any other takes Return away from it.
    button->setShortcut(key.isEmpty() || isDefault ? QKeySequence() : keySequenceOf(key.front()));
    button->setAutoDefault(isDefault);
    button->setDefault(isDefault);
    if (isDefault) {
        m_returnButton = button;
        setDefaultButton(button);
    } else if (m_returnButton == button) {
        m_returnButton = nullptr;
    }
}

// Return presses the focused button, else the one whose key it is. The dialog itself would press a button that lost the
// key, since it never forgets the first default it had.
bool Alert::takesKey(QObject *receiver, QEvent *event)
{
    if (isHeldKey(event)) {
        event->accept();
        return true;
    }
    if (!isReturnPress(event)) {
        return false;
    }
    event->accept();
    auto *const focused = qobject_cast<QPushButton *>(receiver);
    if (QPushButton *const pressed = focused ? focused : m_returnButton) {
        pressed->click();
    }
    return true;
}

bool Alert::event(QEvent *event)
{
    return takesKey(this, event) || QMessageBox::event(event);
}

bool Alert::eventFilter(QObject *watched, QEvent *event)
{
    return takesKey(watched, event) || QMessageBox::eventFilter(watched, event);
}

// Only copying goes to the base classes. They would also press the button that they take for Cancel, and any button by
// its key whatever the Shift key says; shortcuts have pressed those already.
void Alert::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        QMessageBox::keyPressEvent(event);
    }
}

} // namespace tetrad
