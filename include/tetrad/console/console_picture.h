#pragma once

#include <QImage>
#include <QRect>
#include <QRegion>

#include <functional>

class QPainter;

namespace tetrad {

/// A band of the console as it was drawn last. A caret that blinks over the console, and a panel that grows there, have
/// what lies below painted again each time, and a text that was printed over is drawn with everything above it; from
/// here it is copied instead. Places are in the console's coordinates.
class ConsolePicture
{
public:
    /// What every pixel depends on besides the items.
    struct Look
    {
        int width = 0;
        QRgb ground = 0;     ///< opaque
        QRgb textColor = 0;  ///< of texts that name none
        double mirrorAt = 0; ///< the document's height where y grows upwards, else 0

        bool operator==(const Look &) const = default;
    };

    using Draw = std::function<void(const QRect &missing)>;

    /// Paints a part of the console's widget for which the painter was made, with the ground below already there.
    /// What the picture lacks is drawn, and kept when it is not higher than the band and drawn for the window's screen.
    void paint(QPainter &painter, const QWidget &console, const QRegion &part, const Look &look, const Draw &draw);

    /// To be called for what is to be drawn anew.
    void forget(const QRect &part) { m_known -= part; }
    void forget() { m_known = QRegion(); }

private:
    bool holds(const QImage &screen, const QRect &part, const Look &look, int scale) const;

    QImage m_band;
    QPoint m_place; ///< of the band's top left corner
    int m_scale = 1;
    Look m_look;
    QRegion m_known; ///< what of the band has been drawn
};

} // namespace tetrad
