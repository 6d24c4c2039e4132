#pragma once

#include <QObject>

namespace tetrad {

class Alert;

/// Reports what happens to alerts to the dialog function.
class CUI_AlertDelegate : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint64 lastSuppressionButtonState READ lastSuppressionButtonState WRITE setLastSuppressionButtonState)

public:
    using QObject::QObject;

    /// The suppression check box of the alert that ended last: 1 checked, 0 not.
    qint64 lastSuppressionButtonState() const { return m_lastSuppressionButtonState; }
    void setLastSuppressionButtonState(qint64 state) { m_lastSuppressionButtonState = state; }

    /// Event 1001. Whether the callback showed help: what it left in the dialog event's boolean.
    Q_INVOKABLE virtual bool alertShowHelp(tetrad::Alert *alert);

    /// Event 1000 for a sheet. `contextInfo` is the caller's own and not looked at.
    virtual void alertDidEnd(Alert *alert, qint64 returnCode, void *contextInfo);

private:
    qint64 m_lastSuppressionButtonState = 0;
};

/// The shared delegate of every alert that CUI_Alert makes; it lives to the end of the program.
CUI_AlertDelegate *CUI_AlertDelegateObj();

} // namespace tetrad
