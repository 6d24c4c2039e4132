#include "runtime/app/alerts/show_alert.h"

#include "runtime/app/process/termination.h"
#include <tetrad/app/alert.h>
#include <tetrad/app/alerts.h>
#include <tetrad/app/windows.h>

#include <QApplication>
#include <QQueue>
#include <QScopedValueRollback>

#include <cstdio>

namespace tetrad {

namespace {

struct Warning
{
    qint64 style = alertStyleWarning;
    QString message;
    QString informative;
};

// Used on the main thread only.
QQueue<Warning> &waitingWarnings()
{
    static QQueue<Warning> warnings;
    return warnings;
}

// A warning's own modal loop serves the queue too: what arrives meanwhile waits for its turn.
void enqueue(const Warning &warning)
{
    static bool isShowing = false;
    waitingWarnings().enqueue(warning);
    if (isShowing) {
        return;
    }
    const QScopedValueRollback guard(isShowing, true);
    while (!waitingWarnings().isEmpty()) {
        const auto [style, message, informative] = waitingWarnings().dequeue();
        if (runAlertWithoutTag(style, message, informative, {Alert::tr("OK"), Alert::tr("Quit")}) ==
            alertSecondButton) {
            quitByUser();
        }
    }
}

} // namespace

qint64 runAlertWithoutTag(qint64 style, const QString &message, const QString &informative, const QStringList &titles)
{
    const QPointer<Alert> alert = new Alert;
    alert->setAlertStyle(style);
    alert->setMessageText(message);
    alert->setInformative(informative);
    for (const QString &title : titles) {
        alert->addAlertButton(title);
    }
    Tag targetTag = 0;
    const qint64 code = alert->runModal(CUI_TargetWindow(&targetTag));
    delete alert.data();
    return code;
}

void CUI_ShowAlert(qint64 style, const QString &message, const QString &informative)
{
    QCoreApplication *const application = QCoreApplication::instance();
    // Without windows nobody would ever see it.
    if (!qobject_cast<QApplication *>(application)) {
        std::fprintf(stderr, "%s %s\n", qUtf8Printable(message), qUtf8Printable(informative));
        return;
    }
    const Warning warning{style, message, informative};
    QMetaObject::invokeMethod(
        application, [warning] { enqueue(warning); }, Qt::QueuedConnection);
}

} // namespace tetrad
