#include <tetrad/controls/outline_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/selection_gate.h"
#include <tetrad/events/event_codes.h>

#include <QHeaderView>
#include <QPersistentModelIndex>

namespace tetrad {

namespace {

// Every item of an outline is made here.
OutlineItem *outlineItem(QTreeWidgetItem *item)
{
    return static_cast<OutlineItem *>(item);
}

int childCount(OutlineViewSC *outlineView, const QVariant &item)
{
    CUI_DialogEventObj()->object = item;
    return countAnswer(outlineView, outlineViewEventChildCount);
}

QVariant child(OutlineViewSC *outlineView, int index, const QVariant &item)
{
    CUI_DialogEventObj()->longVal = index;
    return answerTo(outlineView, outlineViewEventChild, &CUI_DialogEvent::object, item);
}

QString text(OutlineViewSC *outlineView, const QVariant &item, int column)
{
    CUI_DialogEventObj()->object = item;
    CUI_DialogEventObj()->tableColumnObj = column;
    return answerTo(outlineView, outlineViewEventText, &CUI_DialogEvent::stringObj, QString());
}

void forward(OutlineViewSC *outlineView, qint64 event)
{
    CUI_OutlineViewDelegate::forwardEvent(outlineView, event, tagFromObject(outlineView));
}

} // namespace

OutlineViewSC::OutlineViewSC(QWidget *parent) : QTreeWidget(parent)
{
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        callSoon(this, [this, column] {
            CUI_DialogEventObj()->tableColumnObj = column;
            forward(this, outlineViewEventColumnClicked);
        });
    });
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        callSoon(this, [this, index = QPersistentModelIndex(indexFromItem(item))] { open(index); });
    });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem *item) { forwardSoon(outlineViewEventDidCollapse, outlineItem(item)->object()); });
    m_gate = new SelectionGate(this, [this](const QModelIndex &item) {
        CUI_DialogEventObj()->object = outlineItem(itemFromIndex(item))->object();
        return answersYes(this, outlineViewEventRefuseSelectItem);
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

// A callback may reload the view, which takes the parent away.
void OutlineViewSC::loadChildren(const QPersistentModelIndex &parent, const QVariant &parentObject)
{
    const QPointer<OutlineViewSC> guard(this);
    const bool isRoot = !parent.isValid();
    const int count = childCount(this, parentObject);
    for (int index = 0; guard && index < count && (isRoot || parent.isValid()); ++index) {
        const QVariant object = child(this, index, parentObject);
        if (!guard || (!isRoot && !parent.isValid()) || !addChild(parent, object)) {
            return;
        }
    }
}

// False when the new item, or the view, did not live through the questions about it.
bool OutlineViewSC::addChild(const QPersistentModelIndex &parent, const QVariant &object)
{
    auto *const item = new OutlineItem(object);
    QTreeWidgetItem *const parentItem = parent.isValid() ? itemFromIndex(parent) : invisibleRootItem();
    parentItem->addChild(item);
    const QPersistentModelIndex index(indexFromItem(item));
    const QPointer<OutlineViewSC> guard(this);
    for (int column = 0; guard && index.isValid() && column < columnCount(); ++column) {
        const QString answer = text(this, object, column);
        if (guard && index.isValid()) {
            item->setText(column, answer);
        }
    }
    if (!guard || !index.isValid()) {
        return false;
    }
    const int children = childCount(this, object);
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
        CUI_DialogEventObj()->object = object;
        forward(this, outlineViewEventDidExpand);
    }
}

void OutlineViewSC::keyPressEvent(QKeyEvent *event)
{
    if (m_gate->letsKey(event)) {
        QTreeWidget::keyPressEvent(event);
    }
}

void OutlineViewSC::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeWidget::selectionChanged(selected, deselected);
    callSoon(this, [this] {
        CUI_DialogEventObj()->object = selectedObject();
        forward(this, outlineViewEventSelectionChanged);
    });
}

void OutlineViewSC::forwardSoon(qint64 event, const QVariant &object)
{
    callSoon(this, [this, event, object] {
        CUI_DialogEventObj()->object = object;
        forward(this, event);
    });
}

qint64 CUI_OutlineViewDelegate::forwardEvent(OutlineViewSC *outlineView, qint64 event, Tag object)
{
    return forwardDelegateEvent(outlineView, event, object);
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
