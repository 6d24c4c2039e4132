#pragma once

#include "runtime/controls/lookup/tag_lookup.h"
#include <tetrad/controls/view_lookup.h>

#include <QRectF>

namespace tetrad {

/// What the statements for views share. A statement names its view by |tag|; a positive tag shows it, a negative one
/// hides it. The view is looked up in the output window, else in the frontmost one, and made there when that has none.

/// The content view that a statement makes its view in. Null after an alert when there is no window, or when
/// the tag is 0 or an object's address.
QWidget *contentViewForStatement(Tag tag);

/// Gives a new view its tag, its window's tag and its natural size.
void adoptView(QWidget *view, Tag tag);

/// Gives a view and all that lies in it the tag of their window.
void setWindowTagWithin(QWidget *view, Tag wndTag);

/// Places a view in its superview, in pixels from the top left, and shows or hides it. An empty rectangle
/// leaves it where it is.
void placeView(QWidget *view, Tag tag, const QRectF &rect);

/// The view that a statement is about. Null after an alert, when the statement does nothing.
/// `whenMade` is called with a view made just now, before it gets its natural size: to connect it, for example.
template <typename View, typename WhenMade = void (*)(View *)>
View *statementView(
    Tag tag, const QRectF &rect, WhenMade whenMade = [](View *) {})
{
    QWidget *const contentView = contentViewForStatement(tag);
    if (!contentView) {
        return nullptr;
    }
    View *view = nullptr;
    if (CUI_ViewWithTag(tagIdentity(tag))) {
        view = viewOfClass<View>(tagIdentity(tag));
    } else {
        view = new View(contentView);
        whenMade(view);
        adoptView(view, tag);
    }
    if (view) {
        placeView(view, tag, rect);
    }
    return view;
}

} // namespace tetrad
