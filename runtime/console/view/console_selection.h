#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWidget;

namespace tetrad {

class CUI_PrintToWindowView;

/// Selects by mouse and keyboard, moves the caret, scrolls, copies, and gives the keyboard focus
/// back to the widget that had it before as soon as the user types or presses F6 or Escape.
class ConsoleSelection : public QObject
{
    Q_OBJECT

public:
    /// A child of the view, whose events it watches.
    explicit ConsoleSelection(CUI_PrintToWindowView *view);

    bool eventFilter(QObject *object, QEvent *event) override;

    /// The caret and a frame around what is visible, while the view has the focus.
    void drawFocus(QPainter &painter) const;

private:
    void focusChanged(QWidget *before, QWidget *now);
    bool pressKey(QKeyEvent *event);
    void pressMouse(const QMouseEvent *event);
    void releaseMouse(const QMouseEvent *event);
    /// Where a key moves the caret to; -1 when it does not move it.
    qsizetype destination(const QKeyEvent &event) const;
    qsizetype pageAway(int direction) const;
    qsizetype caretAt(const QMouseEvent *event) const;
    QWidget *typingTarget() const;

    CUI_PrintToWindowView *m_view = nullptr;
    QPointer<QWidget> m_focusBefore;
    bool m_dragging = false;
};

} // namespace tetrad
