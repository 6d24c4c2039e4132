#include <tetrad/input/key_input.h>

#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>
#include <tetrad/app/modal.h>
#include <tetrad/strings/not_given.h>

#include <QPointer>

#include <optional>

namespace tetrad {

namespace {

std::optional<ZRInkeyFormat> sPendingInkeyFormat;

} // namespace

void InkeySetFormat(const QString &characters, qint64 pass, qint64 caseOption)
{
    const CharacterSet listed(characters);
    const bool accepted = pass != 0;
    sPendingInkeyFormat = ZRInkeyFormat{
        .characterSet = accepted ? listed : listed.inverted(),
        .characters = characters,
        .pass = accepted,
        .caseOption = caseOption == notGiven ? 0 : caseOption,
    };
}

void InkeyRemoveFormat()
{
    sPendingInkeyFormat.reset();
}

const ZRInkeyFormat *pendingInkeyFormat()
{
    return sPendingInkeyFormat ? &*sPendingInkeyFormat : nullptr;
}

QString ZRInkey(qint64 x, qint64 y, const QString &prompt, const QString &characters, qint64 pass, qint64 caseOption)
{
    if (characters.isNull()) {
        InkeyRemoveFormat();
    } else if (!characters.isEmpty()) {
        InkeySetFormat(characters, pass, caseOption);
    } // An empty list deliberately keeps the pending format, as it does for ZRInput.

    CUI_AppDelegate *const delegate = CUI_AppDelegateObj();
    const QPointer<ZRInkeyWindow> panel = new ZRInkeyWindow(prompt, x, y);
    delegate->inkeyWnd = panel;
    const qint64 code = panel->run();
    delegate->inkeyWnd = nullptr;
    delete panel.data();
    return code == modalStopped ? delegate->inkeyResponseString : QString();
}

} // namespace tetrad
