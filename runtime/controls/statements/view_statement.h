#pragma once

#include <tetrad/controls/view_lookup.h>

#include <QRectF>

class QWidget;
struct QMetaObject;

namespace tetrad {

/// What the statements for views share. A statement names its view by |tag|; a positive tag shows it, a
/// negative one hides it. The view is looked up in the output window, else in the frontmost one, and made
/// there when that has none.

/// The content view that a statement makes its view in. Null after an alert when there is no window, or when
/// the tag is 0 or an object's address.
QWidget *contentViewForStatement(Tag tag);

/// The view |tag|, or null: not there yet.
QWidget *viewForStatement(Tag tag);

/// Tells the user that a view with this tag is of another class than the statement's.
void showStatementClassError(Tag tag, const QWidget *view, const QMetaObject &wanted);

/// Gives a new view its tag, its window's tag and its natural size.
void adoptView(QWidget *view, Tag tag);

/// Places a view in its superview, in pixels from the top left, and shows or hides it. An empty rectangle
/// leaves it where it is.
void placeView(QWidget *view, Tag tag, const QRectF &rect);

/// The view that a statement is about. Null after an alert, when the statement does nothing.
/// `whenMade` is called with a view made just now: to connect it, say.
template <typename View, typename WhenMade>
View *statementView(Tag tag, const QRectF &rect, WhenMade whenMade)
{
    QWidget *const contentView = contentViewForStatement(tag);
    if (!contentView) {
        return nullptr;
    }
    QWidget *const found = viewForStatement(tag);
    auto *view = qobject_cast<View *>(found);
    if (found && !view) {
        showStatementClassError(tag, found, View::staticMetaObject);
        return nullptr;
    }
    if (!view) {
        view = new View(contentView);
        adoptView(view, tag);
        whenMade(view);
    }
    placeView(view, tag, rect);
    return view;
}

} // namespace tetrad
