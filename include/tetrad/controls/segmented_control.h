#pragma once

// Implemented in runtime/controls/views/segmented_control.cpp.
#include <QStringList>
#include <QWidget>

class QButtonGroup;

namespace tetrad {

/// A row of buttons of which at most one is down. It counts as one control: lookups by tag never look
/// into it.
class SegmentedControlSC : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList labels READ labels WRITE setLabels)
    Q_PROPERTY(int selectedSegment READ selectedSegment WRITE setSelectedSegment)

public:
    explicit SegmentedControlSC(QWidget *parent = nullptr);

    /// The labels of the segments, first to last. Setting them leaves none selected.
    QStringList labels() const;
    void setLabels(const QStringList &labels);

    /// 0-based; -1 for none. An index outside the segments selects none.
    int selectedSegment() const;
    void setSelectedSegment(int index);

Q_SIGNALS:
    /// The user pressed a segment, which is now the selected one.
    void clicked(int index);

private:
    QButtonGroup *m_segments = nullptr;
};

} // namespace tetrad
