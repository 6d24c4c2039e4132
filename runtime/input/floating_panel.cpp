#include <tetrad/input/floating_panel.h>

#include "runtime/input/panel_layout.h"
#include "runtime/input/panel_look.h"
#include "runtime/input/prompt_label.h"
#include <tetrad/app/content_view.h>
#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/strings/not_given.h>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace tetrad {

namespace {

QWidget *hostOfPanel()
{
    Window *const front = CUI_FrontWindow();
    return front ? front->contentView() : nullptr;
}

QWidgetList consolesIn(const QWidget *content)
{
    auto views = content ? content->findChildren<QWidget *>() : QWidgetList();
    views.removeIf([](const QWidget *view) { return !dynamic_cast<const PrintedView *>(view); });
    return views;
}

} // namespace

FloatingPanel::FloatingPanel(const QString &prompt, qint64 xPos, qint64 yPos)
    : QWidget(hostOfPanel()), m_xPos(xPos), m_yPos(yPos), m_label(new PromptLabel(prompt, this))
{
    setAttribute(Qt::WA_NoMousePropagation);
    setLayoutDirection(Qt::LeftToRight);
    if (QWidget *const content = parentWidget()) {
        content->installEventFilter(this);
    } else {
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        setWindowTitle(prompt);
        setAttribute(Qt::WA_TranslucentBackground);
    }
    window()->installEventFilter(this);
    makeStatic(m_label);
    m_label->installEventFilter(this);
    adoptApplicationLook();
}

const QString &FloatingPanel::prompt() const
{
    return m_label->prompt();
}

QLabel *FloatingPanel::label() const
{
    return m_label;
}

QRect FloatingPanel::bodyRect() const
{
    return geometry().adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
}

void FloatingPanel::resize()
{
    const PanelMetrics metrics{.promptWidth = m_label->promptWidth(),
                               .entryWidth = entryTextWidth(),
                               .minimumWidth = minimumBodyWidth(),
                               .usableEntryWidth = usableEntryWidth()};
    const QRect host = hostRect();
    const PanelGeometry parts = layOutPanel(metrics, m_wanted, host.size());
    setGeometry(
        parts.body.translated(host.topLeft()).adjusted(-shadowMargin, -shadowMargin, shadowMargin, shadowMargin));
    m_label->fitInto(parts.label.translated(shadowMargin, shadowMargin));
    m_entry->setGeometry(parts.entry.translated(shadowMargin, shadowMargin));
    // A label rounds the middle of its line down, a line edit up; both baselines must be one. A label takes no negative
    // margin.
    const int textTop = panelTextTop(m_label->fontMetrics().height());
    const auto labels = findChildren<QLabel *>();
    for (QLabel *const each : labels) {
        each->setContentsMargins(PromptLabel::inset, std::max(0, textTop), 0, 0);
        each->setGeometry(each->geometry().adjusted(0, std::min(0, textTop), 0, 0));
    }
}

void FloatingPanel::center()
{
    const QRect host = hostRect();
    m_wanted = requestedPosition(m_xPos, m_yPos, host.size());
    if (!parentWidget() && m_xPos == notGiven && m_yPos == notGiven) {
        m_wanted.setX((host.width() - minimumBodyWidth()) / 2);
    }
    resize();
}

qint64 FloatingPanel::run()
{
    m_keyReceiver->setFocus(Qt::OtherFocusReason);
    return runModalForWindow(this);
}

void FloatingPanel::makeStatic(QLabel *label)
{
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void FloatingPanel::setEntry(QWidget *entry)
{
    m_entry = entry;
    entry->installEventFilter(this);
}

void FloatingPanel::setKeyReceiver(QWidget *receiver)
{
    m_keyReceiver = receiver;
    receiver->setAccessibleName(prompt().isEmpty() ? QCoreApplication::translate("Runtime", "Input") : prompt());
    QString news;
    const auto consoles = consolesIn(parentWidget());
    for (QWidget *const console : consoles) {
        news += dynamic_cast<PrintedView *>(console)->takeNewText();
    }
    receiver->setAccessibleDescription(news);
}

bool FloatingPanel::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const bool fontChanged = type == QEvent::FontChange && m_entry && (watched == m_label || watched == m_entry);
    if (fontChanged || (watched == parentWidget() && type == QEvent::Resize)) {
        resize();
    } else if (watched == parentWidget() && type == QEvent::ChildPolished) {
        // A view made later would cover the panel.
        raise();
    } else if (type == QEvent::ApplicationPaletteChange || type == QEvent::ApplicationFontChange) {
        // Only windows get these events.
        adoptApplicationLook();
    }
    return QWidget::eventFilter(watched, event);
}

void FloatingPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintPanelBackdrop(painter, rect(), palette());
}

void FloatingPanel::mousePressEvent(QMouseEvent *event)
{
    m_dragOffset = event->globalPosition().toPoint() - bodyRect().topLeft();
}

void FloatingPanel::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton) {
        m_wanted = event->globalPosition().toPoint() - m_dragOffset - hostRect().topLeft();
        resize();
        m_wanted = bodyRect().topLeft() - hostRect().topLeft();
    }
}

// Keys that nothing in the panel used end here; the content below must not see them. F6 goes to the next pane as on
// any desktop: the console, which brings the focus back.
void FloatingPanel::keyPressEvent(QKeyEvent *event)
{
    const auto consoles = event->key() == Qt::Key_F6 ? consolesIn(parentWidget()) : QWidgetList();
    if (!consoles.isEmpty()) {
        consoles.first()->setFocus(Qt::OtherFocusReason);
    }
}

void FloatingPanel::keyReleaseEvent(QKeyEvent *) {}

QRect FloatingPanel::hostRect() const
{
    return parentWidget() ? parentWidget()->rect() : QGuiApplication::primaryScreen()->geometry();
}

void FloatingPanel::adoptApplicationLook()
{
    setPalette(panelPalette());
    setFont(panelFont());
}

} // namespace tetrad
