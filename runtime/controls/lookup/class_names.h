#pragma once

#include <QString>

class QObject;
struct QMetaObject;

namespace tetrad {

/// The class name that messages show for a class of this platform, as in "NSButton" for QPushButton: that of the
/// nearest class which the vocabulary has a word for.
QString viewClassName(const QMetaObject &platformClass);

/// Whether an object is of a class of the vocabulary or of one derived from it. A "control" is what this
/// calls "NSControl".
bool isKindOfViewClass(const QObject *object, const QString &className);

} // namespace tetrad
