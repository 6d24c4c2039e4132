#include <tetrad/controls/table_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/item_view_events.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/event_codes.h>

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace tetrad {

namespace {

void setRow(int row)
{
    CUI_DialogEventObj()->longVal = row;
}

void setColumn(int column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
}

void setCell(int row, int column)
{
    setRow(row);
    setColumn(column);
}

template <typename Field>
Field cellAnswer(const TableViewSC *view, qint64 event, int row, int column, Field CUI_DialogEvent::*field)
{
    setCell(row, column);
    return answerTo(view, event, field, Field());
}

// Null outside the table.
QTableWidgetItem *itemAt(const TableViewSC *view, qint64 row, qint64 column)
{
    return view ? view->item(saturatedTo<int>(row), saturatedTo<int>(column)) : nullptr;
}

} // namespace

TableViewSC::TableViewSC(QWidget *parent) : QTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    connect(this, &QTableWidget::cellChanged, this, &TableViewSC::reportEdit);
    new ItemViewEvents(this, horizontalHeader(),
                       {tableViewEventRefuseSelectRow, tableViewEventSelectionChanged, tableViewEventColumnClicked},
                       [](const QModelIndex &item) { setRow(item.row()); });
}

void TableViewSC::reloadData()
{
    const QPointer<TableViewSC> guard(this);
    const int rows = countAnswer(this, tableViewEventRowCount);
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

int TableViewSC::selectedRow() const
{
    return selectionModel()->selectedIndexes().value(0).row();
}

void TableViewSC::reloadHeader(int column)
{
    const QPointer<TableViewSC> guard(this);
    setColumn(column);
    const QFont font = answerTo(this, tableHeaderEventFont, &CUI_DialogEvent::fontObj, horizontalHeader()->font());
    if (!guard) {
        return;
    }
    setColumn(column);
    const QColor preset = palette().color(QPalette::ButtonText);
    const QColor color = answerTo(this, tableHeaderEventTextColor, &CUI_DialogEvent::colorObj, preset);
    if (QTableWidgetItem *const item = guard ? horizontalHeaderItem(column) : nullptr) {
        item->setFont(font);
        item->setForeground(color);
    }
}

void TableViewSC::reloadRow(int row)
{
    const QPointer<TableViewSC> guard(this);
    setRow(row);
    const int height = pixelAnswer(this, tableViewEventRowHeight, &CUI_DialogEvent::doubleVal, rowHeight(row));
    if (guard) {
        setRowHeight(row, height);
    }
    for (int column = 0; guard && column < columnCount(); ++column) {
        const auto value = cellAnswer(this, tableViewEventValue, row, column, &CUI_DialogEvent::object);
        const auto edits = guard && cellAnswer(this, tableViewEventShouldEdit, row, column, &CUI_DialogEvent::boolVal);
        const auto view =
            guard ? cellAnswer(this, tableViewEventViewForCell, row, column, &CUI_DialogEvent::viewObj) : nullptr;
        if (!guard || row >= rowCount()) {
            return;
        }
        const QSignalBlocker blocker(this);
        auto *const item = new QTableWidgetItem;
        item->setData(Qt::EditRole, value);
        item->setFlags(item->flags().setFlag(Qt::ItemIsEditable, edits));
        setItem(row, column, item);
        if (view != cellWidget(row, column)) {
            setCellWidget(row, column, qobject_cast<QWidget *>(view));
        }
    }
}

void TableViewSC::paintEvent(QPaintEvent *event)
{
    for (int row = std::max(0, rowAt(0)); row < rowCount() && rowViewportPosition(row) < viewport()->height(); ++row) {
        CUI_DialogEventObj()->viewObj = viewport();
        CUI_DialogEventObj()->rectVal = QRectF(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
        TableRowViewSC(this, row).forwardEvent(tableViewEventDrawRow);
    }
    QTableWidget::paintEvent(event);
}

void TableViewSC::reportEdit(int row, int column)
{
    const QVariant value = item(row, column)->data(Qt::EditRole);
    callSoon(this, [this, value, row, column] {
        setCell(row, column);
        CUI_DialogEventObj()->object = value;
        forwardDelegateEvent(this, tableViewEventDidEdit);
    });
}

qint64 TableRowViewSC::forwardEvent(qint64 event)
{
    setRow(m_row);
    return forwardDelegateEvent(m_tableView, event);
}

void CUI_TableView(Tag tag, const QStringList &columns, const QRectF &rect)
{
    auto *const view = statementView<TableViewSC>(
        tag, rect, [](TableViewSC *made) { callSoon(made, [made] { made->reloadData(); }); });
    if (view && !columns.isEmpty()) {
        view->setColumnCount(int(columns.size()));
        view->setHorizontalHeaderLabels(columns);
        for (int column = 0; column < view->columnCount(); ++column) {
            view->setColumnWidth(column, view->viewport()->width() / view->columnCount());
        }
    }
}

void TableViewReloadData(Tag tag)
{
    if (auto *const view = viewOfClass<TableViewSC>(tag)) {
        view->reloadData();
    }
}

qint64 TableViewSelectedRow(Tag tag)
{
    const auto *const view = viewOfClass<TableViewSC>(tag);
    return view ? view->selectedRow() : -1;
}

void TableViewSelectRow(Tag tag, qint64 row)
{
    auto *const view = viewOfClass<TableViewSC>(tag);
    if (view && row >= 0 && row < view->rowCount()) {
        view->selectRow(int(row));
    } else if (view) {
        view->clearSelection();
    }
}

QVariant TableViewCell(Tag tag, qint64 row, qint64 column)
{
    const QTableWidgetItem *const item = itemAt(viewOfClass<TableViewSC>(tag), row, column);
    return item ? item->data(Qt::EditRole) : QVariant();
}

void TableViewSetCell(Tag tag, qint64 row, qint64 column, const QVariant &value)
{
    if (QTableWidgetItem *const item = itemAt(viewOfClass<TableViewSC>(tag), row, column)) {
        const QSignalBlocker blocker(item->tableWidget());
        item->setData(Qt::EditRole, value);
    }
}

} // namespace tetrad
