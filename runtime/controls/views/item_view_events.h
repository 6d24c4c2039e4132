#pragma once

#include <QObject>
#include <QPersistentModelIndex>

#include <functional>

class QAbstractItemView;
class QHeaderView;
class QKeyEvent;

namespace tetrad {

/// What tables and outlines share. Asks the program before a press, a drag or a key of the user selects an item; what
/// it refuses never reaches the view. Reports the selection and clicks on column headers. A child of the view, which a
/// callback may delete or reload.
class ItemViewEvents : public QObject
{
public:
    struct Codes
    {
        qint64 refuseSelect = 0;
        qint64 selectionChanged = 0;
        qint64 columnClicked = 0;
    };
    /// Puts an item, which may be invalid, into the record.
    using RecordItem = std::function<void(const QModelIndex &item)>;

    ItemViewEvents(QAbstractItemView *view, QHeaderView *header, const Codes &codes, RecordItem recordItem);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool lets(const QModelIndex &item);
    bool letsKey(QKeyEvent *event);
    bool letsPress(const QPoint &position);
    bool letsDrag(const QPoint &position);

    QAbstractItemView *m_view = nullptr;
    Codes m_codes;
    RecordItem m_recordItem;
    // Of the press and the drag that follows it: the item asked about last, and the answer.
    QPersistentModelIndex m_item;
    bool m_isLet = true;
};

} // namespace tetrad
