#pragma once

#include <QSplitterHandle>

namespace tetrad {

class SplitViewSC;

/// A divider of a split view: the bar between two subviews, which drags through SplitViewSC::setPosition and draws what
/// the program asks for.
class SplitDivider : public QSplitterHandle
{
    Q_OBJECT

public:
    SplitDivider(Qt::Orientation orientation, SplitViewSC *splitView);

    /// A hidden divider draws nothing and cannot be dragged.
    void setHiddenByProgram(bool hidden);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    int along(const QPoint &point) const;
    int index() const;

    SplitViewSC *m_splitView = nullptr;
    // Where in the divider it was taken hold of.
    int m_grip = 0;
    bool m_isHiddenByProgram = false;
};

} // namespace tetrad
