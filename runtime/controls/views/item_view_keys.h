#pragma once

#include <QtGlobal>

class QKeyEvent;

namespace tetrad {

/// The QAbstractItemView::CursorAction that a key moves the current item by in a table or outline, -1 for every
/// other key.
int itemViewCursorAction(const QKeyEvent *event);

} // namespace tetrad
