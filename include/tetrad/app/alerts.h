#pragma once

// Implemented in runtime/app/alerts/alerts.cpp and show_alert.cpp

#include <tetrad/events/tag.h>

#include <QString>
#include <QVariant>

namespace tetrad {

enum AlertStyle : qint64 {
    alertStyleWarning = 0,
    alertStyleInformational = 1,
    alertStyleCritical = 2,
};

/// Codes of the buttons in the order in which they were added.
enum AlertButton : qint64 {
    alertFirstButton = 1000,
    alertSecondButton = 1001,
    alertThirdButton = 1002,
};

/// The alert statement. tag > 0 shows the alert now; tag <= 0 defines or updates it, or dismisses one
/// that exists. `message` is a text, an ErrorObject from which the alert is then built, or null;
/// `buttons` is null, a text of titles separated by ";", or a list of titles, and counts only when
/// the alert is made. style and sheet may be notGiven. Returns the button's code after a modal
/// run, 0 in every other case. A shown alert is forgotten when it ends.
qint64 CUI_Alert(Tag tag, qint64 style, const QVariant &message, const QString &informative, const QVariant &buttons,
                 qint64 sheet);

/// The alert that is defined under this tag, or null; 0 gives null, a value above largestTag is taken
/// to be the alert itself. The value is compared as given, sign included.
Alert *CUI_AlertWithTag(Tag tag);

/// The registry of alerts defined and not yet ended. It does not own them.
void CUI_AlertAdd(Alert *alert);
void CUI_AlertRemove(Alert *alert);

/// Sets the key that presses a button (0-based index). An unknown tag, or an index at or beyond the
/// number of buttons, is ignored; programs rely on that.
void AlertButtonSetKeyEquivalent(Tag tag, quint64 index, const QString &key);

/// Queues a warning with "OK" and "Quit" and returns at once; it appears inside the next modal loop.
/// "Quit" ends the program. May be called from any thread. Without a QApplication the texts go to standard
/// error.
void CUI_ShowAlert(qint64 style, const QString &message, const QString &informative);

} // namespace tetrad
