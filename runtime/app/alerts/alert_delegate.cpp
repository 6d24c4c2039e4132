#include <tetrad/app/alert.h>

#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

namespace tetrad {

bool CUI_AlertDelegate::alertShowHelp(Alert *alert)
{
    const Tag tag = alert->tag();
    CUI_DialogEventObj()->boolVal = false;
    CallUserDefinedOnDialogFunction(alertHelpEvent, tag, tag, 0);
    return CUI_DialogEventObj()->boolVal;
}

void CUI_AlertDelegate::alertDidEnd(Alert *alert, qint64 returnCode, void * /*contextInfo*/)
{
    setLastSuppressionButtonState(alert->suppressionButtonState());
    CallUserDefinedOnDialogFunction(alertEndedEvent, returnCode, alert->tag(), 0);
}

CUI_AlertDelegate *CUI_AlertDelegateObj()
{
    static auto *const delegate = new CUI_AlertDelegate;
    return delegate;
}

} // namespace tetrad
