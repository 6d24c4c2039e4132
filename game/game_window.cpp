#include "game/game_window.h"

#include "runtime/app/alerts.h"
#include "runtime/app/application.h"
#include "runtime/app/windows.h"
#include "runtime/console/colors.h"
#include "runtime/strings/not_given.h"

namespace tetrad {

namespace {

constexpr Tag gameWindowTag = 1;
constexpr Tag quitOrPlayTag = 2;

} // namespace

int BuildWindow()
{
    const QRectF content(0, 0, 580, 250);
    CUI_Window(gameWindowTag, QStringLiteral("Tetrad Game"), notGiven, content);
    WindowCenter(gameWindowTag);
    WindowSetBackgroundColor(gameWindowTag, ColorBlack());
    return 0;
}

int QuitOrPlayAlert(const QString &verdict)
{
    CUI_Alert(-quitOrPlayTag, notGiven, verdict, QStringLiteral("You won!"), QStringLiteral("Quit;Play Again"),
              notGiven);
    // Deliberate: indices count from 0, so this names no button, and neither button answers to Escape; a stray
    // Escape must not choose for the player.
    AlertButtonSetKeyEquivalent(quitOrPlayTag, 2, QStringLiteral("\u001B"));
    const auto button =
        static_cast<qint16>(CUI_Alert(quitOrPlayTag, notGiven, QVariant(), QString(), QVariant(), notGiven));
    if (button != alertSecondButton) {
        AppTerminate();
    }
    return 0;
}

} // namespace tetrad
