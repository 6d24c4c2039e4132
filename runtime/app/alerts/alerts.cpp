#include <tetrad/app/alerts.h>

#include "runtime/app/process/tag_registry.h"
#include <tetrad/app/alert.h>
#include <tetrad/app/windows.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>
#include <tetrad/strings/error_object.h>
#include <tetrad/strings/not_given.h>

#include <QPointer>

namespace tetrad {

namespace {

bool isError(const QVariant &message)
{
    return message.metaType() == QMetaType::fromType<ErrorObject>();
}

// Every ";" separates two titles, so that "A;;B" has an untitled button in the middle.
QStringList buttonTitles(const QVariant &buttons)
{
    if (buttons.typeId() != QMetaType::QString) {
        return buttons.toStringList();
    }
    const QString text = buttons.toString();
    return text.isNull() ? QStringList() : text.split(u';');
}

Alert *newAlert(Tag tag, qint64 style, const QVariant &message, const QVariant &buttons)
{
    Alert *alert = nullptr;
    if (isError(message)) {
        alert = Alert::withError(message.value<ErrorObject>());
    } else {
        alert = new Alert;
        alert->setAlertStyle(style == notGiven ? alertStyleWarning : style);
        for (const QString &title : buttonTitles(buttons)) {
            alert->addAlertButton(title);
        }
    }
    alert->setDelegate(CUI_AlertDelegateObj());
    alert->setTag(tag);
    alert->setReleasedWhenEnded(true);
    CUI_AlertAdd(alert);
    return alert;
}

// Deferred, because an outer run of the same alert, or one of its own signals, may still be under way.
void forget(Alert *alert)
{
    CUI_AlertRemove(alert);
    if (alert->isReleasedWhenEnded()) {
        alert->deleteLater();
    }
}

qint64 runAlert(Alert *alert, Tag tag, QWidget *target)
{
    const QPointer<Alert> running(alert);
    const qint64 result = alert->runModal(target);
    if (running) {
        CUI_AlertDelegateObj()->lastSuppressionButtonState = running->suppressionButtonState();
        forget(running);
    }
    CallUserDefinedOnDialogFunction(alertEndedEvent, result, tag, 0);
    return result;
}

qint64 showAlert(Alert *alert, Tag tag)
{
    if (alert->isRunningAsSheet()) {
        alert->raise();
        return 0;
    }
    Tag targetTag = 0;
    QWidget *const target = CUI_TargetWindow(&targetTag);
    if (!alert->sheet() || !target || alert->isVisible()) {
        return runAlert(alert, tag, target);
    }
    alert->beginSheet(target, [alert = QPointer<Alert>(alert)](qint64 code) {
        if (CUI_AlertDelegate *const delegate = alert ? alert->delegate() : nullptr) {
            delegate->alertDidEnd(alert, code, nullptr);
        }
        if (alert) {
            forget(alert);
        }
    });
    return 0;
}

// A run that is dismissed under way reports its end twice, here and when the run returns with 0. That is
// deliberate: every dismissal reports, and so does every run.
void dismissAlert(Alert *alert, Tag tag)
{
    CUI_AlertDelegateObj()->lastSuppressionButtonState = alert->suppressionButtonState();
    const QPointer<Alert> closing(alert);
    alert->dismiss();
    if (closing) {
        forget(closing);
    }
    CallUserDefinedOnDialogFunction(alertEndedEvent, 0, tag, 0);
}

} // namespace

qint64 CUI_Alert(Tag tag, qint64 style, const QVariant &message, const QString &informative, const QVariant &buttons,
                 qint64 sheet)
{
    const Tag name = tagIdentity(tag);
    Alert *alert = CUI_AlertWithTag(name);
    const bool existed = alert;
    if (!existed) {
        alert = newAlert(name, style, message, buttons);
    } else if (style != notGiven) {
        alert->setAlertStyle(style);
    }
    if (sheet != notGiven) {
        alert->setSheet(sheet != 0);
    }
    if (!isError(message)) {
        if (const QString text = message.toString(); !text.isNull()) {
            alert->setMessageText(text);
        }
        if (!informative.isNull()) {
            alert->setInformative(informative);
        }
    }
    if (tag > 0) {
        return showAlert(alert, name);
    }
    if (existed) {
        dismissAlert(alert, name);
    }
    return 0;
}

Alert *CUI_AlertWithTag(Tag tag)
{
    if (tag == 0) {
        return nullptr;
    }
    if (isObjectAddress(tag)) {
        return qobject_cast<Alert *>(objectFromTag(tag));
    }
    return TagRegistry<Alert>::instance().withTag(tag);
}

void CUI_AlertAdd(Alert *alert)
{
    TagRegistry<Alert>::instance().add(alert);
}

void CUI_AlertRemove(Alert *alert)
{
    TagRegistry<Alert>::instance().remove(alert);
}

void AlertButtonSetKeyEquivalent(Tag tag, quint64 index, const QString &key)
{
    if (Alert *const alert = CUI_AlertWithTag(tag)) {
        alert->setKeyEquivalent(index, key);
    }
}

} // namespace tetrad
