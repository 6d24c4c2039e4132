#include <tetrad/controls/split_view.h>

#include "runtime/controls/views/pixel_answer.h"
#include "runtime/controls/views/split_divider.h"
#include <tetrad/controls/event_site.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/controls/view_statement.h>
#include <tetrad/events/dialog_event.h>
#include <tetrad/events/event_codes.h>

#include <QResizeEvent>

#include <algorithm>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// Deliberately through the record's single precision: that is how exact a program's answer is.
int askCoordinate(const SplitView *view, qint64 event, int divider, int proposal)
{
    CUI_DialogEventObj()->longVal = divider;
    CUI_DialogEventObj()->floatVal = float(proposal);
    CUI_SendObjectEvent(view, event);
    return wholePixels(CUI_DialogEventObj()->floatVal);
}

bool askAboutIndex(const SplitView *view, qint64 event, int index)
{
    CUI_DialogEventObj()->longVal = index;
    return CUI_AskObjectEvent(view, event);
}

SplitView *splitViewWithTag(Tag tag)
{
    return qobject_cast<SplitView *>(CUI_ValidateViewKindOfClass(tag, u"NSSplitView"_s));
}

} // namespace

SplitView::SplitView(QWidget *parent) : QSplitter(parent)
{
    setOpaqueResize(true);
    // The program is asked instead, each time.
    setChildrenCollapsible(false);
}

int SplitView::position(int divider) const
{
    const QWidget *const bar = divider >= 0 && divider < count() - 1 ? handle(divider + 1) : nullptr;
    return !bar ? 0 : orientation() == Qt::Horizontal ? bar->x() : bar->y();
}

void SplitView::setPosition(int position, int divider)
{
    if (divider < 0 || divider >= count() - 1) {
        return;
    }
    const QPointer<SplitView> guard(this);
    const Target target = constrained(position, divider);
    if (!guard || target.position == this->position(divider)) {
        return;
    }
    CUI_SendObjectEvent(this, splitViewEventWillResizeSubviews);
    if (!guard || divider + 1 >= count()) {
        return;
    }
    move(target, divider);
    CUI_SendObjectEvent(this, splitViewEventDidResizeSubviews);
    if (guard) {
        hideDividers();
    }
}

void SplitView::move(const Target &target, int divider)
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
SplitView::Target SplitView::constrained(int position, int divider)
{
    const QPointer<SplitView> guard(this);
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

SplitView::Target SplitView::collapsedOr(int position, int divider, int least, int most)
{
    const QPointer<SplitView> guard(this);
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
int SplitView::edgeBefore(int divider) const
{
    return divider == 0 ? 0 : position(divider - 1) + handleWidth();
}

int SplitView::edgeAfter(int divider) const
{
    const int length = orientation() == Qt::Horizontal ? width() : height();
    return (divider + 2 < count() ? position(divider + 1) : length) - handleWidth();
}

void SplitView::askAboutDividers()
{
    const QPointer<SplitView> guard(this);
    CUI_DialogEventObj()->colorObj = m_dividerColor;
    CUI_SendObjectEvent(this, splitViewEventDividerColor);
    if (!guard) {
        return;
    }
    m_dividerColor = CUI_DialogEventObj()->colorObj;
    CUI_DialogEventObj()->floatVal = float(handleWidth());
    CUI_SendObjectEvent(this, splitViewEventDividerThickness);
    if (guard) {
        const int thickness = wholePixels(CUI_DialogEventObj()->floatVal);
        if (thickness >= 0 && thickness != handleWidth()) {
            setHandleWidth(thickness);
        }
        update();
        hideDividers();
    }
}

// Asked about the dividers that stand at an edge: hiding is what takes them out of the picture.
void SplitView::hideDividers()
{
    const QPointer<SplitView> guard(this);
    for (int divider = 0; guard && divider + 1 < count(); ++divider) {
        const bool atEdge = position(divider) <= edgeBefore(divider) || position(divider) >= edgeAfter(divider);
        const bool hides = atEdge && askAboutIndex(this, splitViewEventShouldHideDivider, divider);
        if (guard && divider + 1 < count()) {
            static_cast<SplitDivider *>(handle(divider + 1))->setHiddenByProgram(hides);
        }
    }
}

QSplitterHandle *SplitView::createHandle()
{
    return new SplitDivider(orientation(), this);
}

void SplitView::showEvent(QShowEvent *event)
{
    QSplitter::showEvent(event);
    CUI_Soon(this, [this] { askAboutDividers(); });
}

void SplitView::resizeEvent(QResizeEvent * /*event*/)
{
    if (!m_layOutIsQueued) {
        m_layOutIsQueued = true;
        CUI_Soon(this, [this] { layOut(); });
    }
}

void SplitView::layOut()
{
    m_layOutIsQueued = false;
    const QPointer<SplitView> guard(this);
    CUI_SendObjectEvent(this, splitViewEventWillResizeSubviews);
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
    CUI_SendObjectEvent(this, splitViewEventDidResizeSubviews);
    if (guard) {
        hideDividers();
    }
}

void CUI_SplitView(Tag tag, Qt::Orientation orientation, const QRectF &rect)
{
    if (auto *const view = CUI_StatementView<SplitView>(tag, rect, [](SplitView *) {})) {
        view->setOrientation(orientation);
    }
}

void SplitViewAddSubview(Tag tag, Tag subview)
{
    SplitView *const view = splitViewWithTag(tag);
    QWidget *const added = view ? CUI_ValidateViewKindOfClass(subview, u"NSView"_s) : nullptr;
    if (added && added != view && !added->isAncestorOf(view)) {
        view->addWidget(added);
    }
}

void SplitViewSetPosition(Tag tag, qint64 position, qint64 divider)
{
    if (SplitView *const view = splitViewWithTag(tag)) {
        view->setPosition(saturatedTo<int>(position), saturatedTo<int>(divider));
    }
}

} // namespace tetrad
