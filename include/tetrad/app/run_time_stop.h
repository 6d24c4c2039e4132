#pragma once

// Implemented in runtime/app/alerts/run_time_stop.cpp

#include <QString>

namespace tetrad {

/// Returns the index. One above the bound is first reported as a range error, which is fatal. The
/// comparison is unsigned, so a negative index always reports.
quint32 ChkBounds(quint32 index, quint32 bound, quint32 line, const QString &file);

/// Writes the range error to standard error and stops fatally; does not return.
[[noreturn]] void ZRReportRangeError(qint32 index, quint32 line, qint32 bound, const QString &file);

/// "At line 128", translated.
QString ZRCreateLineNumberMsg(quint32 line);

/// The stop alert. Only the low 8 bits of `fatal` count. Fatal: "Quit" or "Crash", does not return.
/// Otherwise "Stop", "Continue" or "Crash", and returns when the user continues or when the
/// termination was refused. Without an application object there is nobody to ask: the texts go to
/// standard error and the process aborts, fatal or not.
void ZRFullStop(const QString &message, const QString &informative, qint32 fatal);

} // namespace tetrad
