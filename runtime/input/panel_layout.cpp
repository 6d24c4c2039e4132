#include "runtime/input/panel_layout.h"

#include <tetrad/strings/not_given.h>

#include <algorithm>

namespace tetrad {

namespace {

constexpr int lineTop = 10;
constexpr int labelLeft = 8;
constexpr int emptyLabelWidth = 4;
constexpr int entryLeftWithoutPrompt = 10;
constexpr int rightMargin = 10;
constexpr int textPadding = 5; ///< added to the text's width, in label and entry
constexpr int gap = 2;         ///< between label and entry

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

QPoint requestedPosition(qint64 xPos, qint64 yPos, QSize content)
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
    const int wholeEntry = metrics.entryWidth + textPadding;
    const int rightmostEntry = content.width() - rightMargin - std::min(wholeEntry, metrics.usableEntryWidth);
    if (prompted && entryLeft > rightmostEntry) {
        labelWidth = std::max(0, rightmostEntry - entryLeftAfter(0));
        entryLeft = entryLeftAfter(labelWidth);
    }
    const int entryWidth = std::clamp(content.width() - entryLeft - rightMargin, 0, wholeEntry);
    const int bodyWidth =
        std::min(std::max(metrics.minimumWidth, entryLeft + entryWidth + rightMargin), content.width());
    const int left = std::clamp(wanted.x(), 0, content.width() - bodyWidth);
    const int top = std::max(0, std::min(wanted.y(), content.height() - panelHeight));
    return {.body = QRect(left, top, bodyWidth, panelHeight),
            .label = QRect(labelLeft, lineTop, labelWidth, panelLineHeight),
            .entry = QRect(entryLeft, lineTop, entryWidth, panelLineHeight)};
}

} // namespace tetrad
