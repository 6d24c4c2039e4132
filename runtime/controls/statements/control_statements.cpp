#include <tetrad/controls/control_statements.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/controls/statements/view_statement.h"
#include "runtime/input/field_formatter.h"
#include "runtime/strings/saturate.h"
#include <tetrad/controls/control_target.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/strings/not_given.h>

#include <QCheckBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tetrad {

namespace {

// A button has finished its own work when it reports a click, and checks whether it still exists.
void sendsActionAtOnce(QAbstractButton *button)
{
    QObject::connect(button, &QAbstractButton::clicked, button, [button] { sendControlAction(button); });
}

template <typename Control, typename Signal>
void sendsActionSoon(Control *control, Signal signal)
{
    QObject::connect(control, signal, control, [control] { sendControlActionSoon(control); });
}

template <typename Button>
void buttonStatement(Tag tag, const QString &title, const QRectF &rect)
{
    auto *const button = statementView<Button>(tag, rect, sendsActionAtOnce);
    if (button && !title.isNull()) {
        button->setText(title);
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
    buttonStatement<QPushButton>(tag, title, rect);
}

void CUI_CheckBox(Tag tag, const QString &title, const QRectF &rect)
{
    buttonStatement<QCheckBox>(tag, title, rect);
}

void CUI_RadioButton(Tag tag, const QString &title, const QRectF &rect)
{
    buttonStatement<QRadioButton>(tag, title, rect);
}

void CUI_TextField(Tag tag, const QString &text, const QRectF &rect)
{
    auto *const field =
        statementView<QLineEdit>(tag, rect, [](QLineEdit *made) { sendsActionSoon(made, &QLineEdit::returnPressed); });
    if (field && !text.isNull()) {
        field->setText(text);
    }
}

void CUI_TextLabel(Tag tag, const QString &text, const QRectF &rect)
{
    auto *const label = statementView<QLabel>(tag, rect, [](QLabel *made) { made->setTextFormat(Qt::PlainText); });
    if (label && !text.isNull()) {
        label->setText(text);
    }
}

void CUI_Slider(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect)
{
    auto *const slider =
        statementView<QSlider>(tag, rect, [](QSlider *made) { sendsActionSoon(made, &QSlider::valueChanged); });
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
    auto *const stepper = statementView<QDoubleSpinBox>(
        tag, rect, [](QDoubleSpinBox *made) { sendsActionSoon(made, &QDoubleSpinBox::valueChanged); });
    if (stepper) {
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
    auto *const box =
        statementView<QComboBox>(tag, rect, [](QComboBox *made) { sendsActionSoon(made, &QComboBox::activated); });
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
    auto *const box = statementView<ComboBoxSC>(tag, rect, [](ComboBoxSC *made) {
        QObject::connect(made, &ComboBoxSC::chosen, made, [made] { sendControlAction(made); });
    });
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
        sendsActionSoon(made, &QDateEdit::dateChanged);
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

ComboBoxSC::ComboBoxSC(QWidget *parent) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    connect(this, &QComboBox::activated, this, &ComboBoxSC::reportSoon);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &ComboBoxSC::reportSoon);
}

// Return on the text of an item comes here more than once.
void ComboBoxSC::reportSoon()
{
    if (!std::exchange(m_isQueued, true)) {
        callSoon(this, [this] {
            m_isQueued = false;
            Q_EMIT chosen();
        });
    }
}

void ImageViewSC::setImage(const QImage &image)
{
    m_image = image;
    update();
}

void ImageViewSC::paintEvent(QPaintEvent * /*event*/)
{
    QRect place(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_image);
}

void CUI_SegmentedControl(Tag tag, const QStringList &labels, qint64 selectedIndex, const QRectF &rect)
{
    auto *const control = statementView<SegmentedControlSC>(
        tag, rect, [](SegmentedControlSC *made) { sendsActionSoon(made, &SegmentedControlSC::clicked); });
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

void ControlSetCallback(Tag tag, ControlCallback callback, void *userData)
{
    if (QWidget *const control = ControlWithTag(tag)) {
        setCuiControlCallback(control, callback);
        setCuiControlUserData(control, userData);
    }
}

void ControlSetFormat(Tag tag, const QString &characters, bool pass, quint64 length, qint64 caseOption)
{
    QWidget *const control = ControlWithTag(tag);
    if (!control) {
        return;
    }
    const auto *const box = qobject_cast<QComboBox *>(control);
    QLineEdit *const field = box && box->lineEdit() ? box->lineEdit() : viewOfClass<QLineEdit>(tag);
    if (field) {
        attachFormatter(field, characters, pass, length, caseOption);
    }
}

} // namespace tetrad
