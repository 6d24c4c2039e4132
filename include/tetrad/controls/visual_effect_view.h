#pragma once

// Implemented in runtime/controls/views/visual_effect_view.cpp.
#include <QWidget>

namespace tetrad {

/// A backdrop for other views: lets what its window draws behind it show through a veil of the window's
/// colour. Its objectName carries its tag.
class VisualEffectView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// How much of the veil covers what lies behind: 0 nothing, 1 everything.
    qreal coverage() const { return m_coverage; }
    void setCoverage(qreal coverage);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    qreal m_coverage = 0.75;
};

} // namespace tetrad
