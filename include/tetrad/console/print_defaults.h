#pragma once

#include <QFont>

namespace tetrad {

/// A plain record that a program may keep its own console defaults in; nothing in the console reads it.
struct CUI_PrintToWindowDefaults
{
    QFont font;
    double textInset = 0;
    bool showScroller = false;
    bool autoHideScroller = false;
};

} // namespace tetrad
