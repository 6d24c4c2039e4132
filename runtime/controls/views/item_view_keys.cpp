#include "runtime/controls/views/item_view_keys.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace tetrad {

namespace {

// Lends the names of the actions, which are the views' own.
struct Actions : QAbstractItemView
{
    static int ofKey(int key)
    {
        switch (key) {
        case Qt::Key_Up:
            return MoveUp;
        case Qt::Key_Down:
            return MoveDown;
        case Qt::Key_Left:
            return MoveLeft;
        case Qt::Key_Right:
            return MoveRight;
        case Qt::Key_Home:
            return MoveHome;
        case Qt::Key_End:
            return MoveEnd;
        case Qt::Key_PageUp:
            return MovePageUp;
        case Qt::Key_PageDown:
            return MovePageDown;
        default:
            return -1;
        }
    }
};

} // namespace

int itemViewCursorAction(const QKeyEvent *event)
{
    return Actions::ofKey(event->key());
}

} // namespace tetrad
