#pragma once

// Implemented in runtime/controls/views/outline_view.cpp.
#include <tetrad/controls/control_target.h>

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

    /// Whether the program was asked for its children, as it is when the item is first opened.
    bool isLoaded() const { return m_isLoaded; }
    void setLoaded() { m_isLoaded = true; }

private:
    QVariant m_object;
    bool m_isLoaded = false;
};

/// A tree whose items the program answers (codes 1800 to 1807): how many children an item has, each child, its text in
/// each column. Children are asked for when their parent is first opened, so a tree may be endless.
class OutlineViewSC : public QTreeWidget
{
    Q_OBJECT

public:
    explicit OutlineViewSC(QWidget *parent = nullptr);

    /// Asks for the tree again, with all items closed. The view may be gone afterwards.
    void reloadData();

    /// The current item's value; invalid when none is selected.
    QVariant selectedObject() const;

private:
    void loadChildren(const QPersistentModelIndex &parent, const QVariant &parentObject);
    bool addChild(const QPersistentModelIndex &parent, const QVariant &object);
    void open(const QPersistentModelIndex &index);
};

class CUI_OutlineViewDelegate : public ForwardingDelegate
{};

/// The outline statement. An empty list leaves the columns there; the items are asked for as soon as control is back
/// in the event loop.
void CUI_OutlineView(Tag tag, const QStringList &columns, const QRectF &rect);

/// Shows an alert when the outline is missing.
void OutlineViewReloadData(Tag tag);

} // namespace tetrad
