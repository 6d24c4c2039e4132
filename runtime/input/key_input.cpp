#include <tetrad/input/key_input.h>

#include "runtime/controls/events/current_event.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>
#include <tetrad/input/line_input.h>
#include <tetrad/strings/not_given.h>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <optional>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

std::optional<ZRInkeyFormat> sPendingInkeyFormat;

// A key that may still be held down from the previous answer; its repetition is no new answer.
bool isLeftover(const QKeyEvent *event)
{
    return event->isAutoRepeat() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                                     event->key() == Qt::Key_Tab || event->key() == Qt::Key_Escape);
}

QString inCaseOf(const QString &key, qint64 caseOption)
{
    switch (caseOption) {
    case caseForceLower:
        return key.toLower();
    case caseForceUpper:
        return key.toUpper();
    default:
        return key;
    }
}

} // namespace

ZRInkeyWindow::ZRInkeyWindow(const QString &prompt, qint64 xPos, qint64 yPos)
    : FloatingPanel(prompt, xPos, yPos), m_cursorLabel(new QLabel(u"_"_s, this))
{
    makeStatic(m_cursorLabel);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setEntry(m_cursorLabel);
    setKeyReceiver(this);
    center();
}

void ZRInkeyWindow::keyDown(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        endWith(QString(), event);
    } else if (!takeKey(event->text(), event)) {
        FloatingPanel::keyPressEvent(event);
    }
}

void ZRInkeyWindow::timerFired()
{
    m_cursorLabel->setHidden(!m_cursorLabel->isHidden());
}

void ZRInkeyWindow::windowDidBecomeKey()
{
    if (m_cursorTimer) {
        return;
    }
    // Deliberately the only timer: one that also starts with the panel and is never stopped would toggle the cursor out
    // of step and outlive the panel.
    m_cursorTimer = new QTimer(this);
    connect(m_cursorTimer, &QTimer::timeout, this, &ZRInkeyWindow::timerFired);
    m_cursorTimer->start(std::chrono::milliseconds(500));
}

int ZRInkeyWindow::entryTextWidth() const
{
    return m_cursorLabel->fontMetrics().horizontalAdvance(QLatin1Char('_'));
}

// Tab is a key like any other here.
bool ZRInkeyWindow::focusNextPrevChild(bool)
{
    return false;
}

void ZRInkeyWindow::focusInEvent(QFocusEvent *event)
{
    FloatingPanel::focusInEvent(event);
    windowDidBecomeKey();
}

void ZRInkeyWindow::keyPressEvent(QKeyEvent *event)
{
    if (!isLeftover(event)) {
        keyDown(event);
    }
}

void ZRInkeyWindow::inputMethodEvent(QInputMethodEvent *event)
{
    takeKey(event->commitString(), event);
}

bool ZRInkeyWindow::takeKey(QString key, QEvent *event)
{
    if (key.isEmpty()) {
        return false;
    }
    if (const auto &format = sPendingInkeyFormat) {
        key = inCaseOf(key, format->caseOption);
        if (!format->characterSet.containsFirstOf(key)) {
            return false;
        }
    }
    endWith(key, event);
    return true;
}

void ZRInkeyWindow::endWith(const QString &key, QEvent *event)
{
    const CurrentEventScope current(event);
    CUI_AppDelegateObj()->inkeyResponseString = key;
    stopModalWithCode(modalStopped);
    delete m_cursorTimer;
    m_cursorTimer = nullptr;
}

void InkeySetFormat(const QString &characters, qint64 pass, qint64 caseOption)
{
    const CharacterSet listed(characters);
    const bool accepted = pass != 0;
    sPendingInkeyFormat = ZRInkeyFormat{
        .characterSet = accepted ? listed : listed.inverted(),
        .characters = characters,
        .pass = accepted,
        .caseOption = caseOption == notGiven ? 0 : caseOption,
    };
}

void InkeyRemoveFormat()
{
    sPendingInkeyFormat.reset();
}

QString ZRInkey(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 caseOption)
{
    if (characters.isNull()) {
        InkeyRemoveFormat();
    } else if (!characters.isEmpty()) {
        InkeySetFormat(characters, pass, caseOption);
    } // An empty list deliberately keeps the pending format, as it does for ZRInput.

    CUI_AppDelegate *const delegate = CUI_AppDelegateObj();
    const QPointer<ZRInkeyWindow> panel = new ZRInkeyWindow(prompt, x, y);
    delegate->inkeyWnd = panel;
    const qint64 code = panel->run();
    delegate->inkeyWnd = nullptr;
    delete panel.data();
    return code == modalStopped ? delegate->inkeyResponseString : QString();
}

} // namespace tetrad
