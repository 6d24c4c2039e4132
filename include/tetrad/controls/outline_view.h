#pragma once

#include <tetrad/events/tag.h>

#include <QRectF>
#include <QStringList>
#include <QTreeWidget>
#include <QVariant>

namespace tetrad {

/// An item of an outline: a value of the program's own, which every question about the item carries.
class OutlineItem : public QTreeWidgetItem
{
public:
    explicit OutlineItem(const QVariant &object) : m_object(object) {}

    const QVariant &object() const { return m_object; }

    /// Whether its children were asked for, which happens when it is opened first.
    bool isLoaded() const { return m_isLoaded; }
    void setLoaded() { m_isLoaded = true; }

private:
    QVariant m_object;
    bool m_isLoaded = false;
};

/// A tree whose items the program answers (codes 1800 to 1807): how many children an item has, each child, its
/// text in each column. Children are asked for when their parent is opened first, so a tree may be
/// endless. A view with a delegate callback tells that one instead of the dialog function.
class OutlineViewSC : public QTreeWidget
{
    Q_OBJECT

public:
    explicit OutlineViewSC(QWidget *parent = nullptr);

    /// Asks for the tree anew, with all items closed. The view may be gone afterwards.
    void reloadData();

    /// The current item's value; invalid when none is selected.
    QVariant selectedObject() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    void loadChildren(const QPersistentModelIndex &parent, const QVariant &parentObject);
    bool addChild(const QPersistentModelIndex &parent, const QVariant &object);
    void open(const QPersistentModelIndex &index);
    bool maySelect(const QModelIndex &index);
    void tellSoon(QTreeWidgetItem *item, qint64 event);
};

/// Reports what happens to outlines, and asks for their items: to the view's delegate callback, else to the
/// dialog function.
class CUI_OutlineViewDelegate
{
public:
    qint64 forwardEvent(OutlineViewSC *outlineView, qint64 event, Tag object);

    int outlineViewNumberOfChildren(OutlineViewSC *outlineView, const QVariant &item);
    QVariant outlineViewChild(OutlineViewSC *outlineView, int index, const QVariant &item);
    QString outlineViewText(OutlineViewSC *outlineView, const QVariant &item, int column);
    bool outlineViewShouldSelectItem(OutlineViewSC *outlineView, const QVariant &item);
    /// DidExpand, DidCollapse and SelectionChanged.
    void outlineViewItemEvent(OutlineViewSC *outlineView, qint64 event, const QVariant &item);
    void outlineViewDidClickTableColumn(OutlineViewSC *outlineView, int column);
};

/// The delegate of every outline; it lives to the end of the program.
CUI_OutlineViewDelegate *CUI_OutlineViewDelegateObj();

/// The outline statement. An empty list leaves the columns there; the items are asked for as soon as control is back
/// in the event loop.
void CUI_OutlineView(Tag tag, const QStringList &columns, const QRectF &rect);

/// Tells the user about an outline that is missing.
void OutlineViewReloadData(Tag tag);

} // namespace tetrad
