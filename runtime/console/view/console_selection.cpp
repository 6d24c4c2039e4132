#include "runtime/console/view/console_selection.h"

#include "runtime/console/document/console_reader.h"
#include <tetrad/app/modal.h>
#include <tetrad/console/console_view.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

namespace tetrad {

namespace {

bool isPrintable(const QKeyEvent &event)
{
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

ConsoleSelection::ConsoleSelection(CUI_PrintToWindowView *view) : QObject(view), m_view(view)
{
    view->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &ConsoleSelection::focusChanged);
}

void ConsoleSelection::focusChanged(QWidget *before, QWidget *now)
{
    // A menu bar has the focus only while it is used; its policy is NoFocus.
    if (now == m_view && before && before->focusPolicy() != Qt::NoFocus) {
        m_focusBefore = before;
    }
    if (now == m_view) {
        // A screen reader speaks the line of the caret, and the description as a whole.
        m_view->setAccessibleDescription(m_view->reader().text().text().trimmed());
    }
    if (now == m_view || before == m_view) {
        m_view->update();
    }
}

bool ConsoleSelection::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (auto *key = static_cast<QKeyEvent *>(event);
            key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll)) {
            key->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        return pressKey(static_cast<QKeyEvent *>(event));
    // Mouse events are only watched: the content view below reports them to the program.
    case QEvent::MouseButtonPress:
        pressMouse(static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::MouseMove:
        if (m_dragging) {
            m_view->select(m_view->reader().anchor(), caretAt(static_cast<QMouseEvent *>(event)));
        }
        return false;
    case QEvent::MouseButtonRelease:
        releaseMouse(static_cast<QMouseEvent *>(event));
        return false;
    // The frame around what is visible does not scroll with it.
    case QEvent::Move:
    case QEvent::Resize:
        if (m_view->hasFocus()) {
            m_view->update();
        }
        return false;
    default:
        return QObject::eventFilter(object, event);
    }
}

bool ConsoleSelection::pressKey(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        m_view->copy();
        return true;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        m_view->selectAll();
        return true;
    }
    if (const qsizetype caret = destination(*event); caret >= 0) {
        const bool extend = event->modifiers() & Qt::ShiftModifier;
        m_view->select(extend ? m_view->reader().anchor() : caret, caret);
        return true;
    }
    const bool leaves = event->key() == Qt::Key_Escape || event->key() == Qt::Key_F6;
    QWidget *target = leaves || isPrintable(*event) ? typingTarget() : nullptr;
    if (!target) {
        return false;
    }
    // An alert over the console is a window of its own.
    target->window()->activateWindow();
    target->setFocus(Qt::OtherFocusReason);
    if (!leaves) {
        QCoreApplication::sendEvent(target, event);
    }
    return true;
}

qsizetype ConsoleSelection::destination(const QKeyEvent &event) const
{
    ConsoleReader &reader = m_view->reader();
    const qsizetype end = reader.text().text().size();
    const qsizetype caret = reader.caret();
    switch (event.key()) {
    case Qt::Key_Left:
        return reader.stepFrom(caret, -1);
    case Qt::Key_Right:
        return reader.stepFrom(caret, 1);
    case Qt::Key_Up:
        return reader.caretBeyond(-1);
    case Qt::Key_Down:
        return reader.caretBeyond(1);
    case Qt::Key_PageUp:
        return pageAway(-1);
    case Qt::Key_PageDown:
        return pageAway(1);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return end;
    default:
        return -1;
    }
}

// A page overlaps the one before by a line.
qsizetype ConsoleSelection::pageAway(int direction) const
{
    ConsoleReader &reader = m_view->reader();
    const QRectF here = reader.characterRect(reader.caret());
    const QWidget *viewport = m_view->parentWidget();
    const double page = std::max(here.height(), (viewport ? viewport->height() : 0) - here.height());
    return reader.caretNear({here.left(), here.center().y() + direction * page});
}

QWidget *ConsoleSelection::typingTarget() const
{
    if (m_focusBefore && m_focusBefore->isVisible() && m_focusBefore->isEnabled()) {
        return m_focusBefore;
    }
    for (QLineEdit *field : m_view->window()->findChildren<QLineEdit *>()) {
        if (field->isVisible() && field->isEnabled()) {
            return field;
        }
    }
    QWidget *modal = modalWindow();
    return modal ? modal->focusWidget() : nullptr;
}

qsizetype ConsoleSelection::caretAt(const QMouseEvent *event) const
{
    return m_view->reader().caretNear(m_view->mirror().map(event->position()));
}

void ConsoleSelection::pressMouse(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_dragging = true;
    const qsizetype caret = caretAt(event);
    const bool extend = event->modifiers() & Qt::ShiftModifier;
    m_view->select(extend ? m_view->reader().anchor() : caret, caret);
}

void ConsoleSelection::releaseMouse(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_dragging) {
        return;
    }
    m_dragging = false;
    if (!m_view->canCopy()) {
        return;
    }
    // A mere click leaves the focus where it is; a selection takes it, or it could not be copied by keyboard.
    m_view->setFocus(Qt::MouseFocusReason);
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection()) {
        clipboard->setText(m_view->reader().selectedText(), QClipboard::Selection);
    }
}

void ConsoleSelection::drawFocus(QPainter &painter) const
{
    if (!m_view->hasFocus()) {
        return;
    }
    // The colour of a selection is seen on any background that the program may have chosen.
    const QColor color = m_view->palette().color(QPalette::Highlight);
    const QRectF caret = m_view->mirror().mapRect(m_view->reader().characterRect(m_view->reader().caret()));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(caret.left(), caret.top(), 2, caret.height()), color);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_view->visibleRegion().boundingRect().adjusted(0, 0, -1, -1));
}

} // namespace tetrad
