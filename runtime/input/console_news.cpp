#include "runtime/input/console_news.h"

namespace tetrad {

QWidgetList consolesIn(const QWidget *content)
{
    auto views = content ? content->findChildren<QWidget *>() : QWidgetList();
    views.removeIf([](const QWidget *view) { return view->metaObject()->indexOfMethod("takeNewText()") < 0; });
    return views;
}

QString newConsoleText(const QWidget *content)
{
    QString text;
    const auto consoles = consolesIn(content);
    for (QWidget *const console : consoles) {
        QString gained;
        QMetaObject::invokeMethod(console, "takeNewText", Qt::DirectConnection, Q_RETURN_ARG(QString, gained));
        text += gained;
    }
    return text;
}

} // namespace tetrad
