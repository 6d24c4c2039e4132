#pragma once

#include <QImage>
#include <QRect>
#include <QTransform>

#include <array>

class QPainter;

namespace tetrad {

class CUI_PrintToWindowView;

/// The visible part of a console as the screen shows it. Appended items are drawn onto it, each once, and what has to
/// be painted again is copied from it. It is as large as the visible part: 33 MB where that is 1920 x 1080 at scale 2.
class KeptPicture
{
public:
    /// Paints the visible part of the view for which the painter was made; ground: the opaque colour that lies below.
    /// Returns false, having done nothing, when the painter does not paint onto the screen.
    bool paint(QPainter &painter, CUI_PrintToWindowView &view, const QRect &visible, const QColor &ground);

    /// Draws everything again the next time.
    void forget() { m_drawn = -1; }

private:
    /// What every pixel depends on besides the items.
    struct Look
    {
        QTransform toScreen;
        QTransform mirror;
        QRect part; ///< of the screen, in its pixels
        QImage::Format format = QImage::Format_Invalid;
        std::array<QRgb, 4> colors = {};

        bool operator==(const Look &) const = default;
    };

    QImage m_image;
    Look m_look;
    qsizetype m_drawn = -1; ///< How many items; negative: none, not even the ground.
};

} // namespace tetrad
