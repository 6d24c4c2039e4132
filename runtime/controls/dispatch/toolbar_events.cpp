#include "runtime/controls/dispatch/toolbar_events.h"

#include "runtime/controls/dispatch/event_site.h"
#include <tetrad/events/event_codes.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QVariant>

namespace tetrad {

namespace {

constexpr char validatesKey[] = "toolbarItemValidates";

// Asks after what the user did may have changed something.
class ItemValidator : public QObject
{
public:
    explicit ItemValidator(QAction *item) : QObject(item), m_item(item)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::WindowActivate:
        case QEvent::MouseButtonRelease:
        case QEvent::KeyRelease:
            validateSoon();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

    void validateSoon()
    {
        if (!m_isQueued && m_item->property(validatesKey).toBool()) {
            m_isQueued = true;
            callSoon(this, [this] {
                m_isQueued = false;
                validateToolbarItem(m_item);
            });
        }
    }

private:
    QAction *m_item = nullptr;
    bool m_isQueued = false;
};

} // namespace

void reportToolbarItemEvents(QAction *item)
{
    QObject::connect(item, &QAction::triggered, item,
                     [item] { callSoon(item, [item] { sendObjectEvent(item, toolbarEventItemAction); }); });
}

void setToolbarItemValidates(QAction *item, bool validates)
{
    const bool isFirst = !item->property(validatesKey).isValid();
    item->setProperty(validatesKey, validates);
    if (isFirst) {
        (new ItemValidator(item))->validateSoon();
    }
}

void validateToolbarItem(QAction *item)
{
    const QPointer<QAction> guard(item);
    const bool enabled = answersYes(item, toolbarEventValidateItem);
    if (guard) {
        item->setEnabled(enabled);
    }
}

} // namespace tetrad
