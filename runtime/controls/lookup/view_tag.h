#pragma once

#include <tetrad/events/tag.h>

class QWidget;

namespace tetrad {

/// The tag of a view as lookups compare it: for exactly NSView, ViewSC and NSVisualEffectView the number its
/// objectName begins with, for every other view the tag it carries. 0 when there is none.
Tag viewSearchTag(const QWidget *view);

/// The tag that a view's own events report. Deliberately not quite viewSearchTag: here the objectName counts
/// for exactly NSView, ViewSC and ContentViewSC, so that a content view reports contentViewTag.
Tag CUI_ViewTag(const QWidget *view);

/// Gives a view a tag in the place where viewSearchTag reads it.
void setViewTag(QWidget *view, Tag tag);

/// The tag of the window or popover that shows the view; 0 when there is none.
Tag CUI_ViewWindowTag(const QWidget *view);

} // namespace tetrad
