#include "runtime/controls/lookup/view_tag.h"

#include "runtime/controls/lookup/class_names.h"
#include <tetrad/strings/numbers.h>

#include <QWidget>

namespace tetrad {

namespace {

bool isPlainView(const QWidget *view)
{
    return isExactlyViewClass(view, u"NSView") || isExactlyViewClass(view, u"ViewSC");
}

bool isSearchedByIdentifier(const QWidget *view)
{
    return isPlainView(view) || isExactlyViewClass(view, u"NSVisualEffectView");
}

} // namespace

Tag viewSearchTag(const QWidget *view)
{
    return isSearchedByIdentifier(view) ? StringIntegerValue(view->objectName()) : objectTag(view);
}

Tag CUI_ViewTag(const QWidget *view)
{
    const bool byIdentifier = isPlainView(view) || isExactlyViewClass(view, u"ContentViewSC");
    return byIdentifier ? StringIntegerValue(view->objectName()) : objectTag(view);
}

void setViewTag(QWidget *view, Tag tag)
{
    if (isSearchedByIdentifier(view)) {
        view->setObjectName(QString::number(tag));
    } else {
        setObjectTag(view, tag);
    }
}

Tag CUI_ViewWindowTag(const QWidget *view)
{
    return objectTag(view->window());
}

} // namespace tetrad
