#pragma once

// Implemented in runtime/controls/views/table_view.cpp.
#include <tetrad/controls/control_target.h>

#include <QRectF>
#include <QStringList>
#include <QTableWidget>

namespace tetrad {

/// A table whose contents the program answers: reloadData asks (codes 1700 to 1709, and 4200 and 4300 for the
/// headers) how many rows there are and what each cell contains, and keeps the answers until the next time. The
/// columns come from the statement.
class TableViewSC : public QTableWidget
{
    Q_OBJECT

public:
    explicit TableViewSC(QWidget *parent = nullptr);

    /// Asks for everything again. The view may be gone afterwards.
    void reloadData();

    /// 0-based; -1 when no row is selected.
    int selectedRow() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void reloadHeader(int column);
    void reloadRow(int row);
    void reportEdit(int row, int column);
};

class CUI_TableViewDelegate : public ForwardingDelegate
{};

/// One row of a table while it draws; its events carry the table's tag.
class TableRowViewSC
{
public:
    TableRowViewSC(TableViewSC *tableView, int row) : m_tableView(tableView), m_row(row) {}

    qint64 forwardEvent(qint64 event);

private:
    TableViewSC *m_tableView = nullptr;
    int m_row = 0;
};

/// The table statement. An empty list leaves the columns there; the contents are asked for as soon as control is back
/// in the event loop.
void CUI_TableView(Tag tag, const QStringList &columns, const QRectF &rect);

/// Each shows an alert when the table is missing. Rows and columns count from 0.
void TableViewReloadData(Tag tag);

/// -1 when no row is selected; a row outside the table selects none. Setting it is reported (1707) but cannot be
/// refused.
qint64 TableViewSelectedRow(Tag tag);
void TableViewSelectRow(Tag tag, qint64 row);

/// What a cell shows, invalid outside the table. Setting it reports no event and lasts until the contents are asked for
/// again.
QVariant TableViewCell(Tag tag, qint64 row, qint64 column);
void TableViewSetCell(Tag tag, qint64 row, qint64 column, const QVariant &value);

} // namespace tetrad
