#include <tetrad/controls/table_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/item_view_keys.h"
#include "runtime/controls/views/pixel_answer.h"
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <limits>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

TableViewSC *tableViewWithTag(Tag tag)
{
    return qobject_cast<TableViewSC *>(CUI_ValidateViewKindOfClass(tag, u"NSTableView"_s));
}

} // namespace

TableViewSC::TableViewSC(QWidget *parent) : QTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        callSoon(this, [this, column] { CUI_TableViewDelegateObj()->tableViewDidClickTableColumn(this, column); });
    });
    connect(this, &QTableWidget::cellChanged, this, &TableViewSC::reportEdit);
}

void TableViewSC::reloadData()
{
    const QPointer<TableViewSC> guard(this);
    const int rows = CUI_TableViewDelegateObj()->numberOfRowsInTableView(this);
    if (guard) {
        setRowCount(rows);
    }
    for (int column = 0; guard && column < columnCount(); ++column) {
        reloadHeader(column);
    }
    for (int row = 0; guard && row < rowCount(); ++row) {
        reloadRow(row);
    }
}

void TableViewSC::reloadHeader(int column)
{
    const QPointer<TableViewSC> guard(this);
    const QFont font = CUI_TableViewDelegateObj()->tableHeaderFont(this, column);
    const QColor color = guard ? CUI_TableViewDelegateObj()->tableHeaderTextColor(this, column) : QColor();
    if (QTableWidgetItem *const item = guard ? horizontalHeaderItem(column) : nullptr) {
        item->setFont(font);
        item->setForeground(color);
    }
}

void TableViewSC::reloadRow(int row)
{
    CUI_TableViewDelegate *const delegate = CUI_TableViewDelegateObj();
    const QPointer<TableViewSC> guard(this);
    const double height = delegate->tableViewHeightOfRow(this, row);
    if (guard) {
        setRowHeight(row, wholePixels(height));
    }
    for (int column = 0; guard && column < columnCount(); ++column) {
        const QVariant value = delegate->tableViewObjectValue(this, row, column);
        const bool edits = guard && delegate->tableViewShouldEdit(this, row, column);
        QWidget *const view = guard ? delegate->tableViewViewForCell(this, row, column) : nullptr;
        if (!guard || row >= rowCount()) {
            return;
        }
        m_isReloading = true;
        auto *const item = new QTableWidgetItem;
        item->setData(Qt::EditRole, value);
        item->setFlags(item->flags().setFlag(Qt::ItemIsEditable, edits));
        setItem(row, column, item);
        if (view != cellWidget(row, column)) {
            setCellWidget(row, column, view);
        }
        m_isReloading = false;
    }
}

void TableViewSC::paintEvent(QPaintEvent *event)
{
    for (int row = std::max(0, rowAt(0)); row < rowCount() && rowViewportPosition(row) < viewport()->height(); ++row) {
        TableRowViewSC(this, row).drawBackground();
    }
    QTableWidget::paintEvent(event);
}

// Whether the row may become the current one; false also when the question was answered by deleting
// the view.
bool TableViewSC::maySelect(int row)
{
    const QPointer<TableViewSC> guard(this);
    return row < 0 || selectionModel()->isRowSelected(row, QModelIndex()) ||
           (CUI_TableViewDelegateObj()->tableViewShouldSelectRow(this, row) && guard);
}

void TableViewSC::mousePressEvent(QMouseEvent *event)
{
    if (maySelect(rowAt(event->position().toPoint().y()))) {
        QTableWidget::mousePressEvent(event);
    }
}

void TableViewSC::keyPressEvent(QKeyEvent *event)
{
    const int action = itemViewCursorAction(event);
    if (action >= 0) {
        const QModelIndex target = moveCursor(CursorAction(action), event->modifiers());
        if (maySelect(target.row())) {
            QTableWidget::keyPressEvent(event);
        }
    } else if (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
               event->modifiers() & Qt::ControlModifier) {
        QTableWidget::keyPressEvent(event);
    } else {
        event->ignore();
    }
}

void TableViewSC::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableWidget::selectionChanged(selected, deselected);
    callSoon(this, [this] { CUI_TableViewDelegateObj()->tableViewSelectionDidChange(this); });
}

void TableViewSC::reportEdit(int row, int column)
{
    if (m_isReloading) {
        return;
    }
    const QVariant value = item(row, column)->data(Qt::EditRole);
    callSoon(this, [this, value, row, column] {
        CUI_TableViewDelegateObj()->tableViewSetObjectValue(this, value, row, column);
    });
}

CUI_TableViewDelegate *CUI_TableViewDelegateObj()
{
    // Deliberately never freed: views may outlive every static object.
    static auto *const delegate = new CUI_TableViewDelegate;
    return delegate;
}

qint64 CUI_TableViewDelegate::forwardEvent(TableViewSC *tableView, qint64 event, Tag object)
{
    return forwardDelegateEvent(tableView, event, object);
}

