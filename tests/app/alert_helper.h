#pragma once

#include "tests/support/windows.h"
#include <tetrad/app/alert.h>
#include <tetrad/app/alerts.h>

#include <QPushButton>

#include <algorithm>

namespace tetrad {

using Answer = std::function<void(Alert *)>;

inline void whenAlertRuns(const Answer &action)
{
    whenRuns<Alert>(action);
}

/// Answers an alert with a click on one of its buttons.
inline Answer clicks(int index)
{
    return [index](Alert *alert) { alert->alertButtons().at(index)->click(); };
}

inline QStringList titlesOf(const Alert *alert)
{
    QStringList titles;
    for (const QPushButton *const button : alert->alertButtons()) {
        titles << button->text().replace(u"&&"_s, u"&"_s);
    }
    return titles;
}

/// Whether every alert is off the screen again.
inline bool noAlertLeft()
{
    const auto isLeft = [](const QWidget *each) { return qobject_cast<const Alert *>(each) && each->isVisible(); };
    return !modalWindow() && std::ranges::none_of(QApplication::topLevelWidgets(), isLeft);
}

} // namespace tetrad
