#pragma once

// Implemented in runtime/controls/events/dialog_event.cpp

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

#include <type_traits>

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

namespace detail {

template <auto field, typename Value = std::remove_cvref_t<decltype(CUI_DialogEventObj()->*field)>>
Value dialogEventValue()
{
    return CUI_DialogEventObj()->*field;
}

template <auto field, typename Value = std::remove_cvref_t<decltype(CUI_DialogEventObj()->*field)>>
void setDialogEventValue(Value value)
{
    CUI_DialogEventObj()->*field = value;
}

} // namespace detail

/// The functions below each read or write one field of the shared record and do nothing else: `bool DialogEventBool()`,
/// `void DialogEventSetBool(bool value)`. A view, menu or pasteboard is a `QObject *`.

inline const auto DialogEventBool = detail::dialogEventValue<&CUI_DialogEvent::boolVal>;
inline const auto DialogEventSetBool = detail::setDialogEventValue<&CUI_DialogEvent::boolVal>;
inline const auto DialogEventLong = detail::dialogEventValue<&CUI_DialogEvent::longVal>;
inline const auto DialogEventSetLong = detail::setDialogEventValue<&CUI_DialogEvent::longVal>;
inline const auto DialogEventFloat = detail::dialogEventValue<&CUI_DialogEvent::floatVal>;
inline const auto DialogEventSetFloat = detail::setDialogEventValue<&CUI_DialogEvent::floatVal>;
inline const auto DialogEventDouble = detail::dialogEventValue<&CUI_DialogEvent::doubleVal>;
inline const auto DialogEventSetDouble = detail::setDialogEventValue<&CUI_DialogEvent::doubleVal>;

inline const auto DialogEventRect = detail::dialogEventValue<&CUI_DialogEvent::rectVal>;
void DialogEventSetNSRect(double x, double y, double width, double height);
void DialogEventSetNSPoint(double x, double y);
inline const auto DialogEventNSSize = detail::dialogEventValue<&CUI_DialogEvent::sizeVal>;
void DialogEventSetNSSize(double width, double height);
void DialogEventSetNSRange(quint64 location, quint64 length);

inline const auto DialogEventNSArray = detail::dialogEventValue<&CUI_DialogEvent::arrayObj>;
inline const auto DialogEventNSURL = detail::dialogEventValue<&CUI_DialogEvent::urlObj>;
inline const auto DialogEventSetOtherNSURL = detail::setDialogEventValue<&CUI_DialogEvent::otherUrlObj>;
inline const auto DialogEventColor = detail::dialogEventValue<&CUI_DialogEvent::colorObj>;
inline const auto DialogEventSetColor = detail::setDialogEventValue<&CUI_DialogEvent::colorObj>;
inline const auto DialogEventNSObject = detail::dialogEventValue<&CUI_DialogEvent::object>;
inline const auto DialogEventSetNSObject = detail::setDialogEventValue<&CUI_DialogEvent::object>;

inline const auto DialogEventNSMenu = detail::dialogEventValue<&CUI_DialogEvent::menuObj, QObject *>;
inline const auto DialogEventSetNSMenu = detail::setDialogEventValue<&CUI_DialogEvent::menuObj, QObject *>;
/// Another name for DialogEventSetNSMenu.
inline const auto DialogEventSetMenu = DialogEventSetNSMenu;
inline const auto DialogEventView = detail::dialogEventValue<&CUI_DialogEvent::viewObj, QObject *>;
inline const auto DialogEventSetView = detail::setDialogEventValue<&CUI_DialogEvent::viewObj, QObject *>;
inline const auto DialogEventSetPasteboard = detail::setDialogEventValue<&CUI_DialogEvent::pasteboardObj, QObject *>;

inline const auto DialogEventSetContext = detail::setDialogEventValue<&CUI_DialogEvent::context>;
inline const auto DialogEventSetDraggingInfo = detail::setDialogEventValue<&CUI_DialogEvent::dragInfo>;
inline const auto DialogEventTintConfiguration = detail::dialogEventValue<&CUI_DialogEvent::tintConfigurationObj>;
inline const auto DialogEventSetTintConfiguration = detail::setDialogEventValue<&CUI_DialogEvent::tintConfigurationObj>;
inline const auto DialogEventSetTableColumn = detail::setDialogEventValue<&CUI_DialogEvent::tableColumnObj>;

/// The platform event whose callback is running, or null. Not owned, and valid only until that
/// callback returns.
QEvent *CUI_EventEvent();
void CUI_EventSetEvent(QEvent *event);

} // namespace tetrad
