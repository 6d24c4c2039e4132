#include "runtime/app/alerts/alert_keys.h"

#include <QKeyEvent>

namespace tetrad {

bool isDefaultKey(QChar key)
{
    return key == u'\r' || key == u'\n' || key == u'\x03';
}

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

bool isHeldKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto *key = static_cast<const QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return false;
    default:
        return key->isAutoRepeat();
    }
}

bool isReturnPress(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace tetrad
