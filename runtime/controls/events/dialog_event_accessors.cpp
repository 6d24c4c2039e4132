#include <tetrad/events/dialog_event.h>

namespace tetrad {

bool DialogEventBool()
{
    return CUI_DialogEventObj()->boolVal;
}

void DialogEventSetBool(bool value)
{
    CUI_DialogEventObj()->boolVal = value;
}

qint64 DialogEventLong()
{
    return CUI_DialogEventObj()->longVal;
}

void DialogEventSetLong(qint64 value)
{
    CUI_DialogEventObj()->longVal = value;
}

float DialogEventFloat()
{
    return CUI_DialogEventObj()->floatVal;
}

void DialogEventSetFloat(float value)
{
    CUI_DialogEventObj()->floatVal = value;
}

double DialogEventDouble()
{
    return CUI_DialogEventObj()->doubleVal;
}

void DialogEventSetDouble(double value)
{
    CUI_DialogEventObj()->doubleVal = value;
}

QRectF DialogEventRect()
{
    return CUI_DialogEventObj()->rectVal;
}

void DialogEventSetNSRect(double x, double y, double width, double height)
{
    CUI_DialogEventObj()->rectVal = QRectF(x, y, width, height);
}

void DialogEventSetNSPoint(double x, double y)
{
    CUI_DialogEventObj()->pointVal = QPointF(x, y);
}

QSizeF DialogEventNSSize()
{
    return CUI_DialogEventObj()->sizeVal;
}

void DialogEventSetNSSize(double width, double height)
{
    CUI_DialogEventObj()->sizeVal = QSizeF(width, height);
}

void DialogEventSetNSRange(quint64 location, quint64 length)
{
    CUI_DialogEventObj()->rangeVal = {location, length};
}

QVariantList DialogEventNSArray()
{
    return CUI_DialogEventObj()->arrayObj;
}

QUrl DialogEventNSURL()
{
    return CUI_DialogEventObj()->urlObj;
}

void DialogEventSetOtherNSURL(const QUrl &url)
{
    CUI_DialogEventObj()->otherUrlObj = url;
}

QColor DialogEventColor()
{
    return CUI_DialogEventObj()->colorObj;
}

void DialogEventSetColor(const QColor &color)
{
    CUI_DialogEventObj()->colorObj = color;
}

QVariant DialogEventNSObject()
{
    return CUI_DialogEventObj()->object;
}

void DialogEventSetNSObject(const QVariant &object)
{
    CUI_DialogEventObj()->object = object;
}

QObject *DialogEventNSMenu()
{
    return CUI_DialogEventObj()->menuObj;
}

void DialogEventSetNSMenu(QObject *menu)
{
    CUI_DialogEventObj()->menuObj = menu;
}

void DialogEventSetMenu(QObject *menu)
{
    CUI_DialogEventObj()->menuObj = menu;
}

QObject *DialogEventView()
{
    return CUI_DialogEventObj()->viewObj;
}

void DialogEventSetView(QObject *view)
{
    CUI_DialogEventObj()->viewObj = view;
}

void DialogEventSetPasteboard(QObject *pasteboard)
{
    CUI_DialogEventObj()->pasteboardObj = pasteboard;
}

void DialogEventSetContext(void *context)
{
    CUI_DialogEventObj()->context = context;
}

void DialogEventSetDraggingInfo(const QVariant &info)
{
    CUI_DialogEventObj()->dragInfo = info;
}

QVariant DialogEventTintConfiguration()
{
    return CUI_DialogEventObj()->tintConfigurationObj;
}

void DialogEventSetTintConfiguration(const QVariant &configuration)
{
    CUI_DialogEventObj()->tintConfigurationObj = configuration;
}

void DialogEventSetTableColumn(const QVariant &column)
{
    CUI_DialogEventObj()->tableColumnObj = column;
}

} // namespace tetrad
