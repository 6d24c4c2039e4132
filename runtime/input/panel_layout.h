#pragma once

#include <QRect>

namespace tetrad {

/// What a floating panel has to show, in pixels.
struct PanelMetrics
{
    int promptWidth = 0;      ///< width of the prompt's text, 0 without a prompt
    int entryWidth = 0;       ///< width of the entry's text now
    int minimumWidth = 0;     ///< the body is never narrower, unless the content is
    int usableEntryWidth = 0; ///< the entry may grow to this much before it meets the content's edge
};

/// Where its parts stand: the body in the content, label and entry in the body.
struct PanelGeometry
{
    QRect body;
    QRect label;
    QRect entry;
};

inline constexpr int panelHeight = 36;

/// Where the body's top left corner is wanted, for a position given as that of its bottom left corner.
/// With notGiven in both it is 20 pixels from the left, vertically centred.
QPoint wantedPlace(qint64 xPos, qint64 yPos, QSize content);

/// The body follows its texts, from the wanted place to the content's right edge, where it stops. A
/// wanted place that leaves too little room is pushed back into the content, and only a prompt too
/// long for the content itself gets less than its width.
PanelGeometry layOutPanel(const PanelMetrics &metrics, QPoint wanted, QSize content);

} // namespace tetrad
