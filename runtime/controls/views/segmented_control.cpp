#include <tetrad/controls/control_statements.h>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

namespace tetrad {

SegmentedControlSC::SegmentedControlSC(QWidget *parent) : QWidget(parent), m_segments(new QButtonGroup(this))
{
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    connect(m_segments, &QButtonGroup::idClicked, this, &SegmentedControlSC::clicked);
}

QStringList SegmentedControlSC::labels() const
{
    QStringList labels;
    for (const QAbstractButton *segment : m_segments->buttons()) {
        labels << segment->text();
    }
    return labels;
}

void SegmentedControlSC::setLabels(const QStringList &labels)
{
    qDeleteAll(m_segments->buttons());
    for (int index = 0; index < labels.size(); ++index) {
        auto *const segment = new QToolButton(this);
        segment->setText(labels.at(index));
        segment->setCheckable(true);
        segment->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        m_segments->addButton(segment, index);
        layout()->addWidget(segment);
    }
}

int SegmentedControlSC::selectedSegment() const
{
    return m_segments->checkedId();
}

void SegmentedControlSC::setSelectedSegment(int index)
{
    // An exclusive group does not let go of its last button.
    m_segments->setExclusive(false);
    for (QAbstractButton *segment : m_segments->buttons()) {
        segment->setChecked(m_segments->id(segment) == index);
    }
    m_segments->setExclusive(true);
}

} // namespace tetrad
