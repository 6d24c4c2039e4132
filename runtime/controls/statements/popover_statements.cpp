#include <tetrad/controls/popovers.h>

#include "runtime/app/process/strings_table.h"
#include "runtime/controls/dispatch/popover_events.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/typed_lookup.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/content_view.h>
#include <tetrad/app/windows.h>

namespace tetrad {

namespace {

bool canBePopover(Tag tag)
{
    if (tag == 0 || isObjectAddress(tag)) {
        const char *const text = QT_TRANSLATE_NOOP("Runtime", "A popover needs a tag from 1 to 1000000, not %1.");
        showTagError(runtimeText(text).arg(tag));
        return false;
    }
    if (CUI_WindowWithTag(tag)) {
        CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Window tag error.")),
                      runtimeText(QT_TRANSLATE_NOOP("Runtime", "Windows and Popovers cannot have same tag value.")));
        return false;
    }
    return true;
}

// Null after an alert.
Popover *popoverWithTag(Tag tag)
{
    Popover *const popover = CUI_PopoverWithTag(tag);
    if (!popover) {
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "Can't find popover %1.")).arg(tag));
    }
    return popover;
}

} // namespace

void CUI_Popover(Tag tag, const QSizeF &contentSize, PopoverBehavior behavior)
{
    const Tag popoverTag = tagIdentity(tag);
    if (!canBePopover(popoverTag)) {
        return;
    }
    Popover *popover = CUI_PopoverWithTag(popoverTag);
    if (!popover) {
        popover = new Popover(popoverTag, contentSize.isEmpty() ? QSize(200, 100) : contentSize.toSize());
        reportPopoverEvents(popover);
    } else if (!contentSize.isEmpty()) {
        popover->contentView()->setFixedSize(contentSize.toSize());
    }
    popover->setBehavior(behavior);
    CUI_OutputWindowSetTag(popoverTag);
}

void PopoverSetAsks(Tag tag, bool asks)
{
    if (Popover *const popover = popoverWithTag(tag)) {
        setPopoverAsks(popover, asks);
    }
}

void PopoverShow(Tag tag, Tag relativeToView, const QRectF &rect, Qt::Edge preferredEdge)
{
    Popover *const popover = popoverWithTag(tag);
    if (QWidget *const view = popover ? viewOfClass<QWidget>(relativeToView) : nullptr) {
        popover->showRelativeTo(view, rect.toRect(), preferredEdge);
    }
}

void PopoverClose(Tag tag)
{
    if (Popover *const popover = CUI_PopoverWithTag(tag)) {
        popover->close();
    }
}

void PopoverRemove(Tag tag)
{
    if (Popover *const popover = CUI_PopoverWithTag(tag)) {
        setObjectTag(popover, 0);
        popover->hide();
        popover->deleteLater();
    }
}

} // namespace tetrad
