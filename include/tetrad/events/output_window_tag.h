#pragma once

#include <tetrad/events/tag.h>

namespace tetrad {

/// The tag of the window that prints go to and that sheets attach to, stored as an absolute value; 0
/// means none. It follows the last window statement and the last window that became key or main,
/// moved, resized, or began or ended a sheet.
void CUI_OutputWindowSetTag(Tag tag);
Tag CUI_OutputWindowTag();

} // namespace tetrad
