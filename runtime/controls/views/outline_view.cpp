#include <tetrad/controls/outline_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/item_view_keys.h"
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPersistentModelIndex>

#include <algorithm>
#include <limits>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// Every item of an outline is made here.
OutlineItem *outlineItem(QTreeWidgetItem *item)
{
    return static_cast<OutlineItem *>(item);
}

} // namespace

OutlineViewSC::OutlineViewSC(QWidget *parent) : QTreeWidget(parent)
{
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        callSoon(this, [this, column] { CUI_OutlineViewDelegateObj()->outlineViewDidClickTableColumn(this, column); });
    });
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        callSoon(this, [this, index = QPersistentModelIndex(indexFromItem(item))] { open(index); });
    });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem *item) { tellSoon(item, outlineViewEventDidCollapse); });
}

void OutlineViewSC::reloadData()
{
    clear();
    loadChildren({}, QVariant());
}

QVariant OutlineViewSC::selectedObject() const
{
    const QList<QTreeWidgetItem *> items = selectedItems();
    return items.isEmpty() ? QVariant() : outlineItem(items.constFirst())->object();
}

// A callback may reload the view, which takes the parent away.
void OutlineViewSC::loadChildren(const QPersistentModelIndex &parent, const QVariant &parentObject)
{
    CUI_OutlineViewDelegate *const delegate = CUI_OutlineViewDelegateObj();
    const QPointer<OutlineViewSC> guard(this);
    const bool isRoot = !parent.isValid();
    const int count = delegate->outlineViewNumberOfChildren(this, parentObject);
    for (int index = 0; guard && index < count && (isRoot || parent.isValid()); ++index) {
        const QVariant object = delegate->outlineViewChild(this, index, parentObject);
        if (!guard || (!isRoot && !parent.isValid()) || !addChild(parent, object)) {
            return;
        }
    }
}

// False when the new item, or the view, did not live through the questions about it.
bool OutlineViewSC::addChild(const QPersistentModelIndex &parent, const QVariant &object)
{
    CUI_OutlineViewDelegate *const delegate = CUI_OutlineViewDelegateObj();
    auto *const item = new OutlineItem(object);
    QTreeWidgetItem *const parentItem = parent.isValid() ? itemFromIndex(parent) : invisibleRootItem();
    parentItem->addChild(item);
    const QPersistentModelIndex index(indexFromItem(item));
    const QPointer<OutlineViewSC> guard(this);
    for (int column = 0; guard && index.isValid() && column < columnCount(); ++column) {
        const QString text = delegate->outlineViewText(this, object, column);
        if (guard && index.isValid()) {
            item->setText(column, text);
        }
    }
    if (!guard || !index.isValid()) {
        return false;
    }
    const int children = delegate->outlineViewNumberOfChildren(this, object);
    if (!guard || !index.isValid()) {
        return false;
    }
    item->setChildIndicatorPolicy(children > 0 ? QTreeWidgetItem::ShowIndicator : QTreeWidgetItem::DontShowIndicator);
    return true;
}

void OutlineViewSC::open(const QPersistentModelIndex &index)
{
    if (!index.isValid()) {
        return;
    }
    const QPointer<OutlineViewSC> guard(this);
    OutlineItem *const item = outlineItem(itemFromIndex(index));
    const QVariant object = item->object();
    if (!item->isLoaded()) {
        item->setLoaded();
        loadChildren(index, object);
    }
    if (guard) {
        CUI_OutlineViewDelegateObj()->outlineViewItemEvent(this, outlineViewEventDidExpand, object);
    }
}

// Whether the item may become the current one; false also when the question was answered by deleting
// the view or the item.
bool OutlineViewSC::maySelect(const QModelIndex &index)
{
    if (!index.isValid() || selectionModel()->isSelected(index)) {
        return true;
    }
    const QPointer<OutlineViewSC> guard(this);
    const QPersistentModelIndex target(index);
    const QVariant object = outlineItem(itemFromIndex(index))->object();
    return CUI_OutlineViewDelegateObj()->outlineViewShouldSelectItem(this, object) && guard && target.isValid();
}

