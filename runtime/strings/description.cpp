#include "runtime/strings/description.h"

#include <tetrad/strings/error_object.h>

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <array>
#include <charconv>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

QString addressText(const void *address)
{
    return u"0x" + QString::number(quintptr(address), 16);
}

QString textOrNull(const QString &text)
{
    return text.isNull() ? u"(null)"_s : text;
}

// The shortest form that reads back as the same float; through a double it would be 0.10000000149.
QString floatDescription(float number)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

QString listDescription(const QVariantList &list)
{
    QStringList parts;
    for (const QVariant &element : list) {
        parts += descriptionOf(element);
    }
    return u'(' + parts.join(u", ") + u')';
}

QString mapDescription(const QVariantMap &map)
{
    QStringList parts;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        parts += entry.key() + u" = " + descriptionOf(entry.value());
    }
    return u'{' + parts.join(u"; ") + u'}';
}

QString objectDescription(const QObject *object)
{
    return object ? u'<' + QString::fromLatin1(object->metaObject()->className()) + u": " + addressText(object) + u'>'
                  : textOrNull({});
}

// A value of some other type: its text form if it has one, else the type's name.
QString otherDescription(const QVariant &value)
{
    if (value.canConvert<QVariantMap>()) {
        return mapDescription(value.toMap());
    }
    if (value.canConvert<QVariantList>()) {
        return listDescription(value.toList());
    }
    return value.canConvert<QString>() ? value.toString() : u'<' + QString::fromLatin1(value.typeName()) + u'>';
}

} // namespace

QString descriptionOf(const QVariant &object)
{
    if (object.metaType() == QMetaType::fromType<ErrorObject>()) {
        return textOrNull(object.value<ErrorObject>().description);
    }
    if (object.metaType().flags() & QMetaType::PointerToQObject) {
        return objectDescription(object.value<QObject *>());
    }
    switch (object.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return textOrNull({});
    case QMetaType::QString:
        return textOrNull(object.toString());
    case QMetaType::QByteArray:
        return textOrNull(QString::fromUtf8(object.toByteArray()));
    case QMetaType::Bool:
        return QString::number(object.toInt());
    case QMetaType::Float:
        return floatDescription(object.toFloat());
    case QMetaType::VoidStar:
        return addressText(object.value<void *>());
    default:
        return otherDescription(object);
    }
}

} // namespace tetrad
