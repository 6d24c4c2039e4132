#include <tetrad/controls/control_statements.h>

#include "runtime/app/menus/mnemonic.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/strings/saturate.h"
#include <tetrad/controls/token_field.h>
#include <tetrad/controls/view_lookup.h>
#include <tetrad/strings/numbers.h>

#include <QAbstractButton>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>

namespace tetrad {

namespace {

// The properties that hold a control's text, number and items; null without one.
struct ValueProperties
{
    const QMetaObject *controlClass = nullptr;
    const char *text = nullptr;
    const char *number = nullptr;
    const char *items = nullptr;
};

// A derived class comes before its base.
const ValueProperties valueTable[] = {
    {&QAbstractButton::staticMetaObject, "text", "checked"},
    {&QComboBox::staticMetaObject, "currentText", "currentIndex"},
    {&QLabel::staticMetaObject, "text", "text"},
    {&TokenFieldSC::staticMetaObject, "tokenText", "tokenText", "tokens"},
    {&QLineEdit::staticMetaObject, "text", "text"},
    {&QAbstractSlider::staticMetaObject, nullptr, "value"},
    {&QDoubleSpinBox::staticMetaObject, "value", "value"},
    {&QProgressBar::staticMetaObject, "text", "value"},
    {&QDateEdit::staticMetaObject, "date", nullptr},
    {&SegmentedControlSC::staticMetaObject, nullptr, "selectedSegment", "labels"},
};

using Property = const char *ValueProperties::*;

// A null name when there is none.
const char *propertyName(const QObject *control, Property property)
{
    for (const ValueProperties &row : valueTable) {
        if (control && row.controlClass->cast(control)) {
            return row.*property;
        }
    }
    return nullptr;
}

// A progress indicator is a view with a value, though it is no control.
QWidget *viewWithValue(Tag tag)
{
    auto *const bar = qobject_cast<QProgressBar *>(CUI_ViewWithTag(tag));
    return bar ? bar : ControlWithTag(tag);
}

QVariant value(const QWidget *control, Property property)
{
    const char *const name = propertyName(control, property);
    return name ? control->property(name) : QVariant();
}

void setValue(QWidget *control, Property property, const QVariant &value)
{
    if (const char *const name = propertyName(control, property)) {
        const QSignalBlocker blocker(control);
        // A conversion to int would wrap.
        const bool isInt = control->property(name).typeId() == QMetaType::Int;
        control->setProperty(name, isInt ? saturatedTo<int>(value.toDouble()) : value);
    }
}

} // namespace

QString ControlStringValue(Tag tag)
{
    const QWidget *const control = viewWithValue(tag);
    const QString text = value(control, &ValueProperties::text).toString();
    return qobject_cast<const QAbstractButton *>(control) ? unescapedMnemonics(text) : text;
}

void ControlSetStringValue(Tag tag, const QString &text)
{
    QWidget *const control = viewWithValue(tag);
    const bool isButton = qobject_cast<QAbstractButton *>(control);
    setValue(control, &ValueProperties::text, isButton ? escapedMnemonics(text) : text);
}

double ControlDoubleValue(Tag tag)
{
    const QVariant number = value(viewWithValue(tag), &ValueProperties::number);
    return number.typeId() == QMetaType::QString ? StringDoubleValue(number.toString()) : number.toDouble();
}

void ControlSetDoubleValue(Tag tag, double value)
{
    setValue(viewWithValue(tag), &ValueProperties::number, value);
}

qint64 ControlIntegerValue(Tag tag)
{
    const QVariant number = value(viewWithValue(tag), &ValueProperties::number);
    return number.typeId() == QMetaType::QString ? StringIntegerValue(number.toString())
                                                 : saturatedTo<qint64>(number.toDouble());
}

void ControlSetIntegerValue(Tag tag, qint64 value)
{
    setValue(viewWithValue(tag), &ValueProperties::number, value);
}

QStringList ControlItems(Tag tag)
{
    QStringList items = value(viewWithValue(tag), &ValueProperties::items).toStringList();
    const auto *const box = qobject_cast<QComboBox *>(CUI_ViewWithTag(tag));
    for (int index = 0; box && index < box->count(); ++index) {
        items << box->itemText(index);
    }
    return items;
}

void ControlSetItems(Tag tag, const QStringList &items)
{
    auto *const box = qobject_cast<QComboBox *>(CUI_ViewWithTag(tag));
    if (!box) {
        setValue(viewWithValue(tag), &ValueProperties::items, items);
        return;
    }
    const QSignalBlocker blocker(box);
    box->clear();
    box->addItems(items);
    box->setCurrentIndex(-1);
}

} // namespace tetrad
