#pragma once

#include <tetrad/input/floating_panel.h>

#include <QByteArrayView>

class QKeyEvent;
class QLineEdit;

namespace tetrad {

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

} // namespace tetrad
