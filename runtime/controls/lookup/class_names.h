#pragma once

#include <QString>

class QObject;
struct QMetaObject;

namespace tetrad {

/// The class name that messages show for an object, as in "NSButton" for a QPushButton: that of the nearest class
/// which the vocabulary has a word for.
QString viewClassName(const QObject *object);
QString viewClassName(const QMetaObject &platformClass);

/// Whether an object is of a class of the vocabulary or of one derived from it. A "control" is what this
/// calls "NSControl".
bool isKindOfViewClass(const QObject *object, QStringView className);

/// Whether an object's class is the class itself, as in QWidget for "NSView", and not one derived from it. A C++
/// class without Q_OBJECT looks like its base.
bool isExactlyViewClass(const QObject *object, QStringView className);

/// "<NSButton: 0x55d0c0ffee00>"
QString objectDescription(const QObject *object, const QString &className);

} // namespace tetrad
