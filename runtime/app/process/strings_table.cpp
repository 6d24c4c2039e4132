#include "runtime/app/process/strings_table.h"

#include <QCoreApplication>

namespace tetrad {

QString runtimeText(const char *english)
{
    return QCoreApplication::translate("Runtime", english);
}

} // namespace tetrad
