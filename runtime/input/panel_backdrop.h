#pragma once

class QPainter;
class QPalette;
class QRect;

namespace tetrad {

/// How far the shadow reaches from the body to each side, in pixels.
constexpr int shadowMargin = 14;
/// From the panel's left and right to where its picture no longer depends on x.
constexpr int panelEndWidth = 25;

/// Paints a floating panel's translucent body with its rounded edge, and around it its shadow. panel: body and margin.
void paintPanelBackdrop(QPainter &painter, const QRect &panel, const QPalette &palette);

} // namespace tetrad
