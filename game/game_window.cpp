#include "game/game_window.h"

#include <tetrad/app/alerts.h>
#include <tetrad/app/application.h>
#include <tetrad/app/windows.h>
#include <tetrad/console/console_statements.h>
#include <tetrad/strings/not_given.h>

namespace tetrad {

using namespace Qt::StringLiterals;

namespace {

constexpr Tag gameWindowTag = 1;
constexpr Tag quitOrPlayTag = 2;

} // namespace

int BuildWindow()
{
    const QRectF content(0, 0, 580, 250);
    CUI_Window(gameWindowTag, u"Tetrad Game"_s, notGiven, content);
    WindowCenter(gameWindowTag);
    WindowSetBackgroundColor(gameWindowTag, ColorBlack());
    return 0;
}

void EraseErrorText()
{
    CUI_DrawToWindowRectStatement(ColorBlack(), true, QRectF(10, 200, 400, 15));
}

int QuitOrPlayAlert(const QString &verdict)
{
    CUI_Alert(-quitOrPlayTag, notGiven, verdict, u"You won!"_s, u"Quit;Play Again"_s, notGiven);
    // Deliberate: indices count from 0, so this names no button, and neither button answers to Escape; a stray
    // Escape must not choose for the player.
    AlertButtonSetKeyEquivalent(quitOrPlayTag, 2, u"\u001B"_s);
    const auto button =
        static_cast<qint16>(CUI_Alert(quitOrPlayTag, notGiven, QVariant(), QString(), QVariant(), notGiven));
    if (button != alertSecondButton) {
        AppTerminate();
    }
    return 0;
}

} // namespace tetrad
