#pragma once

// Implemented in runtime/controls/views/split_view.cpp.
#include <tetrad/events/tag.h>

#include <QColor>
#include <QRectF>
#include <QSplitter>

namespace tetrad {

/// A view that divides its room among its subviews. It asks the dialog function (codes 1501 to 1513) about every
/// movement of a divider, reports it, and lets the program colour, thicken and draw the dividers. A divider's index is
/// that of the subview before it, from 0; positions are in pixels from the left or top edge and pass
/// through single precision.
class SplitViewSC : public QSplitter
{
    Q_OBJECT

public:
    explicit SplitViewSC(QWidget *parent = nullptr);

    /// Moves a divider as dragging would: within the constraints that the program answers, and past half of a
    /// subview's smallest size only when that subview can collapse. The view may be gone afterwards.
    void setPosition(int position, int divider);
    int position(int divider) const;

    /// Invalid: the style's own dividers.
    QColor dividerColor() const { return m_dividerColor; }

protected:
    QSplitterHandle *createHandle() override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void askAboutDividers();
    void layOut();
    int constrained(int position, int divider);
    int edgeBefore(int divider) const;
    int edgeAfter(int divider) const;
    void hideDividers();

    QColor m_dividerColor;
    bool m_layOutIsQueued = false;
};

/// The split view statement. Subviews are put in by SplitViewAddSubview.
void CUI_SplitView(Tag tag, Qt::Orientation orientation, const QRectF &rect);

/// Both show an alert when a view is missing. A view moved into a split view takes the room behind those already there.
void SplitViewAddSubview(Tag tag, Tag subview);
void SplitViewSetPosition(Tag tag, qint64 position, qint64 divider);

} // namespace tetrad
