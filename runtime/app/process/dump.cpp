#include <tetrad/app/dump.h>

#include <tetrad/events/tag.h>

#include <QApplication>
#include <QVariant>
#include <QWidget>

#include <cstdio>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// A window's title, or the text of a label, button or field.
QString textOf(const QWidget *widget)
{
    for (const char *name : {"text", "title"}) {
        const QVariant value = widget->property(name);
        if (value.typeId() == QMetaType::QString) {
            return value.toString();
        }
    }
    return widget->isWindow() ? widget->windowTitle() : QString();
}

QString lineOf(const QWidget *widget)
{
    const QRect r = widget->geometry();
    QString line = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty()) {
        line += u" #" + widget->objectName();
    }
    if (const Tag tag = objectTag(widget)) {
        line += u" tag %1"_s.arg(tag);
    }
    line += u" (%1,%2 %3x%4)"_s.arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
    if (widget->isHidden()) {
        line += u" hidden";
    }
    if (widget->hasFocus()) {
        line += u" focus";
    }
    if (const QString text = textOf(widget); !text.isEmpty()) {
        line += u" \"" + text + u'"';
    }
    return line;
}

QString ownDump(QWidget *widget)
{
    QString own;
    if (widget->metaObject()->indexOfMethod("dump()") >= 0) {
        QMetaObject::invokeMethod(widget, "dump", Q_RETURN_ARG(QString, own));
    }
    return own;
}

void dumpInto(QString &out, QWidget *widget, qsizetype depth)
{
    const QString indent(2 * depth, u' ');
    out += indent + lineOf(widget) + u'\n';
    const QStringList own = ownDump(widget).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : own) {
        out += indent + u"  | " + line + u'\n';
    }
    for (QObject *child : widget->children()) {
        auto *view = qobject_cast<QWidget *>(child);
        if (view && !view->isWindow()) {
            dumpInto(out, view, depth + 1);
        }
    }
}

} // namespace

QString dumpViews()
{
    QString out;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        dumpInto(out, window, 0);
    }
    return out;
}

void dumpIfWanted()
{
    if (qEnvironmentVariableIsSet("TETRAD_DUMP")) {
        std::fputs(qUtf8Printable(dumpViews()), stderr);
    }
}

} // namespace tetrad
