#include "runtime/controls/lookup/tag_alerts.h"

#include "runtime/app/process/strings_table.h"
#include "runtime/controls/lookup/class_names.h"
#include <tetrad/app/alerts.h>

#include <QWidget>

namespace tetrad {

namespace {

void showClassError(const QString &text)
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Class error.")), text);
}

} // namespace

void showTagError(const QString &text)
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Tag error.")), text);
}

void showClassError(Tag tag, const QWidget *view, Tag wndTag, const QString &wantedClass)
{
    const char *const text = QT_TRANSLATE_NOOP("Runtime", "View %1 (%2), in window %3, cannot respond to %4 messages.");
    showClassError(
        runtimeText(text).arg(QString::number(tag), viewClassName(view), QString::number(wndTag), wantedClass));
}

void showClassError(const QObject *object, const QString &wantedClass)
{
    showClassError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "View %1 cannot respond to %2 messages."))
                       .arg(viewDescription(object), wantedClass));
}

void showNoWindowsError()
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Error.")),
                  runtimeText(QT_TRANSLATE_NOOP("Runtime", "Can't find any windows.")));
}

} // namespace tetrad
