#include <tetrad/controls/control_statements.h>

#include <QVariant>

namespace tetrad {

namespace {

constexpr char callbackKey[] = "callbackValue";
constexpr char userDataKey[] = "userDataValue";

} // namespace

ControlCallback cuiControlCallback(const QObject *control)
{
    return control->property(callbackKey).value<ControlCallback>();
}

void setCuiControlCallback(QObject *control, ControlCallback callback)
{
    control->setProperty(callbackKey, QVariant::fromValue(callback));
}

void *cuiControlUserData(const QObject *control)
{
    return control->property(userDataKey).value<void *>();
}

void setCuiControlUserData(QObject *control, void *userData)
{
    control->setProperty(userDataKey, QVariant::fromValue(userData));
}

} // namespace tetrad
