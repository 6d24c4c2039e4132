#include "runtime/controls/lookup/tag_lookup.h"

#include "runtime/app/windows/output_window.h"
#include "runtime/controls/lookup/class_names.h"
#include <tetrad/controls/view_lookup.h>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *classError = QT_TRANSLATE_NOOP("Runtime", "Class error.");

// A class of the vocabulary or, with the vocabulary's name for it, one of this platform.
struct WantedClass
{
    QString name;
    const QMetaObject *platformClass = nullptr;

    bool includes(const QObject *object) const
    {
        return platformClass ? platformClass->cast(object) != nullptr : isKindOfViewClass(object, name);
    }
};

QString ownName(const QMetaObject *platformClass)
{
    return QString::fromLatin1(platformClass->className()).section(u':', -1);
}

// The names of the class found and of the class wanted. Where the vocabulary has one word for both, as it has for a
// label and a field, they are this platform's.
std::pair<QString, QString> classNames(const QObject *found, const WantedClass &wanted)
{
    const QString foundName = viewClassName(*found->metaObject());
    if (foundName == wanted.name && wanted.platformClass) {
        return {ownName(found->metaObject()), ownName(wanted.platformClass)};
    }
    return {foundName, wanted.name};
}

QWidget *validatedObject(QObject *object, const WantedClass &wanted)
{
    auto *const view = qobject_cast<QWidget *>(object);
    if (view && wanted.includes(view)) {
        return view;
    }
    const auto [found, name] = classNames(object, wanted);
    showStatementAlert(classError, QT_TRANSLATE_NOOP("Runtime", "View %1 cannot respond to %2 messages."),
                       u"<%1: 0x%2>"_s.arg(found, QString::number(tagFromObject(object), 16)), name);
    return nullptr;
}

QWidget *validated(Tag tagOrView, const WantedClass &wanted)
{
    if (isObjectAddress(tagOrView)) {
        return validatedObject(objectFromTag(tagOrView), wanted);
    }
    const QWidget *const contentView = searchedContentView();
    if (!contentView) {
        showNoWindowsError();
        return nullptr;
    }
    QWidget *const view = CUI_ViewWithTag(tagOrView);
    if (view && wanted.includes(view)) {
        return view;
    }
    const Tag wndTag = CUI_ViewWindowTag(contentView);
    if (view) {
        const auto [found, name] = classNames(view, wanted);
        showStatementAlert(classError,
                           QT_TRANSLATE_NOOP("Runtime", "View %1 (%2), in window %3, cannot respond to %4 messages."),
                           tagOrView, found, wndTag, name);
    } else {
        showTagError(QT_TRANSLATE_NOOP("Runtime", "Can't find view %1 in window %2."), tagOrView, wndTag);
    }
    return nullptr;
}

} // namespace

QWidget *validatedView(Tag tagOrView, const QMetaObject &wanted)
{
    return validated(tagOrView, {viewClassName(wanted), &wanted});
}

QWidget *CUI_ValidateViewKindOfClass(Tag tagOrView, const QString &className)
{
    return validated(tagOrView, {className});
}

QWidget *ControlWithTag(Tag tagOrControl)
{
    return CUI_ValidateViewKindOfClass(tagOrControl, u"NSControl"_s);
}

void showNoWindowsError()
{
    showStatementAlert(QT_TRANSLATE_NOOP("Runtime", "Error."), QT_TRANSLATE_NOOP("Runtime", "Can't find any windows."));
}

bool canBeTag(Tag tag, const char *text)
{
    const bool isTag = tag != 0 && !isObjectAddress(tagIdentity(tag));
    if (!isTag) {
        showTagError(text, tag);
    }
    return isTag;
}

} // namespace tetrad
