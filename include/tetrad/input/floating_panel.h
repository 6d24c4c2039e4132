#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;

namespace tetrad {

struct PanelMetrics;

/// What the two input panels share: a small translucent body with a prompt and an entry after it,
/// drawn with its shadow over the content of the front window, of which it is a raised child; without
/// any window it is a frameless window of its own. It fits itself to its texts, stays inside the
/// content, and is dragged by its background. What the entry is, and which key ends the run, is left
/// to the derived class.
class FloatingPanel : public QWidget
{
    Q_OBJECT

public:
    /// The requested position as it was given: the body's bottom left corner in pixels from the
    /// content's top left; notGiven in both when there was none.
    qint64 xPos() const { return m_xPos; }
    qint64 yPos() const { return m_yPos; }

    /// The full prompt, also when the label shows less of it.
    const QString &prompt() const { return m_prompt; }

    /// The body, without the shadow around it, in the content's coordinates (the screen's for a panel
    /// without a window).
    QRect bodyRect() const;

    bool canBecomeKeyWindow() const { return true; }

    using QWidget::resize;
    /// Fits label, entry and body to their texts.
    void resize();

    /// Puts the panel where it was requested, also after it was dragged.
    void center();

    /// Shows the panel with the keyboard in it, runs it modally, and returns the run's code. The panel
    /// may be gone by then.
    qint64 run();

protected:
    FloatingPanel(const QString &prompt, qint64 xPos, qint64 yPos);

    QLabel *makeLabel(const QString &text);
    QLabel *label() const { return m_label; }

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
    void measurePrompt();
    void showPrompt(int width);

    QString m_prompt;
    int m_promptWidth = 0;
    qint64 m_xPos = 0;
    qint64 m_yPos = 0;
    QLabel *m_label = nullptr;
    QWidget *m_entry = nullptr;
    QPointer<QWidget> m_keyReceiver;
    QPoint m_wanted;     ///< the body's top left, before it is pushed into the content
    QPoint m_dragOffset; ///< from the body's top left to where it was grabbed
};

} // namespace tetrad
