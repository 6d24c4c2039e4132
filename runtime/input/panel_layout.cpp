#include "runtime/input/panel_layout.h"

#include <tetrad/strings/not_given.h>

#include <algorithm>

namespace tetrad {

namespace {

constexpr int lineTop = 10;
constexpr int lineHeight = 16;
constexpr int labelLeft = 8;
constexpr int emptyLabelWidth = 4;
constexpr int entryLeftWithoutPrompt = 10;
constexpr int rightMargin = 10;
constexpr int textPadding = 5; ///< what label and entry are wider than their text
constexpr int nearLeftEdge = 10;
constexpr int gap = 2; ///< between label and entry

int toCoordinate(qint64 value)
{
    constexpr qint64 farAway = 1'000'000;
    return static_cast<int>(std::clamp(value, -farAway, farAway));
}

int entryLeftAfter(int labelWidth)
{
    return labelLeft + labelWidth + gap;
}

} // namespace

QPoint wantedPlace(qint64 xPos, qint64 yPos, QSize content)
{
    if (xPos == notGiven && yPos == notGiven) {
        return {20, (content.height() - panelHeight) / 2};
    }
    return {toCoordinate(xPos), toCoordinate(yPos) - panelHeight};
}

PanelGeometry layOutPanel(const PanelMetrics &metrics, QPoint wanted, QSize content)
{
    const bool prompted = metrics.promptWidth > 0;
    int labelWidth = prompted ? metrics.promptWidth + textPadding : emptyLabelWidth;
    int entryLeft = prompted ? entryLeftAfter(labelWidth) : entryLeftWithoutPrompt;
    const int required = std::max(metrics.minimumWidth, entryLeft + metrics.usableEntryWidth + rightMargin);

    // A prompt that cannot be shown whole anyway does not push the panel against the left edge.
    const int narrowest = std::min(nearLeftEdge, content.width() - metrics.minimumWidth);
    const int rightmost = std::max(narrowest, content.width() - required);
    const int left = std::max(0, std::min(wanted.x(), rightmost));
    const int top = std::max(0, std::min(wanted.y(), content.height() - panelHeight));
    const int available = content.width() - left;

    const int usableLeft = available - rightMargin - metrics.usableEntryWidth;
    if (prompted && entryLeft > usableLeft) {
        labelWidth = std::max(0, usableLeft - entryLeftAfter(0));
        entryLeft = entryLeftAfter(labelWidth);
    }
    const int entryWidth = std::clamp(available - entryLeft - rightMargin, 0, metrics.entryWidth + textPadding);
    const int bodyWidth = std::min(std::max(metrics.minimumWidth, entryLeft + entryWidth + rightMargin), available);
    return {.body = QRect(left, top, bodyWidth, panelHeight),
            .label = QRect(labelLeft, lineTop, labelWidth, lineHeight),
            .entry = QRect(entryLeft, lineTop, entryWidth, lineHeight)};
}

} // namespace tetrad
