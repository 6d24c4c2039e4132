#include "runtime/controls/dispatch/input_watch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <memory>

namespace tetrad {

namespace {

class InputWatch : public QObject
{
public:
    using QObject::QObject;

    QEvent *last() const { return m_last.get(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            m_last.reset(event->clone());
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::unique_ptr<QEvent> m_last;
};

QPointer<InputWatch> inputWatch;

} // namespace

void watchInput()
{
    if (!inputWatch) {
        inputWatch = new InputWatch(QCoreApplication::instance());
        QCoreApplication::instance()->installEventFilter(inputWatch);
    }
}

QEvent *lastInputEvent()
{
    return inputWatch ? inputWatch->last() : nullptr;
}

} // namespace tetrad
