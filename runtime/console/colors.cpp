#include <tetrad/console/console_statements.h>

namespace tetrad {

QColor ColorBlack()
{
    return QColor(Qt::black);
}

QColor ColorGreen()
{
    return QColor(0, 255, 0);
}

QColor ColorRed()
{
    return QColor(255, 0, 0);
}

QColor ColorWhite()
{
    return QColor(Qt::white);
}

} // namespace tetrad
