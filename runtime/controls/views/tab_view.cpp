#include <tetrad/controls/tab_view.h>

#include "runtime/app/menus/mnemonic.h"
#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/event_codes.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabBar>
#include <QWheelEvent>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

void insertTab(TabViewSC *tabView, int index, const QString &label)
{
    auto *const page = new QWidget;
    setObjectWindowTag(page, objectWindowTag(tabView));
    tabView->insertTab(index, page, escapedMnemonics(label));
}

// The tabs of a tab view, where the user selects.
class TabViewBar : public QTabBar
{
public:
    explicit TabViewBar(TabViewSC *tabView) : QTabBar(tabView), m_tabView(tabView) {}

protected:
    void mousePressEvent(QMouseEvent *event) override
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

    void wheelEvent(QWheelEvent *event) override
    {
        if (event->angleDelta().y() != 0) {
            m_tabView->selectIfAllowed(nextEnabled(event->angleDelta().y() > 0 ? -1 : 1));
        }
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        const bool back = event->key() == (isRightToLeft() ? Qt::Key_Right : Qt::Key_Left);
        if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
            m_tabView->selectIfAllowed(nextEnabled(back ? -1 : 1));
        } else {
            event->ignore();
        }
    }

private:
    // Outside the tabs when there is none.
    int nextEnabled(int step) const
    {
        int index = currentIndex() + step;
        while (index >= 0 && index < count() && !isTabEnabled(index)) {
            index += step;
        }
        return index;
    }

    TabViewSC *m_tabView = nullptr;
};

} // namespace

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
    CUI_DialogEventObj()->boolVal = false;
    forwardItem(tabViewEventRefuseSelect, index);
    if (CUI_DialogEventObj()->boolVal || !guard) {
        return;
    }
    forwardItem(tabViewEventWillSelect, index);
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
    callSoon(this, [this] {
        CUI_DialogEventObj()->longVal = count();
        sendObjectEvent(this, tabViewEventDidChangeCount);
    });
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
                forwardItem(tabViewEventDidSelect, now);
            }
        });
    }
}

void TabViewSC::forwardItem(qint64 event, int index)
{
    CUI_DialogEventObj()->longVal = index;
    CUI_DialogEventObj()->viewObj = widget(index);
    CUI_DialogEventObj()->stringObj = unescapedMnemonics(tabText(index));
    sendObjectEvent(this, event);
}

void CUI_TabView(Tag tag, const QStringList &labels, const QRectF &rect)
{
    auto *const view = statementView<TabViewSC>(tag, rect);
    for (int index = 0; view && index < labels.size(); ++index) {
        if (index < view->count()) {
            view->setTabText(index, escapedMnemonics(labels.at(index)));
        } else {
            insertTab(view, index, labels.at(index));
        }
    }
}

QWidget *TabViewPage(Tag tag, qint64 index)
{
    const auto *const view = viewOfClass<TabViewSC>(tag);
    return view ? view->widget(saturatedTo<int>(index)) : nullptr;
}

void TabViewAddTab(Tag tag, qint64 index, const QString &label)
{
    if (auto *const view = viewOfClass<TabViewSC>(tag)) {
        insertTab(view, saturatedTo<int>(index), label);
    }
}

void TabViewRemoveTab(Tag tag, qint64 index)
{
    auto *const view = viewOfClass<TabViewSC>(tag);
    if (QWidget *const page = view ? view->widget(saturatedTo<int>(index)) : nullptr) {
        view->removeTab(view->indexOf(page));
        page->deleteLater();
    }
}

qint64 TabViewSelectedIndex(Tag tag)
{
    const auto *const view = viewOfClass<TabViewSC>(tag);
    return view ? view->currentIndex() : -1;
}

void TabViewSelectIndex(Tag tag, qint64 index)
{
    if (auto *const view = viewOfClass<TabViewSC>(tag)) {
        view->setCurrentIndex(saturatedTo<int>(index));
    }
}

} // namespace tetrad
