#include <tetrad/controls/control_statements.h>

#include "runtime/app/menus/mnemonic.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/input/field_formatter.h"
#include "runtime/strings/saturate.h"
#include <tetrad/controls/control_target.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/strings/not_given.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace tetrad {

namespace {

// A button has finished its own work when it reports a click, and checks whether it still exists.
void sendsActionAtOnce(QAbstractButton *button)
{
    QObject::connect(button, &QAbstractButton::clicked, button, [button] { sendControlAction(button); });
}

// Other controls are still working when they report a change.
template <typename Control, typename... Values>
auto sendsActionSoon(void (Control::*signal)(Values...))
{
    return [signal](auto *control) {
        QObject::connect(
            control, signal, control, [control] { sendControlAction(control); }, Qt::QueuedConnection);
    };
}

template <typename View, typename WhenMade>
void textStatement(Tag tag, const QString &text, const QRectF &rect, WhenMade whenMade)
{
    const auto setText = [&text](View *view) {
        if (!text.isNull()) {
            view->setText(std::is_base_of_v<QAbstractButton, View> ? escapedMnemonics(text) : text);
        }
    };
    // Before the view takes its natural size.
    const auto make = [&](View *made) {
        whenMade(made);
        setText(made);
    };
    if (auto *const view = statementView<View>(tag, rect, make)) {
        setText(view);
    }
}

// As many as the increment needs.
int decimalsOf(double increment)
{
    int decimals = 0;
    for (double scaled = increment; decimals < 6 && std::abs(scaled - std::round(scaled)) > 1e-9; scaled *= 10) {
        ++decimals;
    }
    return decimals;
}

} // namespace

void CUI_Button(Tag tag, const QString &title, const QRectF &rect)
{
    textStatement<QPushButton>(tag, title, rect, sendsActionAtOnce);
}

void CUI_CheckBox(Tag tag, const QString &title, const QRectF &rect)
{
    textStatement<QCheckBox>(tag, title, rect, sendsActionAtOnce);
}

void CUI_RadioButton(Tag tag, const QString &title, const QRectF &rect)
{
    textStatement<QRadioButton>(tag, title, rect, sendsActionAtOnce);
}

void CUI_TextField(Tag tag, const QString &text, const QRectF &rect)
{
    textStatement<QLineEdit>(tag, text, rect, sendsActionSoon(&QLineEdit::returnPressed));
}

void CUI_TextLabel(Tag tag, const QString &text, const QRectF &rect)
{
    textStatement<QLabel>(tag, text, rect, [](QLabel *made) { made->setTextFormat(Qt::PlainText); });
}

void CUI_Slider(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect)
{
    auto *const slider = statementView<QSlider>(tag, rect, sendsActionSoon(&QSlider::valueChanged));
    if (!slider) {
        return;
    }
    const QSignalBlocker blocker(slider);
    const auto [least, most] = std::minmax({saturatedTo<int>(minimum), saturatedTo<int>(maximum)});
    if (!rect.isEmpty()) {
        slider->setOrientation(rect.height() > rect.width() ? Qt::Vertical : Qt::Horizontal);
    }
    slider->setRange(least, most);
    slider->setInvertedAppearance(minimum > maximum);
    if (value != notGiven) {
        slider->setValue(saturatedTo<int>(value));
    }
}

void CUI_Stepper(Tag tag, double value, double minimum, double maximum, double increment, const QRectF &rect)
{
    if (auto *const stepper =
            statementView<QDoubleSpinBox>(tag, rect, sendsActionSoon(&QDoubleSpinBox::valueChanged))) {
        const QSignalBlocker blocker(stepper);
        stepper->setDecimals(decimalsOf(increment));
        stepper->setRange(minimum, maximum);
        stepper->setSingleStep(increment);
        stepper->setValue(value);
    }
}

void CUI_ProgressIndicator(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect)
{
    if (auto *const bar = statementView<QProgressBar>(tag, rect)) {
        const bool isKnown = minimum != maximum;
        bar->setRange(isKnown ? saturatedTo<int>(minimum) : 0, isKnown ? saturatedTo<int>(maximum) : 0);
        bar->setValue(saturatedTo<int>(value));
    }
}

