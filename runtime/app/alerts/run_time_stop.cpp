#include <tetrad/app/run_time_stop.h>

#include "runtime/app/alerts/show_alert.h"
#include "runtime/app/process/strings_table.h"
#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>
#include <tetrad/strings/mac_roman.h>
#include <tetrad/strings/text_format.h>

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

// "?" stands for what the encoding lacks.
QByteArray macRomanOrQuestionMarks(const QString &text)
{
    if (const auto bytes = toMacRoman(text)) {
        return *bytes;
    }
    QByteArray result;
    for (const char32_t character : text.toUcs4()) {
        result += toMacRoman(QString::fromUcs4(&character, 1)).value_or("?");
    }
    return result;
}

void writeRangeError(const QString &message)
{
    const QByteArray bytes = macRomanOrQuestionMarks(message);
    std::fprintf(stderr, "Array bounds error:\n");
    std::fprintf(stderr, "%s. [Type ctrl-C if process hangs]\n", bytes.constData());
    std::fflush(stderr);
}

// There is nobody to ask, so the texts must not be lost.
[[noreturn]] void stopWithoutApplication(const QString &message, const QString &informative)
{
    std::fprintf(stderr, "%s\n%s\n", qUtf8Printable(message), qUtf8Printable(informative));
    std::fflush(stderr);
    std::abort();
}

QStringList stopButtons(bool isFatal)
{
    const QString crash = runtimeText(QT_TRANSLATE_NOOP("Runtime", "Crash"));
    if (isFatal) {
        return {runtimeText(QT_TRANSLATE_NOOP("Runtime", "Quit")), crash};
    }
    return {runtimeText(QT_TRANSLATE_NOOP("Runtime", "Stop")), runtimeText(QT_TRANSLATE_NOOP("Runtime", "Continue")),
            crash};
}

} // namespace

quint32 ChkBounds(quint32 index, quint32 bound, quint32 line, const QString &file)
{
    if (index > bound) {
        ZRReportRangeError(static_cast<qint32>(index), line, static_cast<qint32>(bound), file);
    }
    return index;
}

void ZRReportRangeError(qint32 index, quint32 line, qint32 bound, const QString &file)
{
    const QString of = runtimeText(QT_TRANSLATE_NOOP("Runtime", " of "));
    const QString indexIs = runtimeText(QT_TRANSLATE_NOOP("Runtime", "Index "));
    const QString outside = runtimeText(QT_TRANSLATE_NOOP("Runtime", " is outside the DIM range 0 to"));
    const QString message =
        StringWithFormat(u"%@%@%@\n%@%d%@ %d"_s, ZRCreateLineNumberMsg(line), of, file, indexIs, index, outside, bound);
    writeRangeError(message);
    ZRFullStop(runtimeText(QT_TRANSLATE_NOOP("Runtime", "Array bounds error")), message, 1);
    std::abort(); // never reached: a fatal stop does not return
}

QString ZRCreateLineNumberMsg(quint32 line)
{
    return StringWithFormat(u"%@ %d"_s, runtimeText(QT_TRANSLATE_NOOP("Runtime", "At line")), line);
}

void ZRFullStop(const QString &message, const QString &informative, qint32 fatal)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        stopWithoutApplication(message, informative);
    }
    const bool isFatal = (fatal & 0xff) != 0;
    const qint64 style = isFatal ? alertStyleCritical : alertStyleWarning;
    const qint64 result = runAlertWithoutTag(style, message, informative, stopButtons(isFatal));
    if (result == alertFirstButton) {
        AppTerminate();
    }
    // A fatal stop aborts also when the termination was refused. That is deliberate: the program must
    // not go on with what it could not do.
    if (isFatal || result == alertThirdButton) {
        std::abort();
    }
}

} // namespace tetrad
