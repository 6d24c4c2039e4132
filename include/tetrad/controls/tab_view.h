#pragma once

// Implemented in runtime/controls/views/tab_view.cpp.
#include <tetrad/controls/control_target.h>

#include <QRectF>
#include <QStringList>
#include <QTabWidget>

namespace tetrad {

/// Pages of which one is seen, each with a tab. A page is a plain view, and what lies in it is found by tag whichever
/// page is selected. Before a press, the wheel or a key selects another page the dialog function may refuse it; a
/// selection by the program is only reported.
class TabViewSC : public QTabWidget
{
    Q_OBJECT

public:
    explicit TabViewSC(QWidget *parent = nullptr);

    /// Selects a page if the program does not refuse it (event 1600); then 1601 comes before the page
    /// changes. Nothing happens for an index outside the tabs and for the page that is selected already. The view
    /// may be gone afterwards.
    void selectIfAllowed(int index);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void reportSelection(int index);
    void forwardItem(qint64 event, int index);
};

class CUI_TabViewDelegate : public DialogFunctionDelegate
{};

/// The tab view statement. Tabs beyond those there are added, tabs there get the labels; a null list leaves them.
void CUI_TabView(Tag tag, const QStringList &labels, const QRectF &rect);

/// The page of a tab, to put views into with ViewAddSubview; null, after an alert when the tab view is missing.
QWidget *TabViewPage(Tag tag, qint64 index);

/// Each shows an alert when the tab view is missing. Tabs count from 0. A position beyond the last tab adds the tab
/// behind it; a tab is removed with all that lies in its page.
void TabViewAddTab(Tag tag, qint64 index, const QString &label);
void TabViewRemoveTab(Tag tag, qint64 index);

/// -1 without tabs or without the view.
qint64 TabViewSelectedIndex(Tag tag);
void TabViewSelectIndex(Tag tag, qint64 index);

} // namespace tetrad
