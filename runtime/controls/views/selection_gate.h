#pragma once

#include <QObject>
#include <QPersistentModelIndex>

#include <functional>

class QAbstractItemView;
class QKeyEvent;

namespace tetrad {

/// Asks the program before a press, a drag or a key of the user selects an item of a table or outline. What it refuses
/// never reaches the view. A child of the view, which the question may delete or reload.
class SelectionGate : public QObject
{
public:
    using Refuses = std::function<bool(const QModelIndex &item)>;

    SelectionGate(QAbstractItemView *view, Refuses refuses);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool lets(const QModelIndex &item);
    bool letsKey(QKeyEvent *event);
    bool letsPress(const QPoint &position);
    bool letsDrag(const QPoint &position);

    QAbstractItemView *m_view = nullptr;
    Refuses m_refuses;
    // Of the press and the drag that follows it: the item asked about last, and the answer.
    QPersistentModelIndex m_item;
    bool m_isLet = true;
};

} // namespace tetrad
