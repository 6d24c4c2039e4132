#include <tetrad/controls/control_statements.h>

#include "runtime/controls/statements/view_statement.h"
#include "runtime/strings/saturate.h"
#include <tetrad/controls/control_target.h>
#include <tetrad/controls/segmented_control.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/strings/not_given.h>
#include <tetrad/strings/numbers.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>

namespace tetrad {

namespace {

// A button has finished its own work when it tells, and looks whether it is still there.
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

void setItems(QComboBox *box, const QStringList &items)
{
    if (!items.isEmpty()) {
        box->clear();
        box->addItems(items);
    }
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

void CUI_PopUpButton(Tag tag, const QStringList &items, qint64 selectedIndex, const QRectF &rect)
{
    auto *const box =
        statementView<QComboBox>(tag, rect, [](QComboBox *made) { sendsActionSoon(made, &QComboBox::activated); });
    if (!box) {
        return;
    }
    setItems(box, items);
    if (selectedIndex != notGiven) {
        box->setCurrentIndex(saturatedTo<int>(selectedIndex));
    }
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

QString ControlStringValue(Tag tag)
{
    const QWidget *const control = ControlWithTag(tag);
    if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
        return button->text();
    }
    if (const auto *box = qobject_cast<const QComboBox *>(control)) {
        return box->currentText();
    }
    if (const auto *label = qobject_cast<const QLabel *>(control)) {
        return label->text();
    }
    const auto *const field = qobject_cast<const QLineEdit *>(control);
    return field ? field->text() : QString();
}

void ControlSetStringValue(Tag tag, const QString &text)
{
    QWidget *const control = ControlWithTag(tag);
    if (auto *const button = qobject_cast<QAbstractButton *>(control)) {
        button->setText(text);
    } else if (auto *const box = qobject_cast<QComboBox *>(control)) {
        box->setCurrentIndex(box->findText(text));
    } else if (auto *const label = qobject_cast<QLabel *>(control)) {
        label->setText(text);
    } else if (auto *const field = qobject_cast<QLineEdit *>(control)) {
        field->setText(text);
    }
}

qint64 ControlIntegerValue(Tag tag)
{
    const QWidget *const control = ControlWithTag(tag);
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(control)) {
        return slider->value();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(control)) {
        return button->isChecked() ? 1 : 0;
    }
    if (const auto *box = qobject_cast<const QComboBox *>(control)) {
        return box->currentIndex();
    }
    if (const auto *segments = qobject_cast<const SegmentedControlSC *>(control)) {
        return segments->selectedSegment();
    }
    const auto *const field = qobject_cast<const QLineEdit *>(control);
    return field ? StringIntegerValue(field->text()) : 0;
}

void ControlSetIntegerValue(Tag tag, qint64 value)
{
    QWidget *const control = ControlWithTag(tag);
    const QSignalBlocker blocker(control);
    if (auto *const slider = qobject_cast<QAbstractSlider *>(control)) {
        slider->setValue(saturatedTo<int>(value));
    } else if (auto *const button = qobject_cast<QAbstractButton *>(control)) {
        button->setChecked(value != 0);
    } else if (auto *const box = qobject_cast<QComboBox *>(control)) {
        box->setCurrentIndex(saturatedTo<int>(value));
    } else if (auto *const segments = qobject_cast<SegmentedControlSC *>(control)) {
        segments->setSelectedSegment(saturatedTo<int>(value));
    } else if (auto *const field = qobject_cast<QLineEdit *>(control)) {
        field->setText(QString::number(value));
    }
}

void ControlSetEnabled(Tag tag, bool enabled)
{
    if (QWidget *const control = ControlWithTag(tag)) {
        control->setEnabled(enabled);
    }
}

void ControlSetCallback(Tag tag, ControlCallback callback, void *userData)
{
    if (QWidget *const control = ControlWithTag(tag)) {
        setCuiControlCallback(control, callback);
        setCuiControlUserData(control, userData);
    }
}

} // namespace tetrad
