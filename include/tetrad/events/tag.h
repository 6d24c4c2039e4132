#pragma once

// Implemented in runtime/controls/events/tag.cpp

#include <tetrad/fwd.h>

class QEvent;
class QObject;

namespace tetrad {

inline constexpr Tag largestTag = 1000000;

/// The tag that names the content view itself: the bytes AA 55 AA 55 as a signed 32-bit number. Also
/// the identifier text that every content view carries.
inline constexpr Tag contentViewTag = -1437226411;

/// The identity that a tag names, whatever its sign asks for: its absolute value. The lowest number, which has none,
/// stays as it is.
constexpr Tag tagIdentity(Tag tag)
{
    return tag < 0 ? static_cast<Tag>(0 - static_cast<quint64>(tag)) : tag;
}

/// True for a value that is an object's address rather than a tag.
constexpr bool isObjectAddress(Tag value)
{
    return value > largestTag;
}

/// The one pair of conversions between an object and the integer that stands for it. Nobody else
/// casts. The object is not owned and must be alive when the value is turned back.
Tag tagFromObject(const QObject *object);

/// Null unless isObjectAddress(value).
QObject *objectFromTag(Tag value);

/// The same for platform events. An event is alive only until the callback that was given it returns.
Tag tagFromEvent(const QEvent *event);
QEvent *eventFromTag(Tag value);

/// The tag that an object carries (dynamic property "tagNumber"); 0 when never set.
Tag objectTag(const QObject *object);
void setObjectTag(QObject *object, Tag tag);

/// The tag of the window that owns an object (dynamic property "wndTagNumber"); 0 when never set.
Tag objectWindowTag(const QObject *object);
void setObjectWindowTag(QObject *object, Tag wndTag);

/// The tag of the window that prints go to and that sheets attach to, stored as an absolute value; 0
/// means none. It follows the last window statement and the last window that became key or main,
/// moved, resized, or began or ended a sheet.
void CUI_OutputWindowSetTag(Tag tag);
Tag CUI_OutputWindowTag();

} // namespace tetrad
