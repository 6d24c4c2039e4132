#pragma once

#include <QFont>
#include <QPalette>

class QPainter;
class QRect;

namespace tetrad {

/// How far the shadow reaches from the body to each side, in pixels.
constexpr int shadowMargin = 14;

/// The application's font at the largest size, 13 pixels at most, whose letters and parentheses fit a label. The room
/// that some fonts keep above them for accents may be cut off.
QFont panelFont();

/// The application's palette with every colour set, so that nothing is inherited from the content. Typed text has the
/// colour of the prompt.
QPalette panelPalette();

/// Paints a floating panel's translucent body with its rounded edge, and its shadow around it. panel: body and margin.
void paintPanelBackdrop(QPainter &painter, const QRect &panel, const QPalette &palette);

} // namespace tetrad
