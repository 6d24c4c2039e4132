#include "runtime/controls/lookup/typed_lookup.h"

#include "runtime/app/process/strings_table.h"
#include "runtime/app/windows/output_window.h"
#include "runtime/controls/lookup/class_names.h"
#include "runtime/controls/lookup/tag_alerts.h"
#include "runtime/controls/lookup/view_tag.h"
#include <tetrad/controls/view_lookup.h>

namespace tetrad {

namespace {

QString ownName(const QMetaObject &platformClass)
{
    return QString::fromLatin1(platformClass.className()).section(u':', -1);
}

// The names of the class found and of the class wanted. Where the vocabulary has one word for both, as it has for a
// label and a field, they are this platform's.
std::pair<QString, QString> classNames(const QObject *found, const WantedClass &wanted)
{
    const QString foundName = viewClassName(found);
    const QString wantedName = wanted.platformClass ? viewClassName(*wanted.platformClass) : wanted.name;
    if (foundName == wantedName) {
        return {ownName(*found->metaObject()), ownName(*wanted.platformClass)};
    }
    return {foundName, wantedName};
}

QWidget *validatedObject(QObject *object, const WantedClass &wanted)
{
    auto *const view = qobject_cast<QWidget *>(object);
    if (view && wanted.includes(view)) {
        return view;
    }
    const auto [found, name] = classNames(object, wanted);
    showClassError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "View %1 cannot respond to %2 messages."))
                       .arg(objectDescription(object, found), name));
    return nullptr;
}

} // namespace

bool WantedClass::includes(const QObject *object) const
{
    return platformClass ? platformClass->cast(object) != nullptr : isKindOfViewClass(object, name);
}

QWidget *validatedView(Tag tagOrView, const WantedClass &wanted)
{
    if (isObjectAddress(tagOrView)) {
        return validatedObject(objectFromTag(tagOrView), wanted);
    }
    const QWidget *const contentView = searchedContentView();
    if (!contentView) {
        showNoWindowsError();
        return nullptr;
    }
    const QString wndTag = QString::number(CUI_ViewWindowTag(contentView));
    QWidget *const view = CUI_ViewWithTag(tagOrView);
    if (!view) {
        showTagError(runtimeText(QT_TRANSLATE_NOOP("Runtime", "Can't find view %1 in window %2."))
                         .arg(QString::number(tagOrView), wndTag));
        return nullptr;
    }
    if (!wanted.includes(view)) {
        const auto [found, name] = classNames(view, wanted);
        const char *const text =
            QT_TRANSLATE_NOOP("Runtime", "View %1 (%2), in window %3, cannot respond to %4 messages.");
        showClassError(runtimeText(text).arg(QString::number(tagOrView), found, wndTag, name));
        return nullptr;
    }
    return view;
}

} // namespace tetrad
