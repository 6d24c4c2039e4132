#pragma once

#include <QString>

namespace tetrad {

class CUI_PrintToWindowItem;

/// An item on one line for people and tests to read, as in `text (3,14) "abc" size 12 color #ffffff` or
/// `rect (10,200) size 400x15 width 1 stroke #000000 fill none`.
QString dumpedItem(const CUI_PrintToWindowItem &item);

} // namespace tetrad
