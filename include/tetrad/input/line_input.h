#pragma once

// Implemented in runtime/input/line_input.cpp

#include <tetrad/input/floating_panel.h>

#include <QByteArrayView>
#include <QString>

class QKeyEvent;
class QLineEdit;

namespace tetrad {

/// What an input format does with the case of letters. Any other value: letters stay as they are and
/// the list is case-insensitive.
enum CaseOption : qint64 {
    caseInsensitiveList = 0,
    caseSensitiveList = 1,
    caseForceLower = 2,
    caseForceUpper = 3,
    caseCapitalizeWords = 4,
};

/// The format that the next line input gives its field, and every later one until it is replaced or removed.
class ZRInputFormat
{
public:
    QString characters;
    bool pass = true;      ///< the list holds the only characters allowed, else those refused
    quint64 maxLength = 0; ///< in characters; 0 means no limit
    qint64 caseOption = caseInsensitiveList;
};

/// Replaces the pending format. notGiven stands for pass true, maxLength 0, caseOption 0; any other
/// pass is true when it is not 0.
void InputSetFormat(const QString &characters, qint64 pass, qint64 maxLength, qint64 caseOption);

void InputRemoveFormat();

/// The line input's panel: a prompt and one editable field. Return, Enter, Tab and Backtab hand the
/// field's text to the application delegate and end the modal run with modalStopped; Escape aborts
/// it. Losing the focus, to another application or a menu, does not end the editing.
class ZRInputWindow : public FloatingPanel
{
    Q_OBJECT

public:
    /// See FloatingPanel::xPos for the position. The panel is placed but not shown.
    ZRInputWindow(const QString &prompt, qint64 xPos, qint64 yPos);

    using FloatingPanel::label;
    QLineEdit *field() const { return m_field; }

    void controlTextDidChange();

    /// event: the key that ended the editing.
    void controlTextDidEndEditing(QEvent *event);

    /// True when the command was handled: "cancelOperation". Every other one is left to the field.
    bool doCommandBySelector(QByteArrayView command);

protected:
    int entryTextWidth() const override;
    int minimumBodyWidth() const override { return 110; }
    int usableEntryWidth() const override { return 120; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool fieldKeyPressed(QKeyEvent *event);

    QLineEdit *m_field = nullptr;
    QString m_composition; ///< what an input method shows in the field and has not committed
};

/// The line-input statement: shows a panel with a prompt and a field over the front window, blocks
/// until the user confirms or cancels, and returns the line; null when cancelled, empty when
/// confirmed empty. x, y: the panel's bottom-left corner in pixels from the top left of the front
/// window's content; notGiven in both centres it vertically near the left edge.
/// The format: null `characters` removes the pending format, an empty one keeps the one in force
/// from an earlier call, any other sets it together with pass, maxLength and caseOption (see
/// InputSetFormat).
QString ZRInput(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 maxLength,
                qint64 caseOption);

} // namespace tetrad
