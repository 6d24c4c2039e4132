#pragma once

#include <tetrad/events/tag.h>
#include <tetrad/strings/error_object.h>

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QSizeF>
#include <QUrl>
#include <QVariantList>

class QEvent;
class QMenu;

namespace tetrad {

/// A run of units: where it starts and how many there are.
struct EventRange
{
    quint64 location = 0;
    quint64 length = 0;
};

/// The values of the event now being dispatched that do not fit into the dialog function's four
/// arguments. The runtime fills the fields an event defines, calls the function, and reads the
/// answer back from the same fields; all other fields keep what the last event left in them.
///
/// Objects are not owned: a window system object named here may be deleted by the callback, and the
/// field is null from then on.
class CUI_DialogEvent
{
public:
    bool boolVal = false;
    float floatVal = 0;
    qint64 longVal = 0;
    double doubleVal = 0;
    ErrorObject errorObj;
    Tag viewTag = 0;
    QVariantList arrayObj;
    QUrl urlObj;
    QUrl otherUrlObj;
    QVariant dragInfo;
    QStringList pbTypes;
    QString stringObj;
    QFont fontObj;
    QColor colorObj;
    QPointer<QObject> viewObj;
    QVariant object;
    QPointer<QObject> menuObj;
    QPointer<QObject> pasteboardObj;
    void *context = nullptr;
    void *cgContextObj = nullptr;
    QVariant caAction;
    QVariant URLSessionTaskObj;
    QVariant URLSessionDataTaskObj;
    QByteArray dataObj;
    QVariant tintConfigurationObj;
    QVariant tableColumnObj;
    QPointF pointVal;
    QSizeF sizeVal;
    EventRange rangeVal;
    QRectF rectVal;

    /// Lets go of the object fields, first to last. Deliberately not of urlObj and caAction: what a program
    /// left there is still there afterwards, and programs rely on it.
    void releaseObjects();
};

/// The one shared record; it lives from first use to the end of the program.
CUI_DialogEvent *CUI_DialogEventObj();

/// The user's one event function: event code, tag of the object concerned, tag of its window, and
/// one object (its address, see tagFromObject) or number. The result is passed through.
using DialogFunction = qint64 (*)(qint64 event, Tag tag, Tag wndTag, qint64 obj);

/// Installs the dialog function; null takes it out again. Returns the one installed before.
DialogFunction CUI_SetOnDialogFunction(DialogFunction function);

/// The installed dialog function, or null.
DialogFunction CUI_OnDialogFunction();

/// Calls the dialog function and returns its result; 0 without a call when none is installed.
qint64 CallUserDefinedOnDialogFunction(qint64 event, Tag tag, Tag wndTag, qint64 obj);

/// Each reads or writes one field of the shared record (see CUI_DialogEventObj) and does nothing else. Those that
/// set a rectangle, point, size or range take its parts one by one.

bool DialogEventBool();
void DialogEventSetBool(bool value);
qint64 DialogEventLong();
void DialogEventSetLong(qint64 value);
float DialogEventFloat();
void DialogEventSetFloat(float value);
double DialogEventDouble();
void DialogEventSetDouble(double value);

QRectF DialogEventRect();
void DialogEventSetNSRect(double x, double y, double width, double height);
void DialogEventSetNSPoint(double x, double y);
QSizeF DialogEventNSSize();
void DialogEventSetNSSize(double width, double height);
void DialogEventSetNSRange(quint64 location, quint64 length);

QVariantList DialogEventNSArray();
QUrl DialogEventNSURL();
void DialogEventSetOtherNSURL(const QUrl &url);
QColor DialogEventColor();
void DialogEventSetColor(const QColor &color);
QVariant DialogEventNSObject();
void DialogEventSetNSObject(const QVariant &object);

QObject *DialogEventNSMenu();
void DialogEventSetNSMenu(QObject *menu);
/// Another name for DialogEventSetNSMenu.
void DialogEventSetMenu(QObject *menu);
QObject *DialogEventView();
void DialogEventSetView(QObject *view);
void DialogEventSetPasteboard(QObject *pasteboard);

void DialogEventSetContext(void *context);
void DialogEventSetDraggingInfo(const QVariant &info);
QVariant DialogEventTintConfiguration();
void DialogEventSetTintConfiguration(const QVariant &configuration);
void DialogEventSetTableColumn(const QVariant &column);

/// The platform event whose callback is running, or null. Not owned, and valid only until that
/// callback returns.
QEvent *CUI_EventEvent();
void CUI_EventSetEvent(QEvent *event);

} // namespace tetrad
