#pragma once

#include <QString>

class QLineEdit;

namespace tetrad {

/// Gives a line edit a new formatter in place of the one it has, and lifts the line edit's own length limit.
void attachFormatter(QLineEdit *field, const QString &characters, bool pass, quint64 length, qint64 caseOption);

} // namespace tetrad
