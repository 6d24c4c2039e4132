#include <tetrad/controls/tab_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/strings/saturate.h"
#include <tetrad/controls/view_lookup.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace tetrad {

using namespace Qt::StringLiterals;

TabViewSC::TabViewSC(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new TabViewBar(this));
    connect(this, &QTabWidget::currentChanged, this, &TabViewSC::reportSelection);
}

void TabViewSC::selectIfAllowed(int index)
{
    if (index < 0 || index >= count() || index == currentIndex()) {
        return;
    }
    const QPointer<TabViewSC> guard(this);
    if (!CUI_TabViewDelegateObj()->tabViewShouldSelectTabViewItem(this, index) || !guard) {
        return;
    }
    CUI_TabViewDelegateObj()->tabViewWillSelectTabViewItem(this, index);
    if (guard) {
        setCurrentIndex(index);
    }
}

void TabViewSC::keyPressEvent(QKeyEvent *event)
{
    const bool back = event->key() == Qt::Key_Backtab;
    if ((back || event->key() == Qt::Key_Tab) && event->modifiers() & Qt::ControlModifier && count() > 0) {
        selectIfAllowed((currentIndex() + (back ? count() - 1 : 1)) % count());
    } else {
        event->ignore();
    }
}

void TabViewSC::tabInserted(int /*index*/)
{
    callSoon(this, [this] { CUI_TabViewDelegateObj()->tabViewDidChangeNumberOfTabViewItems(this); });
}

void TabViewSC::tabRemoved(int index)
{
    tabInserted(index);
}

void TabViewSC::reportSelection(int index)
{
    if (const QPointer<QWidget> page = widget(index)) {
        callSoon(this, [this, page] {
            if (const int now = indexOf(page); now >= 0) {
                CUI_TabViewDelegateObj()->tabViewDidSelectTabViewItem(this, now);
            }
        });
    }
}

TabViewBar::TabViewBar(TabViewSC *tabView) : QTabBar(tabView), m_tabView(tabView) {}

void TabViewBar::mousePressEvent(QMouseEvent *event)
{
    const int index = tabAt(event->position().toPoint());
    const QPointer<TabViewBar> guard(this);
    if (event->button() == Qt::LeftButton && isTabEnabled(index)) {
        m_tabView->selectIfAllowed(index);
    }
    // The press itself selects: only a tab that is selected by now may have it.
    if (guard && index == currentIndex()) {
        QTabBar::mousePressEvent(event);
    }
}

void TabViewBar::wheelEvent(QWheelEvent *event)
{
    if (event->angleDelta().y() != 0) {
        m_tabView->selectIfAllowed(nextEnabled(event->angleDelta().y() > 0 ? -1 : 1));
    }
}

void TabViewBar::keyPressEvent(QKeyEvent *event)
{
    const bool back = event->key() == (isRightToLeft() ? Qt::Key_Right : Qt::Key_Left);
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        m_tabView->selectIfAllowed(nextEnabled(back ? -1 : 1));
    } else {
        event->ignore();
    }
}

// -1 when there is none.
int TabViewBar::nextEnabled(int step) const
{
    int index = currentIndex() + step;
    while (index >= 0 && index < count() && !isTabEnabled(index)) {
        index += step;
    }
    return index < count() ? index : -1;
}

CUI_TabViewDelegate *CUI_TabViewDelegateObj()
{
    // Deliberately never freed: views may outlive every static object.
    static auto *const delegate = new CUI_TabViewDelegate;
    return delegate;
}

void CUI_TabViewDelegate::callUserDefinedOnDialogFunctionWithEvent(TabViewSC *tabView, qint64 event, Tag object)
{
    sendObjectEvent(tabView, event, object);
}

void CUI_TabViewDelegate::callWithItem(TabViewSC *tabView, qint64 event, int index)
{
    CUI_DialogEventObj()->longVal = index;
    CUI_DialogEventObj()->stringObj = tabView->tabText(index).replace(u"&&"_s, u"&"_s);
    callUserDefinedOnDialogFunctionWithEvent(tabView, event, tagFromObject(tabView->widget(index)));
}

bool CUI_TabViewDelegate::tabViewShouldSelectTabViewItem(TabViewSC *tabView, int index)
{
    CUI_DialogEventObj()->boolVal = false;
    callWithItem(tabView, tabViewEventRefuseSelect, index);
    return !CUI_DialogEventObj()->boolVal;
}

void CUI_TabViewDelegate::tabViewWillSelectTabViewItem(TabViewSC *tabView, int index)
{
    callWithItem(tabView, tabViewEventWillSelect, index);
}

void CUI_TabViewDelegate::tabViewDidSelectTabViewItem(TabViewSC *tabView, int index)
{
    callWithItem(tabView, tabViewEventDidSelect, index);
}

void CUI_TabViewDelegate::tabViewDidChangeNumberOfTabViewItems(TabViewSC *tabView)
{
    CUI_DialogEventObj()->longVal = tabView->count();
    callUserDefinedOnDialogFunctionWithEvent(tabView, tabViewEventDidChangeCount, 0);
}

namespace {

// A shortcut taken from an ampersand would select without asking.
QString plainLabel(QString label)
{
    return label.replace(u'&', u"&&"_s);
}

TabViewSC *tabViewWithTag(Tag tag)
{
    return qobject_cast<TabViewSC *>(CUI_ValidateViewKindOfClass(tag, u"NSTabView"_s));
}

} // namespace

void CUI_TabView(Tag tag, const QStringList &labels, const QRectF &rect)
{
    auto *const view = statementView<TabViewSC>(tag, rect, [](TabViewSC *) {});
    for (int index = 0; view && index < labels.size(); ++index) {
        if (index < view->count()) {
            view->setTabText(index, plainLabel(labels.at(index)));
        } else {
            view->addTab(new QWidget, plainLabel(labels.at(index)));
        }
    }
}

QWidget *TabViewPage(Tag tag, qint64 index)
{
    const TabViewSC *const view = tabViewWithTag(tag);
    return view ? view->widget(saturatedTo<int>(index)) : nullptr;
}

qint64 TabViewSelectedIndex(Tag tag)
{
    const TabViewSC *const view = tabViewWithTag(tag);
    return view ? view->currentIndex() : -1;
}

void TabViewSelectIndex(Tag tag, qint64 index)
{
    if (TabViewSC *const view = tabViewWithTag(tag)) {
        view->setCurrentIndex(saturatedTo<int>(index));
    }
}

} // namespace tetrad
