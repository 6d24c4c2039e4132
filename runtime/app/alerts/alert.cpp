#include <tetrad/app/alert.h>

#include "runtime/app/alerts/alert_text.h"
#include "runtime/app/menus/mnemonic.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>
#include <tetrad/strings/error_object.h>

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr char sheetKey[] = "sheetNumber";

// No close box: a title alone, on the platforms that honour the hint.
constexpr Qt::WindowFlags alertFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;

// Elsewhere blocking the window would block its menu bar as well.
#ifdef Q_OS_MACOS
constexpr Qt::WindowModality sheetModality = Qt::WindowModal;
#else
constexpr Qt::WindowModality sheetModality = Qt::NonModal;
#endif

} // namespace

bool CUI_AlertDelegate::alertShowHelp(Alert *alert)
{
    const Tag tag = alert->tag();
    CUI_DialogEventObj()->boolVal = false;
    CallUserDefinedOnDialogFunction(alertHelpEvent, tag, tag, 0);
    return CUI_DialogEventObj()->boolVal;
}

void CUI_AlertDelegate::alertDidEnd(Alert *alert, qint64 returnCode, void * /*contextInfo*/)
{
    lastSuppressionButtonState = alert->suppressionButtonState();
    CallUserDefinedOnDialogFunction(alertEndedEvent, returnCode, alert->tag(), 0);
}

CUI_AlertDelegate *CUI_AlertDelegateObj()
{
    static auto *const delegate = new CUI_AlertDelegate;
    return delegate;
}

Alert::Alert(QWidget *parent) : QMessageBox(parent)
{
    setWindowFlags(alertFlags);
    setWindowTitle(applicationName());
    setTextFormat(Qt::PlainText);
    setAlertStyle(alertStyleWarning);
    connect(this, &QMessageBox::buttonClicked, this, [this](QAbstractButton *button) {
        m_code = alertFirstButton + m_buttons.indexOf(static_cast<QPushButton *>(button));
    });
    connect(this, &QDialog::finished, this, &Alert::onFinished);
}

Alert::~Alert()
{
    CUI_AlertRemove(this);
}

Alert *Alert::withError(const ErrorObject &error)
{
    auto *const alert = new Alert;
    alert->setMessageText(
        error.description.isEmpty()
            ? tr("The operation could not be completed. (%1 error %2.)").arg(error.domain, QString::number(error.code))
            : error.description);
    return alert;
}

bool Alert::sheet() const
{
    return property(sheetKey).toBool();
}

void Alert::setSheet(bool sheet)
{
    setProperty(sheetKey, sheet);
}

void Alert::setAlertStyle(qint64 style)
{
    m_style = style;
    updateIcon();
}

void Alert::updateIcon()
{
    if (m_style == alertStyleCritical) {
        setIcon(QMessageBox::Critical);
    } else {
        const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        setIconPixmap(QApplication::windowIcon().pixmap(QSize(size, size), devicePixelRatio()));
    }
}

void Alert::setMessageText(const QString &text)
{
    setText(text);
    setWindowTitle(text.simplified());
    updateAccessibleName();
}

void Alert::setInformative(const QString &text)
{
    setInformativeText(text);
    // The box leaves the label it makes for this text to guess the format.
    for (QLabel *label : findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
    }
    updateAccessibleName();
}

void Alert::updateAccessibleName()
{
    setAccessibleName(QString(text() % u' ' % informativeText()).trimmed());
}

QPushButton *Alert::addAlertButton(const QString &title)
{
    // Only this role keeps the order of insertion on every desktop.
    QPushButton *const button = addButton(escapedMnemonics(title), QMessageBox::ActionRole);
    m_buttons.append(button);
    if (m_buttons.size() == 1) {
        m_returnButton = button;
        setDefaultButton(button);
    }
    return button;
}

void Alert::setShowsSuppressionButton(bool shows)
{
    if (shows != showsSuppressionButton()) {
        setCheckBox(shows ? new QCheckBox(tr("Do not show this message again")) : nullptr);
    }
}

qint64 Alert::suppressionButtonState() const
{
    return checkBox() && checkBox()->isChecked() ? 1 : 0;
}

void Alert::setShowsHelp(bool shows)
{
    if (shows == showsHelp()) {
        return;
    }
    if (!shows) {
        removeButton(m_helpButton);
        delete std::exchange(m_helpButton, nullptr);
        return;
    }
    m_helpButton = addButton(QMessageBox::Help);
    m_helpButton->setAutoDefault(false);
    // The box would end when any of its buttons is clicked.
    disconnect(m_helpButton, &QAbstractButton::clicked, nullptr, nullptr);
    connect(m_helpButton, &QAbstractButton::clicked, this, [this] {
        if (m_delegate) {
            m_delegate->alertShowHelp(this);
        }
    });
}

qint64 Alert::runModal(QWidget *over)
{
    if (!isVisible()) {
        attachTo(over && over->isVisible() ? over : nullptr, false);
    }
    prepareToShow();
    const QPointer<Alert> self(this);
    const qint64 response = runModalForWindow(this);
    if (!self) {
        return 0;
    }
    const qint64 code = m_hasEnded ? m_code : response;
    hide();
    // The same alert may be run again from inside its own run; both end with the one answer.
    if (modalWindow() == this) {
        stopModalWithCode(code);
    }
    return code == modalAborted ? 0 : code;
}

void Alert::dismiss()
{
    if (isVisible()) {
        m_completion = nullptr;
        m_code = 0;
        done(0);
    }
}

void Alert::attachTo(QWidget *window, bool asSheet)
{
    setParent(window ? window->window() : nullptr, alertFlags);
    setWindowModality(asSheet ? sheetModality : Qt::NonModal);
    // Last and in full, since the modality changes them.
    setWindowFlags(asSheet ? (alertFlags & ~Qt::WindowType_Mask) | Qt::Sheet : alertFlags);
    setWorksWhenModal(this, asSheet);
}

void Alert::prepareToShow()
{
    if (m_buttons.isEmpty()) {
        addAlertButton(tr("OK"));
    }
    if (!isVisible()) {
        updateIcon();
        fitTextsToScreen(this);
        // Without a button for Return none begins with the focus, which is the other way to get Return.
        setFocusPolicy(m_returnButton ? Qt::NoFocus : Qt::StrongFocus);
        (m_returnButton ? static_cast<QWidget *>(m_returnButton) : this)->setFocus();
    }
    for (QWidget *child : findChildren<QWidget *>()) {
        child->installEventFilter(this);
    }
    m_code = 0;
    m_hasEnded = false;
}

void Alert::onFinished()
{
    m_hasEnded = true;
    if (m_sheetWindow) {
        endSheet();
    } else if (modalWindow() == this) {
        stopModalWithCode(m_code);
    }
}

void Alert::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

} // namespace tetrad
