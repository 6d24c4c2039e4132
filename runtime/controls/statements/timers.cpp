#include <tetrad/controls/timers.h>

#include "runtime/controls/dispatch/event_site.h"
#include "runtime/controls/lookup/tag_lookup.h"
#include "runtime/strings/saturate.h"
#include <tetrad/events/event_codes.h>
#include <tetrad/events/tag.h>

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace tetrad {

void CUI_Timer(Tag tag, double interval_s, bool repeats)
{
    if (!canBeTag(tag, QT_TRANSLATE_NOOP("Runtime", "A timer needs a tag from 1 to 1000000, not %1."))) {
        return;
    }
    // The timers are the application's own children; nothing else there is a plain QTimer with a tag.
    const auto timers = qApp->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    if (QTimer *const running = objectWithTag(timers, tagIdentity(tag))) {
        // It may be stopped in its own event.
        setObjectTag(running, 0);
        running->stop();
        running->deleteLater();
    }
    if (tag < 0) {
        return;
    }
    auto *const timer = new QTimer(qApp);
    setObjectTag(timer, tag);
    setObjectWindowTag(timer, CUI_OutputWindowTag());
    timer->setSingleShot(!repeats);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] { sendObjectEvent(timer, timerEventFired); });
    timer->start(std::max(0, saturatedTo<int>(std::round(interval_s * 1000))));
}

} // namespace tetrad
