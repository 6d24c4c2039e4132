#pragma once

#include <QColor>

namespace tetrad {

QColor ColorBlack();
QColor ColorGreen(); ///< pure green: red 0, green 1, blue 0
QColor ColorRed();
QColor ColorWhite();

} // namespace tetrad
