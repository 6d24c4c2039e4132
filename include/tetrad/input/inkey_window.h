#pragma once

#include <tetrad/input/floating_panel.h>

class QTimer;

namespace tetrad {

/// The key input's panel: a prompt and a blinking "_". The first key that the pending key format
/// accepts goes to the application delegate, lowered or raised as the format asks, and ends the modal
/// run. Escape ends it with the same code and no key. A refused key is ignored.
class ZRInkeyWindow : public FloatingPanel
{
    Q_OBJECT

public:
    /// See FloatingPanel::xPos for the position. The panel is placed but not shown.
    ZRInkeyWindow(const QString &prompt, qint64 xPos, qint64 yPos);

    QLabel *promptLabel() const { return label(); }
    QLabel *cursorLabel() const { return m_cursorLabel; }

    /// Blinks the cursor from the moment the panel gets the keyboard until a key was taken; else null.
    QTimer *cursorTimer() const { return m_cursorTimer; }

    void keyDown(QKeyEvent *event);
    void timerFired();
    void windowDidBecomeKey();

protected:
    int entryTextWidth() const override;
    int minimumBodyWidth() const override { return 40; } // narrower than line input's, deliberately
    int usableEntryWidth() const override { return entryTextWidth() + 5; }
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    bool takeKey(QString key, QEvent *event);
    void endWith(const QString &key, QEvent *event);

    QLabel *m_cursorLabel = nullptr;
    QTimer *m_cursorTimer = nullptr;
};

} // namespace tetrad
