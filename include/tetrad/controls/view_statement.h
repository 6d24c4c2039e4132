#pragma once

#include <tetrad/events/tag.h>

#include <QRectF>

class QWidget;
struct QMetaObject;

namespace tetrad {

/// What the statements for views share. A statement names its view by |tag|; a positive tag shows it, a
/// negative one hides it. The view is looked up in the output window, else in the frontmost one, and made
/// there when that has none.

/// The content view that a statement makes its view in. Null after an alert when there is no window, or when
/// the tag is 0 or an object's address.
QWidget *CUI_ContentViewForStatement(Tag tag);

/// The view |tag|, or null: not there yet.
QWidget *CUI_ViewForStatement(Tag tag);

/// Tells the user that a view with this tag is of another class than the statement's.
void CUI_ShowStatementClassError(Tag tag, const QWidget *view, const QMetaObject &wanted);

/// Gives a new view its tag, its window's tag and its natural size.
void CUI_AdoptView(QWidget *view, Tag tag);

/// Places a view in its superview, in pixels from the top left, and shows or hides it. An empty rectangle
/// leaves it where it is.
void CUI_PlaceView(QWidget *view, Tag tag, const QRectF &rect);

/// The view that a statement is about. Null after an alert, when the statement does nothing.
/// `whenMade` is called with a view made just now: to connect it, say.
template <typename View, typename WhenMade>
View *CUI_StatementView(Tag tag, const QRectF &rect, WhenMade whenMade)
{
    QWidget *const contentView = CUI_ContentViewForStatement(tag);
    if (!contentView) {
        return nullptr;
    }
    QWidget *const found = CUI_ViewForStatement(tag);
    auto *view = qobject_cast<View *>(found);
    if (found && !view) {
        CUI_ShowStatementClassError(tag, found, View::staticMetaObject);
        return nullptr;
    }
    if (!view) {
        view = new View(contentView);
        CUI_AdoptView(view, tag);
        whenMade(view);
    }
    CUI_PlaceView(view, tag, rect);
    return view;
}

/// Moves a view, with what lies in it, into another view: into a tab's page, say. Its place is counted from the
/// new superview's top left. Either may be a tag or an object; nothing happens, after an alert, when
/// one of them is missing.
void ViewAddSubview(Tag superview, Tag subview);

/// Takes a view off its window and deletes it once control is back in the event loop; its tag is free at
/// once. A missing view does nothing, after an alert.
void ViewRemoveFromSuperview(Tag tag);

} // namespace tetrad