void CUI_PopUpButton(Tag tag, const QStringList &items, qint64 selectedIndex, const QRectF &rect)
{
    auto *const box = statementView<QComboBox>(tag, rect, sendsActionSoon(&QComboBox::activated));
    if (!box) {
        return;
    }
    if (!items.isEmpty()) {
        ControlSetItems(tagFromObject(box), items);
        box->setCurrentIndex(0);
    }
    if (selectedIndex != notGiven) {
        box->setCurrentIndex(saturatedTo<int>(selectedIndex));
    }
}

void CUI_ComboBox(Tag tag, const QString &text, const QStringList &items, const QRectF &rect)
{
    auto *const box = statementView<ComboBoxSC>(tag, rect, sendsActionSoon(&ComboBoxSC::chosen));
    if (!box) {
        return;
    }
    if (!items.isEmpty()) {
        ControlSetItems(tagFromObject(box), items);
    }
    if (!text.isNull()) {
        box->setEditText(text);
    }
}

void CUI_DateField(Tag tag, const QDate &date, const QRectF &rect)
{
    auto *const field = statementView<QDateEdit>(tag, rect, [](QDateEdit *made) {
        made->setCalendarPopup(true);
        made->setDate(QDate::currentDate());
        sendsActionSoon (&QDateEdit::dateChanged)(made);
    });
    if (field && date.isValid()) {
        const QSignalBlocker blocker(field);
        field->setDate(date);
    }
}

void CUI_ImageView(Tag tag, const QImage &image, const QRectF &rect)
{
    auto *const view = statementView<ImageViewSC>(tag, rect);
    if (view && !image.isNull()) {
        view->setImage(image);
    }
}

// Return on the text of an item is reported more than once.
ComboBoxSC::ComboBoxSC(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    auto *const report = new QTimer(this);
    report->setSingleShot(true);
    report->callOnTimeout(this, &ComboBoxSC::chosen);
    connect(this, &QComboBox::activated, report, [report] { report->start(0); });
    connect(lineEdit(), &QLineEdit::returnPressed, report, [report] { report->start(0); });
}

void ImageViewSC::setImage(const QImage &image)
{
    m_image = image;
    update();
}

void ImageViewSC::paintEvent(QPaintEvent * /*event*/)
{
    QRect target(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_image);
}

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
    // An exclusive group never unchecks its last button.
    m_segments->setExclusive(false);
    for (QAbstractButton *segment : m_segments->buttons()) {
        segment->setChecked(m_segments->id(segment) == index);
    }
    m_segments->setExclusive(true);
}

void CUI_SegmentedControl(Tag tag, const QStringList &labels, qint64 selectedIndex, const QRectF &rect)
{
    auto *const control = statementView<SegmentedControlSC>(tag, rect, sendsActionSoon(&SegmentedControlSC::clicked));
    if (!control) {
        return;
    }
    if (!labels.isEmpty()) {
        control->setLabels(labels);
    }
    if (selectedIndex != notGiven) {
        control->setSelectedSegment(saturatedTo<int>(selectedIndex));
    }
}

void ControlSetEnabled(Tag tag, bool enabled)
{
    if (QWidget *const view = viewOfClass<QWidget>(tag)) {
        view->setEnabled(enabled);
    }
}

void ViewSetHidden(Tag tag, bool hidden)
{
    if (QWidget *const view = viewOfClass<QWidget>(tag)) {
        view->setHidden(hidden);
    }
}

void ViewSetFocus(Tag tag)
{
    if (QWidget *const view = viewOfClass<QWidget>(tag)) {
        view->setFocus(Qt::OtherFocusReason);
    }
}

void ViewSetAccessibleName(Tag tag, const QString &name)
{
    if (QWidget *const view = viewOfClass<QWidget>(tag)) {
        view->setAccessibleName(name);
    }
}

void ControlSetFormat(Tag tag, const QString &characters, bool pass, quint64 length, qint64 caseOption)
{
    const auto *const box = qobject_cast<QComboBox *>(CUI_ViewWithTag(tag));
    QLineEdit *const boxField = box ? box->lineEdit() : nullptr;
    if (QLineEdit *const field = boxField ? boxField : viewOfClass<QLineEdit>(tag)) {
        attachFormatter(field, characters, pass, length, caseOption);
    }
}

} // namespace tetrad
