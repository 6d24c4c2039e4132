#include <tetrad/controls/split_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/event_codes.h>

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace tetrad {

namespace {

// Deliberately in single precision, as the program's answer is.
int askCoordinate(const SplitViewSC *view, qint64 event, int divider, int proposal)
{
    CUI_DialogEventObj()->longVal = divider;
    return pixelAnswer(view, event, &CUI_DialogEvent::floatVal, proposal);
}

bool askAboutIndex(const SplitViewSC *view, qint64 event, int index)
{
    CUI_DialogEventObj()->longVal = index;
    return answersYes(view, event);
}

int along(Qt::Orientation orientation, const QPoint &point)
{
    return orientation == Qt::Horizontal ? point.x() : point.y();
}

// The bar between two subviews, which drags through SplitViewSC::setPosition and draws what the program asks for.
class SplitDivider : public QSplitterHandle
{
public:
    SplitDivider(Qt::Orientation orientation, SplitViewSC *splitView)
        : QSplitterHandle(orientation, splitView), m_splitView(splitView)
    {}

    // A hidden divider draws nothing and cannot be dragged.
    void setHiddenByProgram(bool hidden)
    {
        m_isHiddenByProgram = hidden;
        setAttribute(Qt::WA_TransparentForMouseEvents, hidden);
        update();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (m_isHiddenByProgram) {
            return;
        }
        CUI_DialogEventObj()->rectVal = rect();
        CUI_DialogEventObj()->viewObj = this;
        CUI_DialogEventObj()->longVal = index();
        if (answersYes(m_splitView, splitViewEventDrawDivider)) {
            return;
        }
        if (m_splitView->dividerColor().isValid()) {
            QPainter(this).fillRect(event->rect(), m_splitView->dividerColor());
        } else {
            QSplitterHandle::paintEvent(event);
        }
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        m_grip = along(orientation(), event->position().toPoint());
        QSplitterHandle::mousePressEvent(event);
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (event->buttons() & Qt::LeftButton) {
            const QPoint position = m_splitView->mapFromGlobal(event->globalPosition().toPoint());
            m_splitView->setPosition(along(orientation(), position) - m_grip, index());
        }
    }

private:
    // The platform also counts one before the first subview, which is never seen.
    int index() { return m_splitView->indexOf(this) - 1; }

    SplitViewSC *m_splitView = nullptr;
    // Where the divider was pressed, from its own edge.
    int m_grip = 0;
    bool m_isHiddenByProgram = false;
};

} // namespace

SplitViewSC::SplitViewSC(QWidget *parent) : QSplitter(parent)
{
    setOpaqueResize(true);
    // The program decides each time instead.
    setChildrenCollapsible(false);
}

int SplitViewSC::position(int divider) const
{
    const QWidget *const bar = divider >= 0 && divider < count() - 1 ? handle(divider + 1) : nullptr;
    return bar ? along(orientation(), bar->pos()) : 0;
}

void SplitViewSC::setPosition(int position, int divider)
{
    if (divider < 0 || divider >= count() - 1) {
        return;
    }
    const QPointer<SplitViewSC> guard(this);
    position = constrained(position, divider);
    if (!guard || position == this->position(divider)) {
        return;
    }
    forwardDelegateEvent(this, splitViewEventWillResizeSubviews);
    if (!guard || divider + 1 >= count()) {
        return;
    }
    // At an edge, a subview that can collapse does.
    setChildrenCollapsible(true);
    moveSplitter(position, divider + 1);
    setChildrenCollapsible(false);
    forwardDelegateEvent(this, splitViewEventDidResizeSubviews);
    if (guard) {
        hideDividers();
    }
}

// Where the program lets the divider go; any position when the view is gone. Only a subview that can collapse loses
// more room than its smallest size allows.
int SplitViewSC::constrained(int position, int divider)
{
    const QPointer<SplitViewSC> guard(this);
    int smallest = 0;
    int largest = 0;
    getRange(divider + 1, &smallest, &largest);
    const int least = askCoordinate(this, splitViewEventConstrainMinCoordinate, divider, smallest);
    const int most = guard ? askCoordinate(this, splitViewEventConstrainMaxCoordinate, divider, largest) : 0;
    position = guard ? askCoordinate(this, splitViewEventConstrainSplitPosition, divider, position) : 0;
    if (!guard) {
        return 0;
    }
    const int before = edgeBefore(divider);
    const int after = edgeAfter(divider);
    const bool leading = position < (before + least) / 2;
    const bool trailing = !leading && position > (after + most) / 2;
    const int subview = leading ? divider : divider + 1;
    if ((leading || trailing) && askAboutIndex(this, splitViewEventCanCollapseSubview, subview) && guard) {
        return leading ? before : after;
    }
    return std::max({least, smallest, std::min({position, most, largest})});
}

// Where the subview before a divider begins, and where the divider stands when the one behind it has no room.
int SplitViewSC::edgeBefore(int divider) const
{
    return divider == 0 ? 0 : position(divider - 1) + handleWidth();
}

int SplitViewSC::edgeAfter(int divider) const
{
    const int length = along(orientation(), QPoint(width(), height()));
    return (divider + 2 < count() ? position(divider + 1) : length) - handleWidth();
}

void SplitViewSC::askAboutDividers()
{
    const QPointer<SplitViewSC> guard(this);
    const QColor color = answerTo(this, splitViewEventDividerColor, &CUI_DialogEvent::colorObj, m_dividerColor);
    if (!guard) {
        return;
    }
    m_dividerColor = color;
    const int thickness = pixelAnswer(this, splitViewEventDividerThickness, &CUI_DialogEvent::floatVal, handleWidth());
    if (guard) {
        if (thickness >= 0) {
            setHandleWidth(thickness);
        }
        update();
        hideDividers();
    }
}

// Asks about the dividers that are at an edge, the only ones that a program may hide.
void SplitViewSC::hideDividers()
{
    const QPointer<SplitViewSC> guard(this);
    for (int divider = 0; guard && divider + 1 < count(); ++divider) {
        const bool atEdge = position(divider) <= edgeBefore(divider) || position(divider) >= edgeAfter(divider);
        const bool hides = atEdge && askAboutIndex(this, splitViewEventShouldHideDivider, divider);
        if (guard && divider + 1 < count()) {
            static_cast<SplitDivider *>(handle(divider + 1))->setHiddenByProgram(hides);
        }
    }
}

QSplitterHandle *SplitViewSC::createHandle()
{
    return new SplitDivider(orientation(), this);
}

void SplitViewSC::showEvent(QShowEvent *event)
{
    QSplitter::showEvent(event);
    callSoon(this, [this] { askAboutDividers(); });
}

void SplitViewSC::resizeEvent(QResizeEvent * /*event*/)
{
    if (!m_layOutIsQueued) {
        m_layOutIsQueued = true;
        callSoon(this, [this] { layOut(); });
    }
}

void SplitViewSC::layOut()
{
    m_layOutIsQueued = false;
    const QPointer<SplitViewSC> guard(this);
    forwardDelegateEvent(this, splitViewEventWillResizeSubviews);
    // If no subview may change its size, all of them do.
    for (int index = 0; guard && index < count(); ++index) {
        const bool adjusts = askAboutIndex(this, splitViewEventShouldAdjustSizeOfSubview, index);
        if (guard && index < count()) {
            setStretchFactor(index, adjusts ? 1 : 0);
        }
    }
    if (!guard) {
        return;
    }
    QResizeEvent resized(size(), size());
    QSplitter::resizeEvent(&resized);
    forwardDelegateEvent(this, splitViewEventDidResizeSubviews);
    if (guard) {
        hideDividers();
    }
}

void CUI_SplitView(Tag tag, Qt::Orientation orientation, const QRectF &rect)
{
    if (auto *const view = statementView<SplitViewSC>(tag, rect)) {
        view->setOrientation(orientation);
    }
}

void SplitViewAddSubview(Tag tag, Tag subview)
{
    auto *const view = viewOfClass<SplitViewSC>(tag);
    QWidget *const added = view ? viewOfClass<QWidget>(subview) : nullptr;
    if (added && added != view && !added->isAncestorOf(view)) {
        view->addWidget(added);
        setWindowTagWithin(added, objectWindowTag(view));
    }
}

void SplitViewSetPosition(Tag tag, qint64 position, qint64 divider)
{
    if (auto *const view = viewOfClass<SplitViewSC>(tag)) {
        view->setPosition(saturatedTo<int>(position), saturatedTo<int>(divider));
    }
}

} // namespace tetrad
