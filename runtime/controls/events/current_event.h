#pragma once

#include <tetrad/events/dialog_event.h>

namespace tetrad {

/// Makes an event the current one for a scope; the one before it is current again afterwards, since a
/// callback may run a modal loop in which other events arrive.
class CurrentEventScope
{
public:
    explicit CurrentEventScope(QEvent *event) : m_before(CUI_EventEvent()) { CUI_EventSetEvent(event); }
    ~CurrentEventScope() { CUI_EventSetEvent(m_before); }
    CurrentEventScope(const CurrentEventScope &) = delete;
    CurrentEventScope &operator=(const CurrentEventScope &) = delete;

private:
    QEvent *m_before = nullptr;
};

} // namespace tetrad
