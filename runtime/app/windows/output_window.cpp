#include "runtime/app/windows/output_window.h"

#include "runtime/app/process/strings_table.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/content_view.h>
#include <tetrad/app/popover.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>

namespace tetrad {

QWidget *CUI_OutputWindow()
{
    return CUI_TargetWithTag(CUI_OutputWindowTag());
}

QWidget *CUI_OutputWindowContentView()
{
    return contentViewOf(CUI_OutputWindow());
}

QWidget *searchedContentView()
{
    QWidget *const output = CUI_OutputWindowContentView();
    return output ? output : contentViewOf(CUI_FrontWindow());
}

QWidget *contentViewOf(const QWidget *windowOrPopover)
{
    if (const auto *window = qobject_cast<const Window *>(windowOrPopover)) {
        return window->contentView();
    }
    const auto *popover = qobject_cast<const Popover *>(windowOrPopover);
    return popover ? popover->contentView() : nullptr;
}

QWidget *CUI_TargetWithTag(Tag tag)
{
    if (QWidget *window = CUI_WindowWithTag(tag)) {
        return window;
    }
    return CUI_PopoverWithTag(tag);
}

QWidget *CUI_TargetWindow(Tag *tag)
{
    if (*tag != 0) {
        return CUI_TargetWithTag(*tag);
    }
    QWidget *target = CUI_OutputWindow();
    if (!target) {
        target = CUI_FrontWindow();
    }
    if (target) {
        *tag = objectTag(target);
    }
    return target;
}

bool CUI_ObjectIsPopover(Tag tag)
{
    // An object's address never shares a tag with anything.
    if (isObjectAddress(tag) || !CUI_PopoverWithTag(tag)) {
        return false;
    }
    CUI_ShowAlert(alertStyleWarning, runtimeText(QT_TRANSLATE_NOOP("Runtime", "Window tag error.")),
                  runtimeText(QT_TRANSLATE_NOOP("Runtime", "Windows and Popovers cannot have same tag value.")));
    return true;
}

} // namespace tetrad
