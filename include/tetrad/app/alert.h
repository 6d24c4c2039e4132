#pragma once

// Implemented in runtime/app/alerts/alert.cpp, alert_keys.cpp and alert_sheet.cpp

#include <tetrad/events/tag.h>

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>

class QPushButton;

namespace tetrad {

/// Reports what happens to alerts to the dialog function.
class CUI_AlertDelegate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Event 1001. Whether the callback showed help: what it left in the dialog event's boolean.
    Q_INVOKABLE virtual bool alertShowHelp(tetrad::Alert *alert);

    /// Event 1000 for a sheet. `contextInfo` is the caller's own and not looked at.
    virtual void alertDidEnd(Alert *alert, qint64 returnCode, void *contextInfo);

    /// The suppression check box of the alert that ended last: 1 checked, 0 not.
    qint64 lastSuppressionButtonState = 0;
};

/// The shared delegate of every alert that CUI_Alert makes; it lives to the end of the program.
CUI_AlertDelegate *CUI_AlertDelegateObj();

/// A message text, an informative text and buttons in the order in which they were added; the first
/// is the default, which Return presses. Neither Escape nor a close request answers it unless a
/// button was given the Escape key. "Quit" and "Play Again", added in this order, answer 1000 and
/// 1001. Which alerts are defined under which tag is for alerts.h.
class Alert : public QMessageBox
{
    Q_OBJECT

public:
    explicit Alert(QWidget *parent = nullptr);
    ~Alert() override;

    /// An alert that shows the error's description, or its domain and code when it has none.
    static Alert *withError(const ErrorObject &error);

    Tag tag() const { return objectTag(this); }
    void setTag(Tag tag) { setObjectTag(this, tag); }

    /// Whether the alert is to be shown as a sheet (dynamic property "sheetNumber").
    bool sheet() const;
    void setSheet(bool sheet);

    /// An AlertStyle; unknown values fall back to a warning. A critical alert has that icon, any other the
    /// application's at the time when the alert is shown, if it has one.
    qint64 alertStyle() const { return m_style; }
    void setAlertStyle(qint64 style);

    /// Plain text: markup and "&" are shown as they stand. The message is also the title of the alert's window.
    void setMessageText(const QString &text);
    void setInformative(const QString &text);

    QPushButton *addAlertButton(const QString &title);
    const QList<QPushButton *> &alertButtons() const { return m_buttons; }

    /// The one key that presses a button: "\r" makes it the default, "\033" is Escape, a letter is that
    /// key (upper case: with Shift), empty takes its key away. An index without a button is ignored.
    void setKeyEquivalent(quint64 index, const QString &key);

    /// The check box "Do not show this message again"; its state is 1 while checked, else 0.
    bool showsSuppressionButton() const { return checkBox(); }
    void setShowsSuppressionButton(bool shows);
    qint64 suppressionButtonState() const;

    /// The help button notifies the delegate and leaves the alert open.
    bool showsHelp() const { return m_helpButton; }
    void setShowsHelp(bool shows);

    /// Not owned.
    CUI_AlertDelegate *delegate() const { return m_delegate; }
    void setDelegate(CUI_AlertDelegate *delegate) { m_delegate = delegate; }

    /// Whether the alert statement deletes the alert when it has ended; false for a program's own alert.
    bool isReleasedWhenEnded() const { return m_releasedWhenEnded; }
    void setReleasedWhenEnded(bool released) { m_releasedWhenEnded = released; }

    /// Shows the alert over a window (may be null) and returns when it ended: 1000 for the first button,
    /// 1001 for the second and so on; 0 when it was dismissed or deleted. Without any button it gets
    /// "OK". The alert may be gone when this returns.
    qint64 runModal(QWidget *over);

    /// Shows the alert attached to a window, which takes no input but in its menus until it is answered, and returns at
    /// once. `completion` gets the button's code; it is not
    /// called when the alert is dismissed.
    void beginSheet(QWidget *window, std::function<void(qint64)> completion);
    bool isRunningAsSheet() const { return m_sheetWindow && isVisible(); }

    /// Takes the alert off the screen without an answer.
    void dismiss();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void attachTo(QWidget *window, bool asSheet);
    void prepareToShow();
    bool takesKey(QObject *receiver, QEvent *event);
    void onFinished();
    void endSheet();
    void updateAccessibleName();
    void updateIcon();

    QList<QPushButton *> m_buttons;
    QPushButton *m_helpButton = nullptr;
    QPushButton *m_returnButton = nullptr;
    QPointer<CUI_AlertDelegate> m_delegate;
    QPointer<QWidget> m_sheetWindow;
    QObject *m_sheetGuard = nullptr;
    std::function<void(qint64)> m_completion;
    qint64 m_style = 0;
    qint64 m_code = 0;
    bool m_hasEnded = false;
    bool m_releasedWhenEnded = false;
};

} // namespace tetrad
