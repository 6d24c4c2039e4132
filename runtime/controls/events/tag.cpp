#include <tetrad/events/tag.h>

#include <QObject>
#include <QVariant>

#include <bit>

namespace tetrad {

namespace {

constexpr char tagKey[] = "tagNumber";
constexpr char windowTagKey[] = "wndTagNumber";

Tag outputWindowTag = 0;

} // namespace

Tag tagFromObject(const QObject *object)
{
    return std::bit_cast<qintptr>(object);
}

QObject *objectFromTag(Tag value)
{
    return isObjectAddress(value) ? std::bit_cast<QObject *>(static_cast<qintptr>(value)) : nullptr;
}

Tag tagFromEvent(const QEvent *event)
{
    return std::bit_cast<qintptr>(event);
}

QEvent *eventFromTag(Tag value)
{
    return isObjectAddress(value) ? std::bit_cast<QEvent *>(static_cast<qintptr>(value)) : nullptr;
}

Tag objectTag(const QObject *object)
{
    return object->property(tagKey).toLongLong();
}

void setObjectTag(QObject *object, Tag tag)
{
    object->setProperty(tagKey, tag);
}

Tag objectWindowTag(const QObject *object)
{
    return object->property(windowTagKey).toLongLong();
}

void setObjectWindowTag(QObject *object, Tag wndTag)
{
    object->setProperty(windowTagKey, wndTag);
}

void CUI_OutputWindowSetTag(Tag tag)
{
    outputWindowTag = tagIdentity(tag);
}

Tag CUI_OutputWindowTag()
{
    return outputWindowTag;
}

} // namespace tetrad
