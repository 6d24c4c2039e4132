#pragma once

#include <tetrad/controls/view_lookup.h>

class QWidget;

namespace tetrad {

/// The tag of a view as lookups compare it: for exactly NSView, ViewSC and NSVisualEffectView the number its
/// objectName begins with, for every other view the tag it carries. 0 when there is none.
Tag viewSearchTag(const QWidget *view);

/// Gives a view a tag where viewSearchTag reads it.
void setViewTag(QWidget *view, Tag tag);

} // namespace tetrad
