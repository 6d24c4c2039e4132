#pragma once

#include "runtime/app/process/strings_table.h"
#include <tetrad/app/alerts.h>
#include <tetrad/events/tag.h>

#include <QString>
#include <QWidget>

namespace tetrad {

/// The view, if it is of the class or of one derived from it, else null after the alert that fits.
QWidget *validatedView(Tag tagOrView, const QMetaObject &wanted);

/// The same as that class.
template <typename View>
View *viewOfClass(Tag tagOrView)
{
    return static_cast<View *>(validatedView(tagOrView, View::staticMetaObject));
}

/// Shows an alert in the next modal loop. Both texts are from the strings table; %1 and %2 in the second stand for the
/// values.
template <typename... Values>
void showStatementAlert(const char *title, const char *text, const Values &...values)
{
    QString message = runtimeText(text);
    ((message = message.arg(values)), ...);
    CUI_ShowAlert(alertStyleWarning, runtimeText(title), message);
}

template <typename... Values>
void showTagError(const char *text, const Values &...values)
{
    showStatementAlert(QT_TRANSLATE_NOOP("Runtime", "Tag error."), text, values...);
}

void showNoWindowsError();

/// Whether a statement can give the tag, whatever its sign, to what it makes. If not, an alert shows `text`, in which
/// %1 is the tag.
bool canBeTag(Tag tag, const char *text);

/// The first of some objects that carries the tag, or null; 0 gives null.
template <typename Object>
Object *objectWithTag(const QList<Object *> &objects, Tag tag)
{
    for (Object *const object : objects) {
        if (tag != 0 && objectTag(object) == tag) {
            return object;
        }
    }
    return nullptr;
}

} // namespace tetrad
