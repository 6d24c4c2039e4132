#include <tetrad/input/floating_panel.h>

#include "runtime/input/panel_backdrop.h"
#include "runtime/input/panel_layout.h"
#include <tetrad/app/modal.h>
#include <tetrad/app/window.h>
#include <tetrad/app/windows.h>
#include <tetrad/strings/not_given.h>

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace tetrad {

namespace {

constexpr int textInset = 2; ///< of a label's text, as of a line edit's

QWidget *hostOfPanel()
{
    Window *const front = CUI_FrontWindow();
    return front ? front->contentView() : nullptr;
}

/// The application's font at the largest size, 13 pixels at most, whose lines fit a label.
QFont panelFont()
{
    constexpr int lineHeight = 16;
    QFont font = QApplication::font();
    int size = 13;
    do {
        font.setPixelSize(size);
    } while (QFontMetrics(font).height() > lineHeight && --size > 8);
    return font;
}

/// The application's palette with every colour set, so that nothing is inherited from the content. What
/// is typed stands on the panel's body in the colour of the prompt.
QPalette panelPalette()
{
    const QPalette source = QApplication::palette();
    QPalette palette;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto colorGroup = static_cast<QPalette::ColorGroup>(group);
            const auto colorRole = static_cast<QPalette::ColorRole>(role);
            palette.setBrush(colorGroup, colorRole, source.brush(colorGroup, colorRole));
        }
    }
    palette.setBrush(QPalette::Base, Qt::transparent);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setBrush(group, QPalette::Text, source.brush(group, QPalette::WindowText));
    }
    return palette;
}

/// The prompt as one line.
QString inOneLine(QString prompt)
{
    for (QChar &character : prompt) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line) {
            character = u' ';
        }
    }
    return prompt;
}

/// The consoles in a content, which are known by one of their slots.
QWidgetList consolesIn(const QWidget *content)
{
    auto views = content ? content->findChildren<QWidget *>() : QWidgetList();
    views.removeIf([](const QWidget *view) { return view->metaObject()->indexOfMethod("takeNewText()") < 0; });
    return views;
}

/// What the consoles of the content gained since they were last asked.
QString newConsoleText(const QWidget *content)
{
    QString text;
    const auto consoles = consolesIn(content);
    for (QWidget *const console : consoles) {
        QString gained;
        QMetaObject::invokeMethod(console, "takeNewText", Qt::DirectConnection, Q_RETURN_ARG(QString, gained));
        text += gained;
    }
    return text;
}

} // namespace

FloatingPanel::FloatingPanel(const QString &prompt, qint64 xPos, qint64 yPos)
    : QWidget(hostOfPanel()), m_prompt(prompt), m_xPos(xPos), m_yPos(yPos)
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
    m_label = makeLabel(QString());
    m_label->setAccessibleName(prompt);
    m_label->installEventFilter(this);
    adoptApplicationLook();
    measurePrompt();
}

QRect FloatingPanel::bodyRect() const
{
    return geometry().adjusted(shadowMargin, shadowMargin, -shadowMargin, -shadowMargin);
}

void FloatingPanel::resize()
{
    PanelMetrics metrics;
    metrics.promptWidth = m_promptWidth;
    metrics.entryWidth = entryTextWidth();
    metrics.minimumWidth = minimumBodyWidth();
    metrics.usableEntryWidth = usableEntryWidth();

    const QRect host = hostRect();
    const PanelGeometry parts = layOutPanel(metrics, m_wanted, host.size());
    // What stays when a key widens the panel is not painted again, only its end; where pixels are divided, all is.
    setAttribute(Qt::WA_StaticContents, devicePixelRatioF() == devicePixelRatio());
    const int narrower = std::min(width(), parts.body.width() + 2 * shadowMargin);
    setGeometry(
        parts.body.translated(host.topLeft()).adjusted(-shadowMargin, -shadowMargin, shadowMargin, shadowMargin));
    update(rect().adjusted(narrower - panelEndWidth, 0, 0, 0));
    m_label->setGeometry(parts.label.translated(shadowMargin, shadowMargin));
    m_entry->setGeometry(parts.entry.translated(shadowMargin, shadowMargin));
    // A label rounds the middle of its line down, a line edit up; both baselines must be one.
    const int textTop = (parts.label.height() - m_label->fontMetrics().height() + 1) / 2;
    const auto labels = findChildren<QLabel *>();
    for (QLabel *const each : labels) {
        each->setContentsMargins(textInset, textTop, 0, 0);
    }
    showPrompt(parts.label.width());
}

void FloatingPanel::center()
{
    const QRect host = hostRect();
    m_wanted = wantedPlace(m_xPos, m_yPos, host.size());
    if (!parentWidget() && m_xPos == notGiven && m_yPos == notGiven) {
        m_wanted.setX((host.width() - minimumBodyWidth()) / 2);
    }
    resize();
}

qint64 FloatingPanel::run()
{
    window()->activateWindow();
    show();
    raise();
    m_keyReceiver->setFocus(Qt::OtherFocusReason);
    return runModalForWindow(this);
}

QLabel *FloatingPanel::makeLabel(const QString &text)
{
    auto *const label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(text);
    return label;
}

void FloatingPanel::setEntry(QWidget *entry)
{
    m_entry = entry;
    entry->installEventFilter(this);
}

void FloatingPanel::setKeyReceiver(QWidget *receiver)
{
    m_keyReceiver = receiver;
    receiver->setAccessibleName(m_prompt.isEmpty() ? QCoreApplication::translate("Runtime", "Input") : m_prompt);
    receiver->setAccessibleDescription(newConsoleText(parentWidget()));
}

bool FloatingPanel::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == parentWidget() && type == QEvent::Resize) {
        resize();
    } else if (watched == parentWidget() && type == QEvent::ChildPolished) {
        // The content got another view, made above the panel.
        raise();
    } else if (type == QEvent::ApplicationPaletteChange || type == QEvent::ApplicationFontChange) {
        // Only windows are told.
        adoptApplicationLook();
    } else if (type == QEvent::FontChange && m_entry && (watched == m_label || watched == m_entry)) {
        measurePrompt();
        resize();
    }
    return QWidget::eventFilter(watched, event);
}

void FloatingPanel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    // One by one: a picture is copied into a rectangle at once, but into a region span by span.
    for (const QRect &part : event->region()) {
        painter.setClipRect(part);
        paintPanelBackdrop(painter, rect(), palette());
    }
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

void FloatingPanel::measurePrompt()
{
    m_promptWidth = m_prompt.isEmpty() ? 0 : m_label->fontMetrics().horizontalAdvance(inOneLine(m_prompt));
}

void FloatingPanel::showPrompt(int width)
{
    const QString line = inOneLine(m_prompt);
    const int room = width - 2 * textInset;
    const QString shown = m_promptWidth <= room ? line : m_label->fontMetrics().elidedText(line, Qt::ElideMiddle, room);
    if (shown != m_label->text()) {
        m_label->setText(shown);
        m_label->setToolTip(shown == line ? QString() : m_prompt);
    }
}

} // namespace tetrad
