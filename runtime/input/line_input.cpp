#include <tetrad/input/line_input.h>

#include "runtime/input/field_formatter.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>
#include <tetrad/strings/not_given.h>

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>

#include <optional>

namespace tetrad {

namespace {

std::optional<ZRInputFormat> sPendingInputFormat;

// While it lives, assistive technology gets no events. A screen reader takes a field whose caret moved before the
// field got the focus, as QLineEdit::setMaxLength reports, for one that it has already spoken.
class NoAccessibleEvents
{
public:
    NoAccessibleEvents() = default;
    ~NoAccessibleEvents() { QAccessible::installUpdateHandler(m_handler); }
    Q_DISABLE_COPY_MOVE(NoAccessibleEvents)

private:
    QAccessible::UpdateHandler m_handler = QAccessible::installUpdateHandler([](QAccessibleEvent *) {});
};

QPointer<ZRInputWindow> makePanel(const QString &prompt, qint64 x, qint64 y)
{
    const NoAccessibleEvents untilTheFocusEvent;
    auto *const panel = new ZRInputWindow(prompt, x, y);
    if (const ZRInputFormat *const format = pendingInputFormat()) {
        attachFormatter(panel->field(), format->characters, format->pass, format->maxLength, format->caseOption);
    }
    return panel;
}

// Hides a panel and deletes it when the next one retires: on the next focus event a screen reader queries the field
// that had the focus before, and Orca says nothing when that field is gone.
void retire(const QPointer<ZRInputWindow> &panel)
{
    static QPointer<ZRInputWindow> before;
    if (panel) {
        panel->field()->clearFocus();
        panel->hide();
    }
    delete before.data();
    before = panel;
}

} // namespace

void InputSetFormat(const QString &characters, qint64 pass, qint64 maxLength, qint64 caseOption)
{
    sPendingInputFormat = ZRInputFormat{
        .characters = characters,
        .pass = pass != 0,
        .maxLength = maxLength == notGiven ? 0 : static_cast<quint64>(maxLength),
        .caseOption = caseOption == notGiven ? caseInsensitiveList : caseOption,
    };
}

void InputRemoveFormat()
{
    sPendingInputFormat.reset();
}

const ZRInputFormat *pendingInputFormat()
{
    return sPendingInputFormat ? &*sPendingInputFormat : nullptr;
}

QString ZRInput(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 maxLength,
                qint64 caseOption)
{
    if (characters.isNull()) {
        InputRemoveFormat();
    } else if (!characters.isEmpty()) {
        InputSetFormat(characters, pass, maxLength, caseOption);
    } // An empty list deliberately keeps the pending format: programs set it once and ask many times.

    CUI_AppDelegate *const delegate = CUI_AppDelegateObj();
    const QPointer<ZRInputWindow> panel = makePanel(prompt, x, y);
    delegate->inputWnd = panel;
    const qint64 code = panel->run();
    delegate->inputWnd = nullptr;
    retire(panel);
    return code == modalStopped ? delegate->inputResponseString : QString();
}

} // namespace tetrad
