#pragma once

// Implemented in runtime/input/key_input.cpp

#include <tetrad/input/control_formatter.h>
#include <tetrad/input/floating_panel.h>

#include <QString>

class QTimer;

namespace tetrad {

/// The format that the next key input filters its keys with, and every later one until it is replaced or removed.
class ZRInkeyFormat
{
public:
    CharacterSet characterSet; ///< the keys accepted
    QString characters;        ///< the list the set was made from
    bool pass = true;          ///< the list names the accepted keys, else the refused ones
    qint64 caseOption = 0;     ///< caseForceLower, caseForceUpper; anything else leaves the key as it is
};

/// Replaces the pending key format. The list is case-sensitive: a forced case is applied to the key
/// before it is looked up. notGiven stands for pass true, caseOption 0.
void InkeySetFormat(const QString &characters, qint64 pass, qint64 caseOption);

void InkeyRemoveFormat();

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

/// The key-input statement: shows a panel with a prompt and a blinking cursor over the front window,
/// blocks until an accepted key or Escape is pressed, and returns the key's text; null for Escape.
/// x, y as for ZRInput. The format: null `characters` removes the pending key format, an empty one
/// keeps the one in force, any other sets it together with pass and caseOption (see InkeySetFormat).
QString ZRInkey(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 caseOption);

} // namespace tetrad
