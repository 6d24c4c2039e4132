#pragma once

#include <QString>

class QVariant;

namespace tetrad {

/// What "%@" prints for an object: a text as it is, an error object's description, a number's shortest
/// form, "(1, 2)" for a list, "{key = value}" for a map, "(null)" for null.
QString descriptionOf(const QVariant &object);

} // namespace tetrad
