#include <tetrad/input/line_input.h>

#include "runtime/controls/events/current_event.h"
#include "runtime/input/field_formatter.h"
#include "runtime/input/panel_layout.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>
#include <tetrad/strings/not_given.h>

#include <QAccessible>
#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScopeGuard>

#include <limits>
#include <optional>

namespace tetrad {

namespace {

std::optional<ZRInputFormat> sPendingInputFormat;

QPointer<ZRInputWindow> makePanel(const QString &prompt, qint64 x, qint64 y)
{
    // A screen reader takes a field whose caret moved before the field got the focus, as QLineEdit::setMaxLength
    // reports, for one that it has already spoken.
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent *) {});
    const auto eventsAgain = qScopeGuard([handler] { QAccessible::installUpdateHandler(handler); });
    auto *const panel = new ZRInputWindow(prompt, x, y);
    if (const auto &format = sPendingInputFormat) {
        attachFormatter(panel->field(), format->characters, format->pass, format->maxLength, format->caseOption);
    }
    return panel;
}

// Hides a panel and deletes it when the next one retires: on the next focus event a screen reader queries the field
// that had the focus before, and Orca says nothing when that field is gone.
void retire(const QPointer<ZRInputWindow> &panel)
{
    static QPointer<ZRInputWindow> before;
    if (panel) {
        panel->field()->clearFocus();
        panel->hide();
    }
    delete before.data();
    before = panel;
}

bool endsEditing(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    default:
        return false;
    }
}

QLineEdit *makeField(QWidget *panel)
{
    auto *const field = new QLineEdit(panel);
    field->setFrame(false);
    field->setAttribute(Qt::WA_MacShowFocusRect, false);
    // A line edit cuts at 32767 by default; a longer line is an answer like any other.
    field->setMaxLength(std::numeric_limits<int>::max());
    return field;
}

} // namespace

ZRInputWindow::ZRInputWindow(const QString &prompt, qint64 xPos, qint64 yPos)
    : FloatingPanel(prompt, xPos, yPos), m_field(makeField(this))
{
    connect(m_field, &QLineEdit::textChanged, this, &ZRInputWindow::controlTextDidChange);
    if (const int room = panelLineHeight - fontMetrics().height(); room < 0) {
        const int top = panelTextTop(fontMetrics().height());
        m_field->setTextMargins(0, top, 0, room - top);
    }
    setEntry(m_field);
    setKeyReceiver(m_field);
    center();
}

void ZRInputWindow::controlTextDidChange()
{
    resize();
}

void ZRInputWindow::controlTextDidEndEditing(QEvent *event)
{
    const CurrentEventScope current(event);
    CUI_AppDelegateObj()->inputResponseString = m_field->text();
    stopModalWithCode(modalStopped);
}

bool ZRInputWindow::doCommandBySelector(QByteArrayView command)
{
    if (command != "cancelOperation") {
        return false;
    }
    abortModal();
    return true;
}

int ZRInputWindow::entryTextWidth() const
{
    // Wider than any content; measuring more would only cost time.
    constexpr int enough = 4096;
    return m_field->fontMetrics().horizontalAdvance(m_field->text().left(enough) + m_composition);
}

bool ZRInputWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field) {
        if (event->type() == QEvent::KeyPress && fieldKeyPressed(static_cast<QKeyEvent *>(event))) {
            return true;
        }
        if (event->type() == QEvent::InputMethod) {
            m_composition = static_cast<QInputMethodEvent *>(event)->preeditString();
            resize();
        }
    }
    return FloatingPanel::eventFilter(watched, event);
}

bool ZRInputWindow::fieldKeyPressed(QKeyEvent *event)
{
    const bool cancels = event->key() == Qt::Key_Escape;
    if (!cancels && !endsEditing(event)) {
        return false;
    }
    // A key still held down from the last question or alert must not answer this one.
    if (event->isAutoRepeat()) {
        return true;
    }
    if (cancels) {
        return doCommandBySelector("cancelOperation");
    }
    controlTextDidEndEditing(event);
    return true;
}

void InputSetFormat(const QString &characters, qint64 pass, qint64 maxLength, qint64 caseOption)
{
    sPendingInputFormat = ZRInputFormat{
        .characters = characters,
        .pass = pass != 0,
        .maxLength = maxLength == notGiven ? 0 : static_cast<quint64>(maxLength),
        .caseOption = caseOption == notGiven ? caseInsensitiveList : caseOption,
    };
}

void InputRemoveFormat()
{
    sPendingInputFormat.reset();
}

QString ZRInput(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 maxLength,
                qint64 caseOption)
{
    if (characters.isNull()) {
        InputRemoveFormat();
    } else if (!characters.isEmpty()) {
        InputSetFormat(characters, pass, maxLength, caseOption);
    } // An empty list deliberately keeps the pending format: programs set it once and ask many times.

    CUI_AppDelegate *const delegate = CUI_AppDelegateObj();
    const QPointer<ZRInputWindow> panel = makePanel(prompt, x, y);
    delegate->inputWnd = panel;
    const qint64 code = panel->run();
    delegate->inputWnd = nullptr;
    retire(panel);
    return code == modalStopped ? delegate->inputResponseString : QString();
}

} // namespace tetrad
