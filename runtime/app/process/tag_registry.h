#pragma once

#include <tetrad/events/tag.h>

#include <QList>

#include <algorithm>

namespace tetrad {

/// The windows, alerts or popovers that exist, to be found by tag. The window system reports no such list (some hide
/// their stacking order), so the objects add and remove themselves.
template <typename Object>
class TagRegistry
{
public:
    static TagRegistry &instance()
    {
        // Deliberately never freed: objects may still be destroyed while static objects are.
        static auto *const registry = new TagRegistry;
        return *registry;
    }

    void add(Object *object) { m_objects.append(object); }
    void remove(Object *object) { m_objects.removeAll(object); }
    void bringToFront(Object *object)
    {
        if (m_objects.removeAll(object)) {
            m_objects.prepend(object);
        }
    }

    /// The one brought to the front last comes first, what never was there comes last.
    const QList<Object *> &frontToBack() const { return m_objects; }

    Object *withTag(Tag tag) const
    {
        return first([tag](const Object *each) { return each->tag() == tag; });
    }

    Object *frontVisible() const
    {
        return first([](const Object *each) { return each->isVisible(); });
    }

private:
    template <typename Condition>
    Object *first(Condition condition) const
    {
        const auto found = std::ranges::find_if(m_objects, condition);
        return found == m_objects.end() ? nullptr : *found;
    }

    QList<Object *> m_objects;
};

} // namespace tetrad
