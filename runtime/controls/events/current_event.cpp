#include "runtime/controls/events/current_event.h"

namespace tetrad {

namespace {

QEvent *currentEvent = nullptr;

} // namespace

QEvent *CUI_EventEvent()
{
    return currentEvent;
}

void CUI_EventSetEvent(QEvent *event)
{
    currentEvent = event;
}

} // namespace tetrad
