#pragma once

#include <QRect>

namespace tetrad {

/// What a floating panel shows, in pixels.
struct PanelMetrics
{
    int promptWidth = 0;      ///< width of the prompt's text, 0 without a prompt
    int entryWidth = 0;       ///< width of the entry's text now
    int minimumWidth = 0;     ///< the body is never narrower, unless the content is
    int usableEntryWidth = 0; ///< the entry gets this much before the prompt gets its whole width
};

/// The body's rectangle in the content, those of label and entry in the body.
struct PanelGeometry
{
    QRect body;
    QRect label;
    QRect entry;
};

inline constexpr int panelHeight = 36;
inline constexpr int panelLineHeight = 16; ///< of label and entry

/// Where the text of a label or entry begins below its top, for a font of this height; above it, where the font's line
/// is higher, so that both ends are cut alike.
constexpr int panelTextTop(int fontHeight)
{
    const int room = panelLineHeight - fontHeight;
    return room < 0 ? room / 2 : (room + 1) / 2;
}

/// The requested position of the body's top left corner, for that of its bottom left corner. With notGiven in both it
/// is 20 pixels from the left, vertically centred.
QPoint requestedPosition(qint64 xPos, qint64 yPos, QSize content);

/// The body is as wide as its texts and moved into the content where it passes an edge. Texts too wide for the
/// content are cut: first the prompt, until the entry has its usable width, then the entry.
PanelGeometry layOutPanel(const PanelMetrics &metrics, QPoint wanted, QSize content);

} // namespace tetrad
