#pragma once

// Implemented in runtime/controls/statements/control_statements.cpp and control_values.cpp, and
// runtime/controls/dispatch/control_target.cpp.

#include <tetrad/events/tag.h>

#include <QComboBox>
#include <QDate>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QWidget>

class QButtonGroup;

namespace tetrad {

/// A row of buttons of which at most one is down. It counts as one control: lookups by tag never look into it.
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

/// What a control's own callback is called with: the control's tag, its window's tag, and the user
/// data that was set with it.
using ControlCallback = qint64 (*)(Tag tag, Tag wndTag, void *userData);

/// A control's callback and user data (dynamic properties "callbackValue" and "userDataValue"), both null
/// when never set. The user data is passed through.
ControlCallback cuiControlCallback(const QObject *control);
void setCuiControlCallback(QObject *control, ControlCallback callback);
void *cuiControlUserData(const QObject *control);
void setCuiControlUserData(QObject *control, void *userData);

/// The statements that make, change, show (tag > 0) and hide (tag < 0) controls in the output window. A null
/// text and an empty rectangle leave what is there. Rectangles are in pixels from the top left of
/// the view that the control lies in. What the user does to a control goes to the shared control target.
/// A tag that a view of another class has shows an alert.

void CUI_Button(Tag tag, const QString &title, const QRectF &rect);
void CUI_CheckBox(Tag tag, const QString &title, const QRectF &rect);
/// At most one of the radio buttons in the same view is on.
void CUI_RadioButton(Tag tag, const QString &title, const QRectF &rect);
/// Its action is sent on Return.
void CUI_TextField(Tag tag, const QString &text, const QRectF &rect);
/// A text that the user cannot change.
void CUI_TextLabel(Tag tag, const QString &text, const QRectF &rect);
/// From minimum to maximum; a reversed range counts from maximum. The value stays or moves into the range. A
/// rectangle higher than wide makes it vertical.
void CUI_Slider(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect);
/// A number with arrows that change it by `increment`, which also decides how many decimals are shown.
void CUI_Stepper(Tag tag, double value, double minimum, double maximum, double increment, const QRectF &rect);
/// How much of something is done. Equal limits mean that it is unknown.
void CUI_ProgressIndicator(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect);
/// The items replace those there; an empty list leaves them (see ControlSetItems).
void CUI_PopUpButton(Tag tag, const QStringList &items, qint64 selectedIndex, const QRectF &rect);
/// A field with items to choose from. Its action is sent when one is chosen and on Return.
void CUI_ComboBox(Tag tag, const QString &text, const QStringList &items, const QRectF &rect);
void CUI_SegmentedControl(Tag tag, const QStringList &labels, qint64 selectedIndex, const QRectF &rect);
/// A date with a calendar to choose from. An invalid date leaves the date, which is today's at first.
void CUI_DateField(Tag tag, const QDate &date, const QRectF &rect);
/// A picture, drawn as large as fits without distorting it. A null picture leaves the one there.
void CUI_ImageView(Tag tag, const QImage &image, const QRectF &rect);

/// A control's text: a button's title, a field's or label's text, the item selected, a date as "2026-11-22". Setting it
/// reports no event, and does nothing to a control without a text, whose own is null.
QString ControlStringValue(Tag tag);
void ControlSetStringValue(Tag tag, const QString &text);

/// A control's number: a slider's, stepper's or progress indicator's value, 1 or 0 of a check box or radio button, the
/// 0-based index selected in a pop-up button, combo box or segmented control (-1 without one), the number that a
/// field's or label's text begins with. Setting it reports no event. A fraction is dropped by ControlIntegerValue.
qint64 ControlIntegerValue(Tag tag);
void ControlSetIntegerValue(Tag tag, qint64 value);
double ControlDoubleValue(Tag tag);
void ControlSetDoubleValue(Tag tag, double value);

/// The items of a pop-up button or combo box, the labels of a segmented control, the words of a token field; empty for
/// every other control. Setting them selects none and reports no event.
QStringList ControlItems(Tag tag);
void ControlSetItems(Tag tag, const QStringList &items);

/// Of every view, not only of controls. A view with the keyboard focus gets the keys.
void ControlSetEnabled(Tag tag, bool enabled);
void ViewSetHidden(Tag tag, bool hidden);
void ViewSetFocus(Tag tag);
/// What assistive technology calls a view that has no text of its own.
void ViewSetAccessibleName(Tag tag, const QString &name);

/// Filters what the user may enter into a text field, combo box or token field: `pass` says whether `characters` are
/// allowed or refused; length: in characters, 0 for no limit; caseOption as in ZRInput. It replaces the
/// filter that is there. Another control shows an alert.
void ControlSetFormat(Tag tag, const QString &characters, bool pass, quint64 length, qint64 caseOption);

/// The control's own callback in place of the dialog function, with the user data it is called with; null removes
/// the callback.
void ControlSetCallback(Tag tag, ControlCallback callback, void *userData);

/// A combo box: a class of its own, so that a pop-up button is not taken for one.
class ComboBoxSC : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBoxSC(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user chose an item or pressed Return; sent once control is back in the event loop.
    void chosen();
};

class ImageViewSC : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setImage(const QImage &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
};

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ControlCallback)
