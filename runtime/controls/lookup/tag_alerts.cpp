#include "runtime/controls/lookup/tag_alerts.h"

#include "runtime/app/process/strings_table.h"
#include <tetrad/app/alerts.h>

namespace tetrad {

void showTagError(const QString &text)
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Tag error.")), text);
}

void showClassError(const QString &text)
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Class error.")), text);
}

void showNoWindowsError()
{
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Error.")),
                  runtimeText(QT_TRANSLATE_NOOP("Runtime", "Can't find any windows.")));
}

} // namespace tetrad