namespace {

CUI_DialogEvent *recordOfCell(int row, int column)
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    record->longVal = row;
    record->tableColumnObj = column;
    return record;
}

} // namespace

int CUI_TableViewDelegate::numberOfRowsInTableView(TableViewSC *tableView)
{
    CUI_DialogEventObj()->longVal = 0;
    forwardEvent(tableView, tableViewEventRowCount, 0);
    return int(std::clamp<qint64>(CUI_DialogEventObj()->longVal, 0, std::numeric_limits<int>::max()));
}

QVariant CUI_TableViewDelegate::tableViewObjectValue(TableViewSC *tableView, int row, int column)
{
    recordOfCell(row, column)->object = QVariant();
    forwardEvent(tableView, tableViewEventValue, 0);
    return CUI_DialogEventObj()->object;
}

bool CUI_TableViewDelegate::tableViewShouldEdit(TableViewSC *tableView, int row, int column)
{
    recordOfCell(row, column)->boolVal = false;
    forwardEvent(tableView, tableViewEventShouldEdit, 0);
    return CUI_DialogEventObj()->boolVal;
}

QWidget *CUI_TableViewDelegate::tableViewViewForCell(TableViewSC *tableView, int row, int column)
{
    recordOfCell(row, column)->viewObj = nullptr;
    forwardEvent(tableView, tableViewEventViewForCell, 0);
    return qobject_cast<QWidget *>(CUI_DialogEventObj()->viewObj);
}

double CUI_TableViewDelegate::tableViewHeightOfRow(TableViewSC *tableView, int row)
{
    CUI_DialogEventObj()->longVal = row;
    CUI_DialogEventObj()->doubleVal = tableView->rowHeight(row);
    forwardEvent(tableView, tableViewEventRowHeight, 0);
    return CUI_DialogEventObj()->doubleVal;
}

bool CUI_TableViewDelegate::tableViewShouldSelectRow(TableViewSC *tableView, int row)
{
    CUI_DialogEventObj()->longVal = row;
    CUI_DialogEventObj()->boolVal = false;
    forwardEvent(tableView, tableViewEventRefuseSelectRow, 0);
    return !CUI_DialogEventObj()->boolVal;
}

void CUI_TableViewDelegate::tableViewSetObjectValue(TableViewSC *tableView, const QVariant &value, int row, int column)
{
    recordOfCell(row, column)->object = value;
    forwardEvent(tableView, tableViewEventDidEdit, 0);
}

void CUI_TableViewDelegate::tableViewSelectionDidChange(TableViewSC *tableView)
{
    CUI_DialogEventObj()->longVal = tableView->selectedItems().isEmpty() ? -1 : tableView->currentRow();
    forwardEvent(tableView, tableViewEventSelectionChanged, 0);
}

void CUI_TableViewDelegate::tableViewDidClickTableColumn(TableViewSC *tableView, int column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
    forwardEvent(tableView, tableViewEventColumnClicked, 0);
}

QFont CUI_TableViewDelegate::tableHeaderFont(TableViewSC *tableView, int column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
    CUI_DialogEventObj()->fontObj = tableView->horizontalHeader()->font();
    forwardEvent(tableView, tableHeaderEventFont, 0);
    return CUI_DialogEventObj()->fontObj;
}

QColor CUI_TableViewDelegate::tableHeaderTextColor(TableViewSC *tableView, int column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
    CUI_DialogEventObj()->colorObj = tableView->palette().color(QPalette::ButtonText);
    forwardEvent(tableView, tableHeaderEventTextColor, 0);
    return CUI_DialogEventObj()->colorObj;
}

qint64 TableRowViewSC::forwardEvent(qint64 event)
{
    return CUI_TableViewDelegateObj()->forwardEvent(m_tableView, event, 0);
}

void TableRowViewSC::drawBackground()
{
    CUI_DialogEvent *const record = CUI_DialogEventObj();
    record->longVal = m_row;
    record->viewObj = m_tableView->viewport();
    record->rectVal = QRectF(0, m_tableView->rowViewportPosition(m_row), m_tableView->viewport()->width(),
                             m_tableView->rowHeight(m_row));
    forwardEvent(tableViewEventDrawRow);
}

void CUI_TableView(Tag tag, const QStringList &columns, const QRectF &rect)
{
    auto *const view = statementView<TableViewSC>(
        tag, rect, [](TableViewSC *made) { callSoon(made, [made] { made->reloadData(); }); });
    if (view && !columns.isEmpty()) {
        view->setColumnCount(int(columns.size()));
        view->setHorizontalHeaderLabels(columns);
    }
}

void TableViewReloadData(Tag tag)
{
    if (TableViewSC *const view = tableViewWithTag(tag)) {
        view->reloadData();
    }
}

qint64 TableViewSelectedRow(Tag tag)
{
    const TableViewSC *const view = tableViewWithTag(tag);
    return view && !view->selectedItems().isEmpty() ? view->currentRow() : -1;
}

} // namespace tetrad
