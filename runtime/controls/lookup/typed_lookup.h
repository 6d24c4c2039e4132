#pragma once

#include <tetrad/events/tag.h>

#include <QString>
#include <QWidget>

namespace tetrad {

/// The class that a statement wants a view to be of: one of the vocabulary by its name, or one of this platform.
struct WantedClass
{
    QString name;
    const QMetaObject *platformClass = nullptr;

    bool includes(const QObject *object) const;
};

/// The view, if it is of the class or of one derived from it, else null after the alert that fits.
QWidget *validatedView(Tag tagOrView, const WantedClass &wanted);

/// The same for a class of this platform, as that class.
template <typename View>
View *viewOfClass(Tag tagOrView)
{
    return static_cast<View *>(validatedView(tagOrView, {{}, &View::staticMetaObject}));
}

} // namespace tetrad
