#include <tetrad/events/dialog_event.h>

#include <utility>

namespace tetrad {

namespace {

DialogFunction sCUI_OnDialogFunction = nullptr;
QEvent *currentEvent = nullptr;

} // namespace

void CUI_DialogEvent::releaseObjects()
{
    errorObj = ErrorObject();
    arrayObj.clear();
    otherUrlObj.clear();
    dragInfo.clear();
    pbTypes.clear();
    stringObj = QString();
    fontObj = QFont();
    colorObj = QColor();
    viewObj.clear();
    object.clear();
    menuObj.clear();
    pasteboardObj.clear();
    URLSessionTaskObj.clear();
    URLSessionDataTaskObj.clear();
    dataObj = QByteArray();
    tintConfigurationObj.clear();
    tableColumnObj.clear();
}

CUI_DialogEvent *CUI_DialogEventObj()
{
    // Deliberately never freed: events may still arrive while static objects are being destroyed.
    static auto *const record = new CUI_DialogEvent;
    return record;
}

DialogFunction CUI_SetOnDialogFunction(DialogFunction function)
{
    return std::exchange(sCUI_OnDialogFunction, function);
}

DialogFunction CUI_OnDialogFunction()
{
    return sCUI_OnDialogFunction;
}

qint64 CallUserDefinedOnDialogFunction(qint64 event, Tag tag, Tag wndTag, qint64 obj)
{
    return sCUI_OnDialogFunction ? sCUI_OnDialogFunction(event, tag, wndTag, obj) : 0;
}

void DialogEventSetNSRect(double x, double y, double width, double height)
{
    CUI_DialogEventObj()->rectVal = QRectF(x, y, width, height);
}

void DialogEventSetNSPoint(double x, double y)
{
    CUI_DialogEventObj()->pointVal = QPointF(x, y);
}

void DialogEventSetNSSize(double width, double height)
{
    CUI_DialogEventObj()->sizeVal = QSizeF(width, height);
}

void DialogEventSetNSRange(quint64 location, quint64 length)
{
    CUI_DialogEventObj()->rangeVal = {location, length};
}

QEvent *CUI_EventEvent()
{
    return currentEvent;
}

void CUI_EventSetEvent(QEvent *event)
{
    currentEvent = event;
}

} // namespace tetrad
