#include <tetrad/app/application.h>

#include <utility>

namespace tetrad {

namespace {

AppEventFunction sCUI_OnAppEventFunction = nullptr;

} // namespace

AppEventFunction CUI_SetOnAppEventFunction(AppEventFunction function)
{
    return std::exchange(sCUI_OnAppEventFunction, function);
}

AppEventFunction CUI_OnAppEventFunction()
{
    return sCUI_OnAppEventFunction;
}

QVariant CallUserDefinedOnAppEventFunction(qint64 event, const QVariant &object)
{
    return sCUI_OnAppEventFunction ? sCUI_OnAppEventFunction(event, object) : QVariant();
}

} // namespace tetrad