void OutlineViewSC::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    // A press on the arrow opens and selects nothing.
    const bool onItem = visualRect(index).contains(event->position().toPoint());
    if (!onItem || maySelect(index)) {
        QTreeWidget::mousePressEvent(event);
    }
}

void OutlineViewSC::keyPressEvent(QKeyEvent *event)
{
    const int action = itemViewCursorAction(event);
    if (action < 0) {
        event->ignore();
        return;
    }
    // Left and Right first of all open and close.
    const bool closes = event->key() == Qt::Key_Left && isExpanded(currentIndex());
    const bool opens = event->key() == Qt::Key_Right && !isExpanded(currentIndex());
    if (closes || opens || maySelect(moveCursor(CursorAction(action), event->modifiers()))) {
        QTreeWidget::keyPressEvent(event);
    }
}

void OutlineViewSC::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeWidget::selectionChanged(selected, deselected);
    callSoon(this, [this] {
        CUI_OutlineViewDelegateObj()->outlineViewItemEvent(this, outlineViewEventSelectionChanged, selectedObject());
    });
}

void OutlineViewSC::tellSoon(QTreeWidgetItem *item, qint64 event)
{
    const QVariant object = outlineItem(item)->object();
    callSoon(this, [this, event, object] { CUI_OutlineViewDelegateObj()->outlineViewItemEvent(this, event, object); });
}

CUI_OutlineViewDelegate *CUI_OutlineViewDelegateObj()
{
    // Deliberately never freed: views may outlive every static object.
    static auto *const delegate = new CUI_OutlineViewDelegate;
    return delegate;
}

qint64 CUI_OutlineViewDelegate::forwardEvent(OutlineViewSC *outlineView, qint64 event, Tag object)
{
    return forwardDelegateEvent(outlineView, event, object);
}

int CUI_OutlineViewDelegate::outlineViewNumberOfChildren(OutlineViewSC *outlineView, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    CUI_DialogEventObj()->longVal = 0;
    forwardEvent(outlineView, outlineViewEventChildCount, 0);
    return int(std::clamp<qint64>(CUI_DialogEventObj()->longVal, 0, std::numeric_limits<int>::max()));
}

QVariant CUI_OutlineViewDelegate::outlineViewChild(OutlineViewSC *outlineView, int index, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    CUI_DialogEventObj()->longVal = index;
    forwardEvent(outlineView, outlineViewEventChild, 0);
    return CUI_DialogEventObj()->object;
}

QString CUI_OutlineViewDelegate::outlineViewText(OutlineViewSC *outlineView, const QVariant &item, int column)
{
    CUI_DialogEventObj()->object = item;
    CUI_DialogEventObj()->tableColumnObj = column;
    CUI_DialogEventObj()->stringObj = QString();
    forwardEvent(outlineView, outlineViewEventText, 0);
    return CUI_DialogEventObj()->stringObj;
}

bool CUI_OutlineViewDelegate::outlineViewShouldSelectItem(OutlineViewSC *outlineView, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    CUI_DialogEventObj()->boolVal = false;
    forwardEvent(outlineView, outlineViewEventRefuseSelectItem, 0);
    return !CUI_DialogEventObj()->boolVal;
}

void CUI_OutlineViewDelegate::outlineViewItemEvent(OutlineViewSC *outlineView, qint64 event, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    forwardEvent(outlineView, event, 0);
}

void CUI_OutlineViewDelegate::outlineViewDidClickTableColumn(OutlineViewSC *outlineView, int column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
    forwardEvent(outlineView, outlineViewEventColumnClicked, 0);
}

void CUI_OutlineView(Tag tag, const QStringList &columns, const QRectF &rect)
{
    auto *const view = statementView<OutlineViewSC>(
        tag, rect, [](OutlineViewSC *made) { callSoon(made, [made] { made->reloadData(); }); });
    if (view && !columns.isEmpty()) {
        view->setColumnCount(int(columns.size()));
        view->setHeaderLabels(columns);
    }
}

void OutlineViewReloadData(Tag tag)
{
    if (auto *const view = qobject_cast<OutlineViewSC *>(CUI_ValidateViewKindOfClass(tag, u"NSOutlineView"_s))) {
        view->reloadData();
    }
}

} // namespace tetrad
