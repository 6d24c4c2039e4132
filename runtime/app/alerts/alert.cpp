#include <tetrad/app/alert.h>

#include "runtime/app/alerts/alert_keys.h"
#include "runtime/app/alerts/alert_text.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>
#include <tetrad/app/menus.h>
#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>
#include <tetrad/app/window_delegate.h>
#include <tetrad/strings/error_object.h>

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <utility>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr char sheetKey[] = "sheetNumber";
constexpr char titleKey[] = "alertButtonTitle";

// No close box: a title alone, on the platforms that honour the hint.
constexpr Qt::WindowFlags alertFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;

// The application's own icon, or none if it has none; only a critical alert has an icon of its own.
QPixmap iconOf(const Alert &alert)
{
    const int size = alert.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &alert);
    return QApplication::windowIcon().pixmap(QSize(size, size), alert.devicePixelRatio());
}

} // namespace

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

Alert *Alert::withError(const ErrorObject &error)
{
    auto *const alert = new Alert;
    alert->setMessageText(
        error.description.isEmpty()
            ? tr("The operation could not be completed. (%1 error %2.)").arg(error.domain, QString::number(error.code))
            : error.description);
    return alert;
}

Tag Alert::tag() const
{
    return objectTag(this);
}

void Alert::setTag(Tag tag)
{
    setObjectTag(this, tag);
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
        setIconPixmap(iconOf(*this));
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
    QPushButton *const button = addButton(QString(title).replace(u'&', u"&&"_s), QMessageBox::ActionRole);
    button->setProperty(titleKey, title);
    m_buttons.append(button);
    if (m_buttons.size() == 1) {
        m_returnButton = button;
        setDefaultButton(button);
    }
    return button;
}

QString Alert::buttonTitle(quint64 index) const
{
    return index < quint64(m_buttons.size()) ? m_buttons.at(qsizetype(index))->property(titleKey).toString()
                                             : QString();
}

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

bool Alert::showsSuppressionButton() const
{
    return checkBox();
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

CUI_AlertDelegate *Alert::delegate() const
{
    return m_delegate;
}

void Alert::setDelegate(CUI_AlertDelegate *delegate)
{
    m_delegate = delegate;
}

qint64 Alert::runModal(QWidget *over)
{
    if (!isVisible()) {
        attachTo(over && over->isVisible() ? over : nullptr, Qt::NonModal);
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

void Alert::beginSheet(QWidget *window, std::function<void(qint64)> completion)
{
    attachTo(window, Qt::WindowModal);
    prepareToShow();
    // The window that the sheet blocks cannot fire them.
    addMenuShortcutsTo(this);
    m_sheetWindow = window->window();
    m_completion = std::move(completion);
    auto *const owner = qobject_cast<Window *>(m_sheetWindow);
    if (!owner) {
        show();
        return;
    }
    // Each report may end in a callback that deletes the window, and the alert with it.
    const QPointer<Alert> self(this);
    CUI_WindowDelegateObj()->windowWillBeginSheet(owner);
    if (!self) {
        return;
    }
    const QRectF top(0, 0, owner->contentView()->width(), 0);
    const QRectF place = CUI_WindowDelegateObj()->windowWillPositionSheet(owner, this, top);
    if (self) {
        show();
        move(owner->contentView()->mapToGlobal(place.topLeft().toPoint()) +
             QPoint((qRound(place.width()) - width()) / 2, 0));
    }
}

void Alert::dismiss()
{
    if (isVisible()) {
        m_completion = nullptr;
        m_code = 0;
        done(0);
    }
}

void Alert::attachTo(QWidget *window, Qt::WindowModality modality)
{
    const bool isSheet = modality != Qt::NonModal;
    setParent(window ? window->window() : nullptr, alertFlags);
    setWindowModality(modality);
    // The modality changed the flags.
    setWindowFlags(isSheet ? (alertFlags & ~Qt::WindowType_Mask) | Qt::Sheet : alertFlags);
    setWorksWhenModal(this, isSheet);
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

void Alert::endSheet()
{
    auto *const owner = qobject_cast<Window *>(m_sheetWindow);
    m_sheetWindow = nullptr;
    // A callback may delete the alert; who began the sheet is still to be told.
    const auto completion = std::exchange(m_completion, nullptr);
    const qint64 code = m_code;
    if (owner) {
        CUI_WindowDelegateObj()->windowDidEndSheet(owner);
    }
    if (completion) {
        completion(code);
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

void Alert::keyPressEvent(QKeyEvent *event)
{
    // The base class would press a button that it takes for the one to cancel with.
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Cancel)) {
        event->accept();
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        QMessageBox::keyPressEvent(event);
        return;
    }
    // The box presses a button by its key whatever the Shift key says; shortcuts have done that already.
    QDialog::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void Alert::closeEvent(QCloseEvent *event)
{
    event->ignore();
}

} // namespace tetrad
