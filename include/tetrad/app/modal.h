#pragma once

// Implemented in runtime/app/modal/modal.cpp

#include <tetrad/fwd.h>

class QWidget;

namespace tetrad {

/// How a modal run ended. Any other code is the one that stopModalWithCode was given.
enum ModalResponse : qint64 {
    modalStopped = 1,     ///< confirmed: Return, Enter, an accepted key
    modalAborted = -1001, ///< cancelled: Escape, or the window was closed or deleted under the run
};

/// Runs a nested event loop for one widget, a window of its own or a child panel raised over a
/// window, and returns the code the run was ended with. The widget is shown, raised, activated and
/// given the focus here; it should have no modality of the window system's, which would keep menus
/// and close requests from working. Runs nest; the newest one is in force. Keys typed between the end
/// of a run and the start of the next one wait for that one.
/// While it lasts, mouse and key events for the application's other windows are withheld, except for widgets that
/// setWorksWhenModal was called for. Menus and their shortcuts, timers, repaints, queued calls and input methods go on
/// as ever, and so does scrolling in the windows that carry the widget. A close box queries the window's delegate as
/// always; see closeMeansQuit.
qint64 runModalForWindow(QWidget *window);

/// Ends the newest run with the given code. Nothing happens when none is running.
void stopModalWithCode(qint64 code);

/// Ends the newest run with modalAborted.
void abortModal();

/// Lets a window that the program brings to the front stay there during the newest run, until the user leaves it.
void leaveInFront(QWidget *window);

/// The widget of the newest run, or null.
QWidget *modalWindow();

/// Whether mouse and keys reach a widget, its children and the windows that belong to it during modal runs of others;
/// false at first. Popovers and the colour and font panels do; WindowSetWorksWhenModal declares a window so by its tag.
void setWorksWhenModal(QWidget *widget, bool works);
bool worksWhenModal(const QWidget *widget);

/// Whether the user's request to close this window ends the program, as the Quit item does: it is the last runtime
/// window in sight, or it carries the widget of the only run. With another run waiting it just closes, which aborts
/// the newest run if that is the window's.
bool closeMeansQuit(const Window *window);

/// Whether no other runtime window is visible.
bool isLastVisible(const Window *window);

} // namespace tetrad
