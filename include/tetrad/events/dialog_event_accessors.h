#pragma once

#include <tetrad/events/dialog_event.h>

namespace tetrad {

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

} // namespace tetrad
