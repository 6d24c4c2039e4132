#pragma once

#include <tetrad/events/tag.h>

#include <QString>

class QWidget;

namespace tetrad {

// What the user is told, soon, of a tag that a statement or a lookup can do nothing with.

/// The alert "Tag error." with this text.
void showTagError(const QString &text);

/// The alert "Class error." about a view that is not of the class wanted. wndTag: the window that was searched.
void showClassError(Tag tag, const QWidget *view, Tag wndTag, const QString &wantedClass);
/// The same about an object in place of a tag.
void showClassError(const QObject *object, const QString &wantedClass);

/// The alert "Error.": there is no window to work in.
void showNoWindowsError();

} // namespace tetrad
