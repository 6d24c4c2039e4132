#pragma once

// Implemented in runtime/input/floating_panel.cpp

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;

namespace tetrad {

class PromptLabel;

/// The common part of the two input panels: a small translucent body with a prompt and an entry after it, drawn with
/// its shadow over the content of the front window, whose raised child it is. Without any window it is a frameless
/// window of its own. It is as wide as its texts, stays inside the content, and is dragged by its background. The
/// derived class supplies the entry and decides which key ends the run.
class FloatingPanel : public QWidget
{
    Q_OBJECT

public:
    /// The requested position: the body's bottom left corner in pixels from the content's top left; notGiven in both
    /// for none.
    qint64 xPos() const { return m_xPos; }
    qint64 yPos() const { return m_yPos; }

    /// The full prompt, also when the label shows less of it.
    const QString &prompt() const;

    /// The body, without the shadow around it, in the content's coordinates (the screen's for a panel
    /// without a window).
    QRect bodyRect() const;

    bool canBecomeKeyWindow() const { return true; }

    using QWidget::resize;
    /// Fits label, entry and body to their texts. A panel that passes the content's right edge slides left; only one as
    /// wide as the content cuts its texts.
    void resize();

    /// Puts the panel where it was requested, also after it was dragged.
    void center();

    /// Shows the panel with the keyboard in it, runs it modally, and returns the run's code. The panel
    /// may be gone by then.
    qint64 run();

protected:
    FloatingPanel(const QString &prompt, qint64 xPos, qint64 yPos);

    QLabel *label() const;

    /// Makes a label show its text as it is, neither formatted nor selectable.
    static void makeStatic(QLabel *label);

    /// Both are called by the derived class's constructor: the widget after the prompt, and the one
    /// that gets the keyboard, which is named and described here for assistive technology.
    void setEntry(QWidget *entry);
    void setKeyReceiver(QWidget *receiver);

    virtual int entryTextWidth() const = 0;
    virtual int minimumBodyWidth() const = 0;
    virtual int usableEntryWidth() const = 0;

    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    QRect hostRect() const;
    void adoptApplicationLook();

    qint64 m_xPos = 0;
    qint64 m_yPos = 0;
    PromptLabel *m_label = nullptr;
    QWidget *m_entry = nullptr;
    QPointer<QWidget> m_keyReceiver;
    QPoint m_wanted;     ///< the body's top left, before it is pushed into the content
    QPoint m_dragOffset; ///< from the body's top left to where it was grabbed
};

} // namespace tetrad
