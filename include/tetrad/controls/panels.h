#pragma once

// Implemented in runtime/controls/statements/panels.cpp.
#include <tetrad/events/tag.h>

#include <QColor>
#include <QFont>

class QColorDialog;
class QFontDialog;

namespace tetrad {

/// The program's one colour panel, a floating window without buttons, shown with this colour. Every colour the user
/// chooses in it is reported at once (code 2600; the panel is the object, its tag 0, the window that of the last
/// statement). Closing hides it.
QColorDialog *CUI_ColorPanel(const QColor &color);

/// The same for fonts (code 2200).
QFontDialog *CUI_FontPanel(const QFont &font);

} // namespace tetrad
