#include <tetrad/controls/view_sc.h>

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tetrad {

void VisualEffectView::setCoverage(qreal coverage)
{
    m_coverage = std::clamp(coverage, 0.0, 1.0);
    update();
}

void VisualEffectView::paintEvent(QPaintEvent *event)
{
    QColor veil = palette().color(QPalette::Window);
    veil.setAlphaF(float(m_coverage));
    QPainter(this).fillRect(event->rect(), veil);
}

} // namespace tetrad
