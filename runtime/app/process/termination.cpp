#include "runtime/app/process/termination.h"

#include "runtime/app/process/clipboard_handover.h"
#include <tetrad/app/app_delegate.h>
#include <tetrad/app/application.h>

#include <QScopedValueRollback>

#include <cstdio>
#include <cstdlib>
#ifdef TETRAD_FIND_LEAKS
#include <sanitizer/lsan_interface.h>
#endif
#include <utility>

namespace tetrad {

namespace {

bool isAsking = false;

} // namespace

// A program that calls this in its answer to the question has decided; so has a fatal stop there.
void AppTerminate()
{
    if (isAsking || mayTerminate()) {
        terminateWithoutAsking();
    }
}

bool mayTerminate()
{
    if (isAsking) {
        return false;
    }
    const QScopedValueRollback guard(isAsking, true);
    return CUI_AppDelegateObj()->applicationShouldTerminate() == CUI_AppDelegate::terminateNow;
}

void quitByUser()
{
    if (mayTerminate()) {
        terminateWithoutAsking();
    }
}

// Without destroying the application object or closing a window: below this frame are loops, event handlers and main
// itself, all with references to them. Nor through exit, which would destroy the static objects of the libraries while
// the thread that reads the display's events goes on using them. What the window system holds for the process goes
// with its connection.
void terminateWithoutAsking()
{
    static bool isHandedOver = false;
    static bool isNotified = false;
    // Handing over serves events, so it comes first. Either may end the program itself and get here again.
    if (!std::exchange(isHandedOver, true)) {
        handClipboardOver();
    }
    if (!std::exchange(isNotified, true)) {
        CUI_AppDelegateObj()->applicationWillTerminate();
    }
    std::fflush(nullptr);
#ifdef TETRAD_FIND_LEAKS
    __lsan_do_leak_check();
#endif
    std::_Exit(0);
}

} // namespace tetrad
