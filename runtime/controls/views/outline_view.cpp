#include <tetrad/controls/outline_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/item_view_events.h"
#include <tetrad/events/event_codes.h>

#include <QHeaderView>
#include <QPersistentModelIndex>

namespace tetrad {

namespace {

// All items of an outline are made in this file.
OutlineItem *outlineItem(QTreeWidgetItem *item)
{
    return static_cast<OutlineItem *>(item);
}

int childCount(OutlineViewSC *outlineView, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    return countAnswer(outlineView, outlineViewEventChildCount);
}

void report(OutlineViewSC *outlineView, qint64 event, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    forwardDelegateEvent(outlineView, event);
}

} // namespace

OutlineViewSC::OutlineViewSC(QWidget *parent) : QTreeWidget(parent)
{
    header()->setSectionsClickable(true);
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        callSoon(this, [this, index = QPersistentModelIndex(indexFromItem(item))] { open(index); });
    });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem *item) {
        callSoon(this,
                 [this, object = outlineItem(item)->object()] { report(this, outlineViewEventDidCollapse, object); });
    });
    new ItemViewEvents(
        this, header(),
        {outlineViewEventRefuseSelectItem, outlineViewEventSelectionChanged, outlineViewEventColumnClicked},
        [this](const QModelIndex &item) {
            CUI_DialogEventObj()->object = item.isValid() ? outlineItem(itemFromIndex(item))->object() : QVariant();
        });
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

// A callback may delete the view or reload it, which deletes the parent.
void OutlineViewSC::loadChildren(const QPersistentModelIndex &parent, const QVariant &parentObject)
{
    const QPointer<OutlineViewSC> guard(this);
    const auto parentExists = [&guard, &parent, isRoot = !parent.isValid()] {
        return isRoot ? !guard.isNull() : parent.isValid();
    };
    const int count = childCount(this, parentObject);
    for (int index = 0; parentExists() && index < count; ++index) {
        CUI_DialogEventObj()->longVal = index;
        const QVariant object = answerTo(this, outlineViewEventChild, &CUI_DialogEvent::object, parentObject);
        if (!parentExists() || !addChild(parent, object)) {
            return;
        }
    }
}

// False when a callback deleted the new item.
bool OutlineViewSC::addChild(const QPersistentModelIndex &parent, const QVariant &object)
{
    auto *const item = new OutlineItem(object);
    (parent.isValid() ? itemFromIndex(parent) : invisibleRootItem())->addChild(item);
    const QPersistentModelIndex index(indexFromItem(item));
    for (int column = 0; index.isValid() && column < columnCount(); ++column) {
        CUI_DialogEventObj()->object = object;
        CUI_DialogEventObj()->tableColumnObj = column;
        const QString answer = answerTo(this, outlineViewEventText, &CUI_DialogEvent::stringObj, QString());
        if (index.isValid()) {
            item->setText(column, answer);
        }
    }
    const int children = index.isValid() ? childCount(this, object) : 0;
    if (index.isValid()) {
        item->setChildIndicatorPolicy(children > 0 ? QTreeWidgetItem::ShowIndicator
                                                   : QTreeWidgetItem::DontShowIndicator);
    }
    return index.isValid();
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
        report(this, outlineViewEventDidExpand, object);
    }
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
    if (auto *const view = viewOfClass<OutlineViewSC>(tag)) {
        view->reloadData();
    }
}

} // namespace tetrad
