#include <tetrad/controls/split_view.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/controls/views/pixel_answer.h"
#include "runtime/controls/views/split_divider.h"
#include <tetrad/events/event_codes.h>

#include <QResizeEvent>

#include <algorithm>

namespace tetrad {

namespace {

// Deliberately through the record's single precision: that is how exact a program's answer is.
int askCoordinate(const SplitViewSC *view, qint64 event, int divider, int proposal)
{
    CUI_DialogEventObj()->longVal = divider;
    return wholePixels(answerTo(view, event, &CUI_DialogEvent::floatVal, float(proposal)));
}

bool askAboutIndex(const SplitViewSC *view, qint64 event, int index)
{
    CUI_DialogEventObj()->longVal = index;
    return answersYes(view, event);
}

} // namespace

SplitViewSC::SplitViewSC(QWidget *parent) : QSplitter(parent)
{
    setOpaqueResize(true);
    // The program is asked instead, each time.
    setChildrenCollapsible(false);
}

int SplitViewSC::position(int divider) const
{
    const QWidget *const bar = divider >= 0 && divider < count() - 1 ? handle(divider + 1) : nullptr;
    return !bar ? 0 : orientation() == Qt::Horizontal ? bar->x() : bar->y();
}

void SplitViewSC::setPosition(int position, int divider)
{
    if (divider < 0 || divider >= count() - 1) {
        return;
    }
    const QPointer<SplitViewSC> guard(this);
    const Target target = constrained(position, divider);
    if (!guard || target.position == this->position(divider)) {
        return;
    }
    forwardDelegateEvent(this, splitViewEventWillResizeSubviews);
    if (!guard || divider + 1 >= count()) {
        return;
    }
    move(target, divider);
    forwardDelegateEvent(this, splitViewEventDidResizeSubviews);
    if (guard) {
        hideDividers();
    }
}

void SplitViewSC::move(const Target &target, int divider)
{
    if (target.collapsing >= 0) {
        setCollapsible(target.collapsing, true);
    }
    moveSplitter(target.position, divider + 1);
    if (target.collapsing >= 0) {
        setCollapsible(target.collapsing, false);
    }
}

// Where the program lets the divider go; any answer when the view is gone.
SplitViewSC::Target SplitViewSC::constrained(int position, int divider)
{
    const QPointer<SplitViewSC> guard(this);
    int least = 0;
    int most = 0;
    getRange(divider + 1, &least, &most);
    least = askCoordinate(this, splitViewEventConstrainMinCoordinate, divider, least);
    if (guard) {
        most = askCoordinate(this, splitViewEventConstrainMaxCoordinate, divider, most);
    }
    if (guard) {
        position = askCoordinate(this, splitViewEventConstrainSplitPosition, divider, position);
    }
    return guard ? collapsedOr(position, divider, least, most) : Target{};
}

SplitViewSC::Target SplitViewSC::collapsedOr(int position, int divider, int least, int most)
{
    const QPointer<SplitViewSC> guard(this);
    const int before = edgeBefore(divider);
    const int after = edgeAfter(divider);
    const bool leading = position < (before + least) / 2;
    const bool trailing = !leading && position > (after + most) / 2;
    if (leading || trailing) {
        const int subview = leading ? divider : divider + 1;
        if (askAboutIndex(this, splitViewEventCanCollapseSubview, subview) && guard && subview < count()) {
            return {leading ? before : after, subview};
        }
    }
    return {std::max(least, std::min(position, most))};
}

// Where the subview before a divider begins, and where the divider stands when the one behind it has no room.
int SplitViewSC::edgeBefore(int divider) const
{
    return divider == 0 ? 0 : position(divider - 1) + handleWidth();
}

int SplitViewSC::edgeAfter(int divider) const
{
    const int length = orientation() == Qt::Horizontal ? width() : height();
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
    const auto width = float(handleWidth());
    const int thickness =
        wholePixels(answerTo(this, splitViewEventDividerThickness, &CUI_DialogEvent::floatVal, width));
    if (guard) {
        if (thickness >= 0 && thickness != handleWidth()) {
            setHandleWidth(thickness);
        }
        update();
        hideDividers();
    }
}

// Asked about the dividers that stand at an edge: hiding is what takes them out of the picture.
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
    // With no subview that may, all of them change.
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
