#pragma once

#include <QMetaType>
#include <QString>

namespace tetrad {

/// A failure as a value: who reports it (domain), which one it is (code), and a sentence for the
/// user (description). It is passed in a QVariant, where an alert distinguishes it from a message text.
struct ErrorObject
{
    QString domain;
    qint64 code = 0;
    QString description;

    friend bool operator==(const ErrorObject &, const ErrorObject &) = default;
};

} // namespace tetrad

Q_DECLARE_METATYPE(tetrad::ErrorObject)
