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

void AppTerminate()
{
    static bool asking = false;
    if (asking) {
        return;
    }
    {
        const QScopedValueRollback guard(asking, true);
        if (CUI_AppDelegateObj()->applicationShouldTerminate() != CUI_AppDelegate::terminateNow) {
            return;
        }
    }
    terminateWithoutAsking();
}

// Without destroying the application object or closing a window: below this frame are loops, event handlers and main
// itself, all with references to them. Nor through exit, which would destroy the static objects of the libraries while
// the thread that reads the display's events goes on using them. What the window system holds for the process goes
// with its connection.
void terminateWithoutAsking()
{
    static bool ending = false;
    if (std::exchange(ending, true)) {
        return;
    }
    CUI_AppDelegateObj()->applicationWillTerminate({});
    handClipboardOver();
    std::fflush(nullptr);
#ifdef TETRAD_FIND_LEAKS
    __lsan_do_leak_check();
#endif
    std::_Exit(0);
}

} // namespace tetrad
