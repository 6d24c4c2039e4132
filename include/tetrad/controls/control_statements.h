#pragma once

#include <tetrad/events/tag.h>

#include <QObject>
#include <QString>
#include <QStringList>

namespace tetrad {

/// What a control's own callback is called with: the control's tag, its window's tag, and the user
/// data that was set beside it. The result goes back to whoever asked.
using ControlCallback = qint64 (*)(Tag tag, Tag wndTag, void *userData);

/// A control's callback and user data (dynamic properties "callbackValue" and "userDataValue"), both null
/// when never set. The user data is the program's own and is never looked at.
ControlCallback cuiControlCallback(const QObject *control);
void setCuiControlCallback(QObject *control, ControlCallback callback);
void *cuiControlUserData(const QObject *control);
void setCuiControlUserData(QObject *control, void *userData);

/// The statements that make, change, show (tag > 0) and hide (tag < 0) controls in the output window. A null
/// text and an empty rectangle leave what is there. Rectangles are in pixels from the top left of
/// the view that the control lies in. What the user does to a control goes to the shared control target.
/// Each tells the user about, and does nothing more with, a tag that a view of another class has.

void CUI_Button(Tag tag, const QString &title, const QRectF &rect);
void CUI_CheckBox(Tag tag, const QString &title, const QRectF &rect);
/// Its action is sent on Return.
void CUI_TextField(Tag tag, const QString &text, const QRectF &rect);
/// A text that the user cannot change.
void CUI_TextLabel(Tag tag, const QString &text, const QRectF &rect);
/// From minimum to maximum; a reversed range counts from maximum. The value stays or moves into the range. A
/// rectangle higher than wide makes it vertical.
void CUI_Slider(Tag tag, qint64 value, qint64 minimum, qint64 maximum, const QRectF &rect);
/// The items replace those there; a null list leaves them.
void CUI_PopUpButton(Tag tag, const QStringList &items, qint64 selectedIndex, const QRectF &rect);
void CUI_SegmentedControl(Tag tag, const QStringList &labels, qint64 selectedIndex, const QRectF &rect);

/// What a control says: a button's or check box's title, a field's text. Neither reports an event. Setting it
/// on a control that says nothing does nothing; asking for it gives a null text.
QString ControlStringValue(Tag tag);
void ControlSetStringValue(Tag tag, const QString &text);

/// What a control stands at: a slider's value, 1 or 0 of a check box, the 0-based index selected in a pop-up button
/// or segmented control (-1 for none), the number that a field's text begins with. Setting it reports
/// no event.
qint64 ControlIntegerValue(Tag tag);
void ControlSetIntegerValue(Tag tag, qint64 value);

void ControlSetEnabled(Tag tag, bool enabled);

/// The control's own callback in place of the dialog function, with the user data it is called with; null takes
/// it out again.
void ControlSetCallback(Tag tag, ControlCallback callback, void *userData);

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ControlCallback)
